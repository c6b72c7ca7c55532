// The answer to a request.
#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace corvane::directory {

// How long a request waits for the database.
inline constexpr std::chrono::milliseconds answerPatience{2000};

inline constexpr std::string_view plainText = "text/plain; charset=utf-8";

struct Answer {
    int status = 200;
    std::shared_ptr<const std::string> body;  // shared by all answers with the same body
    std::string_view contentType = plainText;
    std::string headerName{};  // one more header, if any
    std::string headerValue{};
};

inline Answer textAnswer(int status, std::string text) {
    return {status, std::make_shared<const std::string>(std::move(text) + '\n')};
}

// Called once, from any thread.
using Reply = std::function<void(Answer answer)>;

}  // namespace corvane::directory
