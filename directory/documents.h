// The pages about the program, read once from a folder.
#pragma once

#include <filesystem>
#include <map>

#include "answer.h"

namespace corvane::directory {

// "/corvane/" is help.html and "/v/corvane/" product.html. All pages, styles and pictures of the folder are also served
// beside each of the two, so that their relative links work as in the folder.
class Documents {
public:
    // A missing folder gives no documents.
    explicit Documents(const std::filesystem::path& folder);

    bool empty() const { return answers_.empty(); }
    // nullptr for a path without a document.
    const Answer* find(const std::string& path) const;

private:
    void add(const std::filesystem::path& file, const std::string& name);

    std::map<std::string, Answer> answers_;
};

}  // namespace corvane::directory
