// The 99 memory channels: their table, reading and writing them, editing their rows, and files of channels.
//
//   reading   the chain of request and reply            memories/memory_channels.cpp
//   writing   one burst of commands, after a backup    memories/memory_writing.cpp
//   edits     editing, moving and sorting rows          memories/memory_edits.cpp
//   files     export and import                         memories/memory_files.cpp
#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "display/display.h"
#include "interpret/mirror.h"
#include "memories/memory_channel.h"
#include "memories/memory_csv.h"
#include "memories/memory_read.h"
#include "memories/memory_write.h"
#include "platform/data_folder.h"
#include "platform/file_chooser.h"
#include "platform/tasks.h"
#include "radio/link.h"

namespace corvane {

class MemoryChannels {
public:
    // What the room uses of the system.
    struct Surroundings {
        Scheduler& scheduler;
        Alerts& alerts;
        DataFolder& dataFolder;
        FileChooser& files;
    };

    MemoryChannels(Display& display, Link& link, Mirror& mirror, Voice& voice, const Surroundings& surroundings);

    const MemoryTable& vqMemArray() const { return vqMemArray_; }
    // Reserved for tags by themselves, one blank each; the program uses those of the rows.
    const std::vector<std::string>& vqMemTagArray() const { return vqMemTagArray_; }
    const MemoryRead& read() const { return read_; }
    const std::string& tagOf(int row) const { return vqMemArray_.at(static_cast<std::size_t>(row)).tag; }

    // Puts these rows into the table, as if they had been read.
    void setRows(const MemoryTable& rows);
    // Saves the table in a file that Import takes, if it has changes that were not written to the transceiver.
    void saveEdits();
    void setKeysEnabled(bool enabled);  // the keys that read and write

    // --- reading
    void startMemoryRead();
    void takeMemoryReply(std::string_view response);  // "MR001014250000+000000210000"
    void takeTagReply(std::string_view response);     // "MT0011CALLING     "
    // The reply that an error response stands for while channels are read: "MR304" or "MT304", for a channel that does
    // not exist. Empty while no channels are read.
    std::string_view refusedReply() const;
    void linkClosed();

    // --- writing
    void askBeforeWriting();
    void writeMemoriesToRadio();

    // --- edits
    void textEdited(TextField& sender);  // the sender is in the edited cell
    void modeEdited(PopUpButton& sender);
    std::optional<int> acceptDrop(std::string_view plainText, int row);
    bool mouseDownInHeader(int column);

    // --- files
    void exportMemories(Button& sender);
    void importMemories(Button& sender);
    // Shows what a file would change; the operator chooses which changes to take.
    using TakeChannels = std::function<void(const std::vector<ImportedChannel>& chosen)>;
    std::function<void(MemoryImport import, const MemoryTable& shown, TakeChannels take)> onImport =
        [](const MemoryImport&, const MemoryTable&, const TakeChannels&) {};

private:
    void ask(const MemoryReadStep& step);
    void finishMemoryRead();
    void watchMemoryRead();
    void forgetOtherSession();
    void forgetSorting();  // the rows are in another order than a header says
    bool rowsMayMove();    // says so if they may not
    void prepareToMoveRows();
    void showChannels();
    void showStatus();  // of the last read
    void showReadProgress(std::string_view problem = {});

    void watchWrite(unsigned number, const MemoryTable& written);
    void endWriteEarly();
    SavedFile saveAsRead();
    void saveBeforeReplacing();
    bool saveBeforeWriting();
    void showWhereChannelsAreSaved();

    bool canTakeChannels() const;  // whether imported channels would stay: no read of this session is still to come
    void importFile(const std::string& path);
    void tell(std::string_view what, std::string_view why);
    void takeImportedChannels(const MemoryTable& shown, std::span<const ImportedChannel> channels);

    Display& display_;
    Link& link_;
    Mirror& mirror_;
    Voice& voice_;
    Surroundings around_;
    Tasks tasks_;
    MemoryTable vqMemArray_;
    MemoryTable held_;  // the table without the changes that would be lost: as it was read, written or saved
    const std::vector<std::string> vqMemTagArray_ = std::vector<std::string>(memoryChannels, " ");
    MemoryRead read_;
    std::string_view readNote_;                      // what the progress of the present read also says
    ChannelsAsRead saved_;                           // what the last file of saved channels holds
    std::chrono::system_clock::time_point savedAt_;  // the second in its name
    std::string savedEdits_;                         // the file with the changes that the present read replaces
    std::optional<MemoryWrite> write_;               // while one is on its way
    unsigned writeNumber_ = 0;
};

}  // namespace corvane
