// The user's web browser.
#pragma once

#include <string_view>

namespace corvane {

class WebBrowser {
public:
    virtual ~WebBrowser() = default;
    // Opens e.g. "https://example.org/corvane/"; without a browser nothing happens.
    virtual void open(std::string_view url) = 0;
};

}  // namespace corvane
