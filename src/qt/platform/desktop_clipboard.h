// The clipboard of the desktop.
#pragma once

#include "platform/clipboard.h"

namespace corvane {

class DesktopClipboard final : public Clipboard {
public:
    void setText(std::string_view text) override;
};

}  // namespace corvane
