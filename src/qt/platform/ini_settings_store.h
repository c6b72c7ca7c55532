// The user's settings in a file of plain text.
#pragma once

#include <QSettings>
#include <QString>
#include <QTimer>

#include "platform/settings_store.h"

namespace corvane {

// Keeps the settings in an ini file, one line a key: `defaultPort=ttyUSB0`. Text comes back as it was given, leading
// zeros, commas, umlauts and empty text included. A change is on disk by the next turn of the event loop, at the latest
// when the store ends; a file is replaced as a whole, or stays as it was. One that cannot be written keeps the changes
// for this run only. A file that cannot be read, was cut off or holds something else is set aside as "corvane.conf.bad"
// (".bad2" if there is one) and the settings begin empty. problem() tells of both.
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

private:
    void write();

    std::string problem_;
    bool writeFailureTold_ = false;
    QSettings settings_;
    QTimer writeSoon_;
};

}  // namespace corvane
