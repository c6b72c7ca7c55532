// Settings that last as long as the test.
#pragma once

#include <map>

#include "platform/settings_store.h"
#include "tests/support/own_thread.h"
#include "wire/wire_text.h"

namespace corvane {

class MapSettingsStore final : public SettingsStore {
public:
    using Values = std::map<std::string, std::string, std::less<>>;

    std::optional<std::string> text(std::string_view key) const override {
        thread.check();
        const auto value = values.find(key);
        return value == values.end() ? std::nullopt : std::optional(value->second);
    }
    int integer(std::string_view key) const override { return decimalOrZero(text(key).value_or("")); }
    void setText(std::string_view key, std::string_view value) override {
        thread.check();
        values[std::string(key)] = value;
    }
    void setInteger(std::string_view key, int value) override { setText(key, std::to_string(value)); }

    Values values;
    OwnThread thread;
};

}  // namespace corvane
