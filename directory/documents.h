// The pages about the program, read from a folder once.
#pragma once

#include <filesystem>
#include <map>

#include "answer.h"

namespace corvane::directory {

// "/corvane/" is help.html and "/v/corvane/" product.html; beside each of them stands everything else of the folder
// that is a page, a style or a picture, so that they link to each other and to pictures as they do in the folder.
class Documents {
public:
    // A folder that is not there gives no documents.
    explicit Documents(const std::filesystem::path& folder);

    bool empty() const { return answers_.empty(); }
    // nullptr for a path that is none of theirs.
    const Answer* find(const std::string& path) const;

private:
    void add(const std::filesystem::path& file, const std::string& name);

    std::map<std::string, Answer> answers_;
};

}  // namespace corvane::directory
