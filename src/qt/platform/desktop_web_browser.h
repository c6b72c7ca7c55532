// The web browser that the desktop prefers.
#pragma once

#include "platform/web_browser.h"

namespace corvane {

// Opens each webAddress, with what may not stand in one replaced by its code ("%20" for a blank); drops anything else.
class DesktopWebBrowser final : public WebBrowser {
public:
    void open(std::string_view url) override;
};

}  // namespace corvane
