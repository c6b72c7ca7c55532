#include "qt/platform/ini_settings_store.h"

#include <QStandardPaths>
#include <QStringList>
#include <QVariant>

namespace corvane {

namespace {

QString fromText(std::string_view text) { return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())); }

// A file edited by hand may hold a bare `a, b`, which reads as a list.
QString asText(const QVariant& value) {
    if (value.typeId() == QMetaType::QStringList) return value.toStringList().join(QLatin1String(", "));
    return value.toString();
}

}  // namespace

QString IniSettingsStore::defaultPath() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QLatin1String("/corvane/corvane.conf");
}

IniSettingsStore::IniSettingsStore(const QString& path) : settings_(path, QSettings::IniFormat) {
    writeSoon_.setSingleShot(true);
    writeSoon_.setInterval(0);
    QObject::connect(&writeSoon_, &QTimer::timeout, &settings_, &QSettings::sync);
}

std::optional<std::string> IniSettingsStore::text(std::string_view key) const {
    const QString name = fromText(key);
    if (!settings_.contains(name)) return std::nullopt;
    return asText(settings_.value(name)).toStdString();
}

int IniSettingsStore::integer(std::string_view key) const { return asText(settings_.value(fromText(key))).toInt(); }

void IniSettingsStore::setText(std::string_view key, std::string_view value) {
    settings_.setValue(fromText(key), fromText(value));
    writeSoon_.start();
}

void IniSettingsStore::setInteger(std::string_view key, int value) {
    settings_.setValue(fromText(key), value);
    writeSoon_.start();
}

}  // namespace corvane
