// The desktop's own file dialogs.
#pragma once

#include "platform/file_chooser.h"

namespace corvane {

class DialogFileChooser final : public FileChooser {
public:
    void chooseNew(std::string_view title, std::string_view kind, std::string_view name, Chosen chosen) override;
    void chooseExisting(std::string_view title, std::string_view kind, Chosen chosen) override;
    SavedFile write(const std::string& path, std::string_view contents) override;
    OpenedFile read(const std::string& path, std::size_t limit) override;
};

}  // namespace corvane
