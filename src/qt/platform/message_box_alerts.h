// Boxes over the active window.
#pragma once

#include "platform/alerts.h"

namespace corvane {

class MessageBoxAlerts final : public Alerts {
public:
    void warn(std::string_view text) override;
    void confirm(std::string_view text, std::string_view verb, std::function<void()> confirmed) override;
};

}  // namespace corvane
