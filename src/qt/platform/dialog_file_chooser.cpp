#include "qt/platform/dialog_file_chooser.h"

#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <utility>

#include "qt/platform/parent_window.h"
#include "qt/platform/whole_file.h"

namespace corvane {

namespace {

QString text(std::string_view text) { return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())); }

// Deletes itself when it is answered or the window is deleted.
QFileDialog* fileDialog(std::string_view title, std::string_view kind, FileChooser::Chosen chosen) {
    auto* dialog = new QFileDialog(parentWindow(), text(title));
    dialog->setNameFilters({text(kind), "All files (*)"});
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    // Once the dialog has been closed: a message about the file would open over it, and go with it.
    QObject::connect(
        dialog, &QFileDialog::fileSelected, dialog,
        [tell = std::move(chosen)](const QString& path) { tell(path.toStdString()); }, Qt::QueuedConnection);
    return dialog;
}

}  // namespace

void DialogFileChooser::chooseNew(std::string_view title, std::string_view kind, std::string_view name, Chosen chosen) {
    QFileDialog* dialog = fileDialog(title, kind, std::move(chosen));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(QFileInfo(text(name)).suffix());
    dialog->selectFile(text(name));
    dialog->open();
}

void DialogFileChooser::chooseExisting(std::string_view title, std::string_view kind, Chosen chosen) {
    QFileDialog* dialog = fileDialog(title, kind, std::move(chosen));
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->open();
}

SavedFile DialogFileChooser::write(const std::string& path, std::string_view contents) {
    return writeWhole(QString::fromStdString(path), contents);
}

OpenedFile DialogFileChooser::read(const std::string& path, std::size_t limit) {
    QFile file(QString::fromStdString(path));
    OpenedFile opened{path, {}, {}};
    if (file.open(QIODevice::ReadOnly)) opened.contents = file.read(static_cast<qint64>(limit) + 1).toStdString();
    if (file.error() != QFile::NoError) opened.error = file.errorString().toStdString() + ".";
    return opened;
}

}  // namespace corvane
