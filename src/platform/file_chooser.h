// Files that the operator chooses.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/data_folder.h"

namespace corvane {

struct OpenedFile {
    std::string path;
    std::string contents;
    std::string error;  // why it could not be read, as the end of a sentence; empty: it was
};

class FileChooser {
public:
    using Chosen = std::function<void(const std::string& path)>;

    virtual ~FileChooser() = default;

    // Both open a dialog over the window and return at once; `chosen` is called only if the operator chooses a file.
    // `kind` names the files and their endings: "Memory channels (*.csv)". `name` is the suggested file name.
    virtual void chooseNew(std::string_view title, std::string_view kind, std::string_view name, Chosen chosen) = 0;
    virtual void chooseExisting(std::string_view title, std::string_view kind, Chosen chosen) = 0;

    // Writes a chosen file whole or not at all.
    virtual SavedFile write(const std::string& path, std::string_view contents) = 0;

    // Reads a chosen file; if it has more than `limit` bytes, only the first limit + 1.
    virtual OpenedFile read(const std::string& path, std::size_t limit) = 0;
};

}  // namespace corvane
