#include "documents.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <iterator>

namespace corvane::directory {

namespace {

struct Kind {
    std::string_view extension;
    std::string_view contentType;
};

constexpr std::array kinds{
    Kind{".html", "text/html; charset=utf-8"},
    Kind{".css", "text/css; charset=utf-8"},
    Kind{".png", "image/png"},
};

struct Place {
    std::string_view prefix;
    std::string_view index;
};

constexpr std::array places{Place{"/corvane/", "help.html"}, Place{"/v/corvane/", "product.html"}};

Answer redirection(std::string_view path) {
    Answer answer = textAnswer(302, "See " + std::string(path));
    answer.headerName = "Location";
    answer.headerValue = path;
    return answer;
}

}  // namespace

Documents::Documents(const std::filesystem::path& folder) {
    std::error_code missing;
    for (const std::filesystem::path sub : {"", "pictures"})
        for (const auto& entry : std::filesystem::directory_iterator(folder / sub, missing))
            if (entry.is_regular_file()) add(entry.path(), (sub / entry.path().filename()).generic_string());
    if (answers_.empty()) return;
    for (const Place& place : places) {
        const std::string prefix(place.prefix);
        answers_.emplace(prefix.substr(0, prefix.size() - 1), redirection(prefix));
        if (const Answer* index = find(prefix + std::string(place.index))) answers_.emplace(prefix, *index);
    }
    answers_.emplace("/", redirection("/v/corvane/"));
}

void Documents::add(const std::filesystem::path& file, const std::string& name) {
    const auto* const kind = std::ranges::find(kinds, file.extension().string(), &Kind::extension);
    if (kind == kinds.end()) return;
    std::ifstream stream(file, std::ios::binary);
    const auto body =
        std::make_shared<const std::string>(std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>());
    for (const Place& place : places)
        answers_.emplace(std::string(place.prefix) + name, Answer{200, body, kind->contentType});
}

const Answer* Documents::find(const std::string& path) const {
    const auto found = answers_.find(path);
    return found == answers_.end() ? nullptr : &found->second;
}

}  // namespace corvane::directory
