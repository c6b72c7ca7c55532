// The user's settings between runs: plain words as keys, text or whole numbers as values.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace corvane {

class SettingsStore {
public:
    virtual ~SettingsStore() = default;

    virtual std::optional<std::string> text(std::string_view key) const = 0;  // nothing when the key is absent
    virtual int integer(std::string_view key) const = 0;                      // 0 when absent or not a number
    virtual void setText(std::string_view key, std::string_view value) = 0;
    virtual void setInteger(std::string_view key, int value) = 0;

    // One line for the operator when the settings could not be read or stored; empty when all is well. `onProblem` is
    // called when it changes.
    virtual std::string problem() const { return {}; }
    std::function<void()> onProblem;
};

}  // namespace corvane
