// The band map: what is known about the bands on one picture, and going to any of it. The shell draws it; where things
// stand is decided by map_layout.h, what they say by map_texts.h.
#pragma once

#include <memory>
#include <optional>
#include <string_view>

#include "activity/spot_filter.h"
#include "activity/watching.h"
#include "band_map/map_entries.h"
#include "band_map/map_segments.h"
#include "controls/front_panel.h"
#include "feeds/lists.h"
#include "memories/auto_memories.h"
#include "memories/memory_channels.h"

namespace corvane {

class BandMap {
public:
    // What the map shows.
    struct Sources {
        const Lists& lists;
        const MemoryChannels& memories;
        const AutoMemories& autoMemories;
        const SpotFilter& filter;  // what of it the operator wants to see
        const Watching& watching;
    };

    BandMap(Display& display, Link& link, const Mirror& mirror, FrontPanel& frontPanel, const Sources& sources,
            Voice& voice, SettingsStore& settings, Scheduler& scheduler);

    // What there is to draw. Others are made when a list or a memory has changed, and every minute.
    const std::shared_ptr<const MapEntries>& entries();

    // What a side receives in hertz, as the header shows it; nothing before the first report. 'A' or 'B'.
    std::optional<long long> needle(char side) const;
    bool isActive(char side) const { return mirror_.state().vqAorB[0] == side; }
    // The band of the active side, or nothing outside all bands.
    std::optional<std::size_t> activeBand() const;

    // Each sends nothing while the port is closed, and says so in the map's line.
    void tune(const MapEntry& entry);  // as the Tune key of its row; a memory channel is recalled
    void tuneNear(long long hertz);    // the active VFO, rounded to the mode's step; the mode stays
    void step(int steps);              // the active VFO by so many of the mode's steps, down if negative
    void say(std::string_view line);   // in the map's line, with a word when the port is closed
    void sayWhatToDo();                // in the map's line while nothing is pointed at

    void readOutBand(Button& sender);                   // speaks what is newest on the active band
    void chooseClass(PopUpButton& sender);              // the operator's own class
    std::size_t ownClass() const { return ownClass_; }  // of licenceClasses, or classNotSet
    void restore();                                     // the operator's own class, from the last run

private:
    bool portIsOpen();

    Display& display_;
    Link& link_;
    const Mirror& mirror_;
    FrontPanel& frontPanel_;
    const Sources from_;
    Voice& voice_;
    SettingsStore& settings_;
    Tasks tasks_;
    std::shared_ptr<const MapEntries> entries_ = std::make_shared<const MapEntries>();
    long long madeFrom_ = -1;  // the versions of the lists, and the minute
    std::size_t ownClass_ = classNotSet;
};

}  // namespace corvane
