// The data folder in the user's home.
#pragma once

#include <QString>

#include "platform/data_folder.h"

namespace corvane {

class HomeDataFolder final : public DataFolder {
public:
    // $XDG_DATA_HOME/corvane, usually ~/.local/share/corvane.
    static QString defaultPath();

    explicit HomeDataFolder(QString path) : path_(std::move(path)) {}

    SavedFile save(std::string_view name, std::string_view contents) override;
    std::string path() const override { return path_.toStdString(); }

private:
    QString path_;
};

}  // namespace corvane
