// The folder in which the program saves files for the user to read.
#pragma once

#include <string>
#include <string_view>

namespace corvane {

struct SavedFile {
    std::string path;   // where it is saved, or would have been
    std::string error;  // why it could not be saved, as the end of a sentence; empty: it is saved
};

class DataFolder {
public:
    virtual ~DataFolder() = default;

    // Saves a file whole or not at all; `name` is relative, "memory-channels/2026-11-23T140312Z.csv", and folders are
    // made as needed. A file of that name is replaced.
    virtual SavedFile save(std::string_view name, std::string_view contents) = 0;

    virtual std::string path() const = 0;
};

}  // namespace corvane
