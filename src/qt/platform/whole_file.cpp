#include "qt/platform/whole_file.h"

#include <QSaveFile>

namespace corvane {

SavedFile writeWhole(const QString& path, std::string_view contents) {
    QSaveFile file(path);
    const auto size = static_cast<qint64>(contents.size());
    // commit() does not notice when the disk has no room for what waits in the buffer; flush() does.
    const bool whole =
        file.open(QIODevice::WriteOnly) && file.write(contents.data(), size) == size && file.flush() && file.commit();
    return {path.toStdString(), whole ? std::string() : file.errorString().toStdString() + "."};
}

}  // namespace corvane
