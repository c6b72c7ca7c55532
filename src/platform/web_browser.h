// The user's web browser.
#pragma once

#include <string_view>

namespace corvane {

class WebBrowser {
public:
    virtual ~WebBrowser() = default;
    virtual void open(
        std::string_view url) = 0;  // e.g. "https://example.org/corvane/"; without a browser nothing happens
};

}  // namespace corvane
