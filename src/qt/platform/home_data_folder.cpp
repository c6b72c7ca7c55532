#include "qt/platform/home_data_folder.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>

namespace corvane {

QString HomeDataFolder::defaultPath() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QLatin1String("/corvane");
}

SavedFile HomeDataFolder::save(std::string_view name, std::string_view contents) {
    const QString path = path_ + '/' + QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
    SavedFile saved{path.toStdString(), {}};
    const QString folder = QFileInfo(path).path();
    if (!QDir().mkpath(folder)) {
        saved.error = "the folder " + folder.toStdString() + " cannot be made.";
        return saved;
    }
    QSaveFile file(path);
    const auto size = static_cast<qint64>(contents.size());
    const bool whole = file.open(QIODevice::WriteOnly) && file.write(contents.data(), size) == size && file.commit();
    if (!whole) saved.error = file.errorString().toStdString() + ".";
    return saved;
}

}  // namespace corvane
