// Files that are written whole or not at all.
#pragma once

#include <QString>

#include "platform/data_folder.h"

namespace corvane {

// Writes a file in an existing folder; a file of that name is replaced. The error is the system's own sentence.
SavedFile writeWhole(const QString& path, std::string_view contents);

}  // namespace corvane
