// Writing the memory channels: one burst of commands, without waiting for the transceiver. The channels last read are
// saved before they are overwritten.
#include <algorithm>

#include "memories/memory_backup.h"
#include "memories/memory_channels.h"
#include "memories/memory_commands.h"
#include "wire/cat_command.h"
#include "wire/operating_modes.h"

namespace corvane {

using namespace std::chrono_literals;

namespace {

constexpr auto pauseBeforeLast = 200ms;
constexpr auto writeInterval = 100ms;  // between two looks at how far a write has come
constexpr std::string_view closing = "VS1;MC002;";
constexpr std::string_view lastCommands = "VS0;MC001;";

// "M-14, M-20"
std::string channelsWithoutMode(const MemoryTable& channels) {
    std::string rows;
    for (std::size_t row = 0; row < channels.size(); ++row) {
        const MemoryChannel& channel = channels[row];
        if (!isProgrammed(channel) || (channel.mode.size() == 1 && modeName(channel.mode.front()))) continue;
        rows.append(rows.empty() ? "M-" : ", M-").append(zeroPadded(static_cast<int>(row) + 1, 2));
    }
    return rows;
}

std::string question(const MemoryTable& table, bool whole) {
    const auto written = std::ranges::count_if(table, isProgrammed);
    std::string text = "Write the memory channels to the transceiver?\n\n";
    text += std::to_string(written) + " will be written, " + std::to_string(memoryChannels - written) +
            " will be erased. Clarifier, tone and shift of every channel are reset.";
    if (const std::string rows = channelsWithoutMode(table); !rows.empty())
        text += "\n\nChoose a mode first for " + rows + ": without one the transceiver does not take a channel.";
    if (!whole)
        text +=
            "\n\nThe channels have not been read to the end. What has not been read will be erased and cannot be "
            "saved first.";
    return text;
}

}  // namespace

// The link or the channels may have changed before the operator confirms.
void MemoryChannels::askBeforeWriting() {
    const auto confirmed = [this, session = link_.session(), number = read_.number] {
        if (session == link_.session() && number == read_.number) return writeMemoriesToRadio();
        voice_.warn("Nothing was written: the link or the channels have changed meanwhile",
                    "Look at the channels and press Write memories again.");
    };
    const bool whole = read_.whole && read_.session == link_.session();
    around_.alerts.confirm(question(vqMemArray_, whole), "Write", tasks_.guarded(confirmed));
}

void MemoryChannels::writeMemoriesToRadio() {
    if (!saveBeforeWriting()) return;
    write_.emplace(++writeNumber_, link_.isOpen() ? link_.waitingBytes() : 0);
    const MemoryTable written = vqMemArray_;
    for (int row = 0; row < memoryChannels; ++row) {
        const MemoryChannel& channel = vqMemArray_[static_cast<std::size_t>(row)];
        std::string commands = memoryWriteCommand(row, channel);
        if (const auto tag = tagWriteCommand(row, channel)) commands += *tag;
        write_->addRow(commands.size());
        link_.sendCommand(commands);
    }
    write_->addRest(closing.size());
    link_.sendCommand(closing);
    tasks_.after(pauseBeforeLast, [this, number = writeNumber_, session = link_.session(), written] {
        if (session == link_.session()) {
            if (write_) write_->addRest(lastCommands.size());
            link_.sendCommand(lastCommands);
        }
        showChannels();
        watchWrite(number, written);
    });
}

// A whole table takes 1.2 s at 38400 baud. The write has succeeded when its last byte has left.
void MemoryChannels::watchWrite(unsigned number, const MemoryTable& written) {
    if (!write_ || write_->number() != number) return;  // it has ended, or another has begun behind it
    if (const std::size_t waiting = link_.waitingBytes(); link_.isOpen() && waiting > 0) {
        display_.memoryReadField.setStringValue(write_->progressText(waiting));
        return tasks_.after(writeInterval, [this, number, written] { watchWrite(number, written); });
    }
    write_.reset();
    if (link_.isOpen()) held_ = written;
    display_.announcements.say("The memory channels are written");
    showStatus();
    voice_.playSound("Seatbelts");
}

void MemoryChannels::endWriteEarly() {
    if (!write_) return;
    const MemoryWrite ended = *std::exchange(write_, std::nullopt);
    if (ended.rowsSent(link_.waitingBytes()) >= memoryChannels) return;
    display_.memoryReadField.setStringValue(ended.endedEarlyText(link_.waitingBytes()));
    display_.announcements.say(display_.memoryReadField.stringValue());
}

// Each file has a second of its own, so that none replaces another.
SavedFile MemoryChannels::saveAsRead() {
    const auto when = std::max(std::chrono::floor<std::chrono::seconds>(tasks_.now()),
                               std::chrono::floor<std::chrono::seconds>(savedAt_ + 1s));
    SavedFile file = around_.dataFolder.save(memoryBackupName(when), memoryTableCsv(read_.asRead));
    if (file.error.empty()) {
        read_.unsaved = false;
        saved_ = read_.asRead;
        savedAt_ = when;
    }
    return file;
}

// A whole read that no file holds, before another read or another session replaces it.
void MemoryChannels::saveBeforeReplacing() {
    if (!read_.wholeIsUnsaved() || read_.asRead == saved_) return;
    if (const SavedFile file = saveAsRead(); !file.error.empty())
        voice_.warn("The channels that were read before could not be saved", "To " + file.path + ": " + file.error);
}

void MemoryChannels::saveEdits() {
    if (vqMemArray_ == held_) return;
    const SavedFile file = around_.dataFolder.save(memoryEditsName(tasks_.now()), memoryCsv(vqMemArray_));
    if (!file.error.empty())
        return voice_.warn("Changes of memory channels that were not written could not be saved",
                           "To " + file.path + ": " + file.error);
    held_ = vqMemArray_;
    savedEdits_ = file.path;
    showWhereChannelsAreSaved();
    display_.announcements.say(display_.memoryBackupField.stringValue());
}

bool MemoryChannels::saveBeforeWriting() {
    forgetOtherSession();
    if (!read_.unsaved) return true;
    const SavedFile file = saveAsRead();
    if (!file.error.empty()) {
        voice_.warn("Nothing was written: the channels as last read could not be saved",
                    "To " + file.path + ": " + file.error);
        return false;
    }
    display_.memoryBackupField.setStringValue("The channels as they were are saved in " + file.path);
    return true;
}

void MemoryChannels::showWhereChannelsAreSaved() {
    if (!savedEdits_.empty())
        return display_.memoryBackupField.setStringValue("Changes that were not written are saved: Import takes " +
                                                         savedEdits_);
    display_.memoryBackupField.setStringValue("Before a write, the channels as last read are saved in " +
                                              around_.dataFolder.path() + "/memory-channels");
}

}  // namespace corvane
