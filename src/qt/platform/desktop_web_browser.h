// The web browser that the desktop prefers.
#pragma once

#include "platform/web_browser.h"

namespace corvane {

// Opens addresses of the schemes http and https only; anything else is dropped.
class DesktopWebBrowser final : public WebBrowser {
public:
    void open(std::string_view url) override;
};

}  // namespace corvane
