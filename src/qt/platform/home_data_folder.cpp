#include "qt/platform/home_data_folder.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include "qt/platform/whole_file.h"

namespace corvane {

QString HomeDataFolder::defaultPath() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QLatin1String("/corvane");
}

SavedFile HomeDataFolder::save(std::string_view name, std::string_view contents) {
    const QString path = path_ + '/' + QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
    const QString folder = QFileInfo(path).path();
    if (!QDir().mkpath(folder)) return {path.toStdString(), "the folder " + folder.toStdString() + " cannot be made."};
    return writeWhole(path, contents);
}

}  // namespace corvane
