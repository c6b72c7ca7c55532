#include "qt/platform/ini_settings_store.h"

#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QStringList>
#include <QVariant>
#include <algorithm>
#include <utility>

namespace corvane {

namespace {

QString fromText(std::string_view text) { return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())); }

// QSettings reads an unquoted `a, b` in a file edited by hand as a list.
QString asText(const QVariant& value) {
    if (value.typeId() == QMetaType::QStringList) return value.toStringList().join(QLatin1String(", "));
    return value.toString();
}

// A value, a section, a comment or nothing.
bool isSettingsLine(const QByteArray& line) {
    const QByteArray text = line.trimmed();
    return text.isEmpty() || text.contains('=') || (text.startsWith('[') && text.endsWith(']')) ||
           text.startsWith(';') || text.startsWith('#');
}

// What is wrong with a settings file, or nothing. An editor may leave out the last line end; a last line that is not a
// setting has been cut off.
QString faultIn(const QString& path) {
    QFile file(path);
    if (!file.exists()) return {};
    if (!file.open(QIODevice::ReadOnly)) return file.errorString();
    const QByteArray content = file.readAll();
    if (content.isEmpty()) return {};
    if (content.contains('\0') || !QUtf8StringView(content).isValidUtf8()) return QStringLiteral("it is not text");
    const QList<QByteArray> lines = content.split('\n');
    if (!isSettingsLine(lines.back())) return QStringLiteral("it is cut off");
    const bool settings = std::all_of(lines.begin(), lines.end(), isSettingsLine);
    return settings ? QString() : QStringLiteral("its lines are not settings");
}

QString freeName(const QString& path) {
    QString name = path + QLatin1String(".bad");
    for (int number = 2; QFileInfo::exists(name); ++number)
        name = path + QLatin1String(".bad") + QString::number(number);
    return name;
}

// Moves a bad settings file out of the way and returns the message about it, or nothing.
std::string setAsideIfBad(const QString& path) {
    const QString fault = faultIn(path);
    if (fault.isEmpty()) return {};
    const QString kept = freeName(path);
    const QString end = QFile::rename(path, kept)
                            ? QStringLiteral("The old file is kept as %1.").arg(QFileInfo(kept).fileName())
                            : QStringLiteral("It could not be moved away either; what you set lasts for this run.");
    return QStringLiteral("The settings in %1 could not be read (%2), so the program starts with its defaults. %3")
        .arg(path, fault, end)
        .toStdString();
}

}  // namespace

QString IniSettingsStore::defaultPath() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QLatin1String("/corvane/corvane.conf");
}

IniSettingsStore::IniSettingsStore(const QString& path)
    : problem_(setAsideIfBad(path)), settings_(faultIn(path).isEmpty() ? path : freeName(path), QSettings::IniFormat) {
    writeSoon_.setSingleShot(true);
    writeSoon_.setInterval(0);
    QObject::connect(&writeSoon_, &QTimer::timeout, &settings_, [this] { writeNow(); });
}

std::optional<std::string> IniSettingsStore::text(std::string_view key) const {
    const QString name = fromText(key);
    if (!settings_.contains(name)) return std::nullopt;
    return asText(settings_.value(name)).toStdString();
}

int IniSettingsStore::integer(std::string_view key) const { return asText(settings_.value(fromText(key))).toInt(); }

// A write failure is reported once; every change tries again.
void IniSettingsStore::writeNow() {
    settings_.sync();
    const bool failed = settings_.status() == QSettings::AccessError;
    if (!failed || std::exchange(writeFailureTold_, true)) return;
    problem_ = "The settings cannot be written to " + settings_.fileName().toStdString() +
               ": look for a full disk or a missing permission. What you set lasts for this run.";
    if (onProblem) onProblem();
}

void IniSettingsStore::setText(std::string_view key, std::string_view value) {
    settings_.setValue(fromText(key), fromText(value));
    writeSoon_.start();
}

void IniSettingsStore::setInteger(std::string_view key, int value) {
    settings_.setValue(fromText(key), value);
    writeSoon_.start();
}

}  // namespace corvane
