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
    std::string error;  // why it could not be read, a sentence without its beginning; empty: it was
};

class FileChooser {
public:
    using Chosen = std::function<void(const std::string& path)>;

    virtual ~FileChooser() = default;

    // Both ask over the window and return at once; an operator who chooses none is not heard of again. `kind` names
    // the files and their endings: "Memory channels (*.csv)". `name` is suggested.
    virtual void chooseNew(std::string_view title, std::string_view kind, std::string_view name, Chosen chosen) = 0;
    virtual void chooseExisting(std::string_view title, std::string_view kind, Chosen chosen) = 0;

    // Writes a chosen file whole or not at all.
    virtual SavedFile write(const std::string& path, std::string_view contents) = 0;

    // Reads a chosen file; of one with more than `limit` bytes it gives limit + 1.
    virtual OpenedFile read(const std::string& path, std::size_t limit) = 0;
};

}  // namespace corvane
