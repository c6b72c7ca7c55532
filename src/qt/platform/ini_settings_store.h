// The user's settings in a file of plain text.
#pragma once

#include <QSettings>
#include <QString>
#include <QTimer>

#include "platform/settings_store.h"

namespace corvane {

// Keeps the settings in an ini file, one line per key: `defaultPort=ttyUSB0`. Text is read back unchanged, with leading
// zeros, commas and umlauts, also if empty. A change is on disk by the next turn of the event loop, or when the store
// ends if that is sooner. The file is replaced as a whole or not at all; if it cannot be written, changes last for this
// run only. A file that cannot be read, was cut off or is not a settings file is set aside as "corvane.conf.bad"
// (".bad2" if there is one) and the settings begin empty. problem() reports both cases.
class IniSettingsStore final : public SettingsStore {
public:
    explicit IniSettingsStore(const QString& path = defaultPath());

    // The user's own file, e.g. "~/.config/corvane/corvane.conf".
    static QString defaultPath();

    std::optional<std::string> text(std::string_view key) const override;
    int integer(std::string_view key) const override;
    void setText(std::string_view key, std::string_view value) override;
    void setInteger(std::string_view key, int value) override;
    std::string problem() const override { return problem_; }
    void writeNow();  // what is not on disk yet

private:
    std::string problem_;
    bool writeFailureTold_ = false;
    QSettings settings_;
    QTimer writeSoon_;
};

}  // namespace corvane
