// Reading the memory channels. Each reply triggers the next request; nothing is sent on a timer.
#include "memories/memory_channels.h"

#include "display/table_columns.h"

namespace corvane {

using namespace std::chrono_literals;

namespace {

constexpr auto patience = 3s;  // longer than any transceiver takes for one reply

}  // namespace

MemoryChannels::MemoryChannels(Display& display, Link& link, Mirror& mirror, Voice& voice,
                               const Surroundings& surroundings)
    : display_(display),
      link_(link),
      mirror_(mirror),
      voice_(voice),
      around_(surroundings),
      tasks_(surroundings.scheduler) {
    showChannels();
    setKeysEnabled(false);
    display_.memoryReadField.setStringValue("Not read yet");
    showWhereChannelsAreSaved();
}

void MemoryChannels::setRows(const MemoryTable& rows) {
    vqMemArray_ = held_ = rows;
    display_.memoriesTable.reloadData();
}

void MemoryChannels::setKeysEnabled(bool enabled) {
    display_.readMemoriesButton.setEnabled(enabled);
    display_.writeMemoriesButton.setEnabled(enabled);
}

void MemoryChannels::startMemoryRead() {
    forgetOtherSession();
    saveBeforeReplacing();
    savedEdits_.clear();
    saveEdits();
    setRows({});
    readNote_ = {};
    ask(read_.begin(link_.session()));
    watchMemoryRead();
}

// What another session reported may be of another transceiver.
void MemoryChannels::forgetOtherSession() {
    if (read_.asReadSession == link_.session()) return;
    saveBeforeReplacing();
    read_.forget(link_.session());
}

void MemoryChannels::ask(const MemoryReadStep& step) {
    if (step.request.empty()) return;
    link_.send(step.request);
    showReadProgress();
}

std::string_view MemoryChannels::refusedReply() const {
    if (read_.vqMemRead == "run") return "MR304";
    return read_.vqTagRead == "run" ? "MT304" : "";
}

void MemoryChannels::takeMemoryReply(std::string_view response) {
    const MemoryReply reply = memoryReply(response);
    const MemoryReadStep step = read_.take(reply);
    if (step.inUse) return mirror_.takeMemoryInUse(response);
    if (step.row) vqMemArray_[*step.row] = held_[*step.row] = rowOf(reply);
    ask(step);
}

void MemoryChannels::takeTagReply(std::string_view response) {
    forgetOtherSession();
    const TagReply reply = tagReply(response);
    const bool unasked = read_.vqTagRead != "run";
    const MemoryReadStep step = read_.take(reply);
    if (step.row) vqMemArray_[*step.row].tag = held_[*step.row].tag = reply.tag;
    if (unasked && step.row) showChannels();
    ask(step);
    if (step.ended) finishMemoryRead();
}

void MemoryChannels::finishMemoryRead() {
    forgetSorting();
    showChannels();
    readNote_ = {};
    showReadProgress();
    showWhereChannelsAreSaved();
    voice_.playSound("Funk");
}

// Shows the channels in the table and in the memory pop-up, whose selection stays.
void MemoryChannels::showChannels() {
    display_.memoriesTable.reloadData();
    std::vector<std::string> titles;
    for (int row = 0; row < memoryChannels; ++row)
        titles.push_back(memoryPopUpTitle(row, vqMemArray_[static_cast<std::size_t>(row)]));
    const int chosen = display_.memPopUpButton.indexOfSelectedItem();
    display_.memPopUpButton.setEntries(std::move(titles));
    display_.memPopUpButton.selectItem(chosen);
}

void MemoryChannels::showStatus() {
    if (read_.number > 0) showReadProgress(read_.stalled ? ": no answer. Press Read memories to start again." : "");
}

void MemoryChannels::showReadProgress(std::string_view problem) {
    const MemoryReadProgress progress = read_.progress(vqMemArray_);
    display_.memoryReadProgress.setVisible(progress.running);
    display_.memoryReadProgress.setIntegerValue(progress.handled);
    display_.memoryReadField.setStringValue(progress.text + std::string(problem.empty() ? readNote_ : problem));
    if (!progress.running || !problem.empty()) display_.announcements.say(display_.memoryReadField.stringValue());
}

void MemoryChannels::forgetSorting() {
    for (const int column : {memoryFrequencyColumn, memoryTagColumn})
        display_.memoriesTable.setSortDescriptorPrototype(column, {});
}

// Tells the operator when the chain has stopped; it goes on if the reply still comes.
void MemoryChannels::watchMemoryRead() {
    tasks_.after(patience, [this, handled = read_.handled(), number = read_.number] {
        if (number != read_.number || !read_.running()) return;
        if (handled == read_.handled()) {
            read_.stalled = true;
            showStatus();
        }
        watchMemoryRead();
    });
}

void MemoryChannels::linkClosed() {
    if (read_.running()) {
        showReadProgress(": stopped, the link is closed.");
        forgetSorting();
    }
    readNote_ = {};
    read_.endEarly();
    display_.memoryReadProgress.setVisible(false);
    endWriteEarly();
}

bool MemoryChannels::rowsMayMove() {
    if (!read_.repliesAreComing()) return true;
    readNote_ = ". Rows can be moved and sorted once all have been read.";
    showReadProgress();
    return false;
}

// A late reply names a channel, whose row may have moved: it would fill the wrong row.
void MemoryChannels::prepareToMoveRows() {
    read_.rowsMove();
    if (!read_.stalled) return;
    read_.endEarly();
    display_.memoryReadProgress.setVisible(false);
    display_.memoryReadField.setStringValue(
        "Reading ended early: rows have changed. Press Read memories to start again.");
}

}  // namespace corvane
