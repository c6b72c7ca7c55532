// Writing the memory channels, as a value: how many bytes each row takes on the line, and so how far a write has come.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace corvane {

class MemoryWrite {
public:
    // Every write has a number of its own. `before` bytes of an earlier one still wait.
    MemoryWrite(unsigned number, std::size_t before) : number_(number), all_(before) {}

    unsigned number() const { return number_; }
    void addRow(std::size_t bytes);                     // in order, from the first row
    void addRest(std::size_t bytes) { all_ += bytes; }  // what is sent after the rows

    // The rows that have left, with so many of all bytes still to go.
    int rowsSent(std::size_t waiting) const;
    // "Writing channel 57 of 99", "Writing ended early: 56 of 99 channels were sent. ..."
    std::string progressText(std::size_t waiting) const;
    std::string endedEarlyText(std::size_t neverSent) const;

private:
    unsigned number_;
    std::vector<std::size_t> rowEnds_;  // by row: the bytes up to its end
    std::size_t all_;
};

}  // namespace corvane
