// The pop-ups of the setup menu that are filled with numbers at the start.
#pragma once

#include <array>

namespace corvane {

// Entries are the numbers index * step for the indexes from `first` to `last`, in `digits` digits. The default is both
// the index of the entry that is marked and the number of the entry that is selected: the same entry where the step
// is 1.
struct NumericPopUp {
    int tag;
    int page;
    int first;
    int last;
    int step;
    int digits;
    int defaultNumber;
};

inline constexpr std::array numericPopUps{
    NumericPopUp{2010115, 0, 0, 100, 1, 3, 50},   NumericPopUp{2010116, 0, 0, 100, 1, 3, 50},
    NumericPopUp{2010211, 0, 0, 100, 1, 3, 50},   NumericPopUp{2010212, 0, 0, 100, 1, 3, 50},
    NumericPopUp{2010215, 0, 0, 100, 1, 3, 50},   NumericPopUp{2010216, 0, 0, 100, 1, 3, 50},
    NumericPopUp{2010312, 0, 0, 100, 1, 3, 50},   NumericPopUp{2010314, 0, 0, 100, 1, 3, 50},
    NumericPopUp{2010315, 0, 0, 100, 1, 3, 50},   NumericPopUp{2010318, 0, 0, 100, 10, 4, 10},
    NumericPopUp{2010319, 0, 0, 400, 10, 4, 50},  NumericPopUp{2010412, 0, 0, 100, 1, 3, 50},
    NumericPopUp{2010415, 0, 0, 100, 1, 3, 50},   NumericPopUp{2010416, 0, 0, 100, 1, 3, 50},
    NumericPopUp{2010420, 0, 0, 300, 10, 4, 150}, NumericPopUp{2010512, 0, 0, 100, 1, 3, 50},
    NumericPopUp{2010605, 0, 0, 100, 1, 3, 70},   NumericPopUp{2020112, 1, 0, 100, 1, 3, 50},
    NumericPopUp{2020205, 1, 1, 9999, 1, 4, 1},   NumericPopUp{2020211, 1, 1, 60, 1, 2, 5},
    NumericPopUp{2030101, 2, 0, 100, 1, 3, 20},   NumericPopUp{2030401, 2, 5, 100, 1, 3, 100},
    NumericPopUp{2030402, 2, 5, 100, 1, 3, 100},  NumericPopUp{2030403, 2, 5, 50, 1, 3, 50},
    NumericPopUp{2030404, 2, 5, 25, 1, 3, 25},    NumericPopUp{2040105, 3, 0, 20, 1, 2, 20},
    NumericPopUp{2040106, 3, 0, 20, 1, 2, 10},
};
static_assert(numericPopUps.size() == 27);

}  // namespace corvane
