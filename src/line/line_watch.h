// The panel with the traffic: pausing, filtering, clearing, copying and saving it, and the report with it.
#pragma once

#include <functional>

#include "display/display.h"
#include "line/line_view.h"
#include "line/program_facts.h"
#include "platform/alerts.h"
#include "platform/clipboard.h"
#include "platform/file_chooser.h"
#include "platform/settings_store.h"
#include "platform/tasks.h"
#include "radio/link.h"

namespace corvane {

class LineWatch {
public:
    struct Surroundings {
        Clipboard& clipboard;
        FileChooser& files;
        Alerts& alerts;
        SettingsStore& settings;
        Scheduler& scheduler;
    };

    LineWatch(Display& display, Link& link, const Surroundings& surroundings);

    std::function<ProgramFacts()> facts = [] { return ProgramFacts(); };  // the window knows them
    std::function<void()> onChoice = [] {};  // the operator has chosen what is shown: look at once

    // For who looks: what is new, and the count of lines. Nothing is done while nobody calls it.
    LineView::Change look();
    const LineView& view() const { return view_; }

    void filter(TextField& sender);
    void hideMeter(MenuItem& sender);
    void pause(Button& sender);  // or go on
    void clear(Button& sender);
    void copy(Button& sender);        // the lines that are shown
    void save(Button& sender);        // the same, to a file
    void saveReport(Button& sender);  // also while no port is open

private:
    std::string shownLines();
    void showCount();
    void saveText(std::string_view what, std::string_view name, std::string text);

    Display& display_;
    Link& link_;
    Surroundings around_;
    Tasks tasks_;
    LineView view_;
};

}  // namespace corvane
