#include "qt/window/memory_files.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QSaveFile>
#include <algorithm>

#include "memories/memory_commands.h"
#include "memories/memory_csv.h"
#include "qt/window/control_texts.h"
#include "qt/window/memory_import_preview.h"

namespace corvane {

namespace {

constexpr auto filter = "Memory channels (*.csv);;All files (*)";
constexpr qint64 largestFile = 1024 * 1024;  // bytes; 99 channels take about 10,000

void tell(QWidget& window, const QString& what, const QString& why) {
    auto* box = new QMessageBox(QMessageBox::Warning, QApplication::applicationDisplayName(), what + "\n\n" + why,
                                QMessageBox::Ok, &window);
    box->setTextFormat(Qt::PlainText);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

QFileDialog* fileDialog(QWidget& window, const QString& title) {
    auto* dialog = new QFileDialog(&window, title);
    dialog->setNameFilters(QString(filter).split(";;"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    return dialog;
}

void save(QWidget& window, const QString& path, const std::string& contents) {
    QSaveFile file(path);
    const auto size = static_cast<qint64>(contents.size());
    if (file.open(QIODevice::WriteOnly) && file.write(contents.data(), size) == size && file.commit()) return;
    tell(window, "The memory channels were not exported", path + ": " + file.errorString() + ".");
}

void exportMemories(QWidget& window, SerialPortDemoController& controller) {
    if (std::ranges::none_of(controller.memories.vqMemArray, isProgrammed))
        return tell(window, "There is nothing to export", "No memory channel is programmed. Read memories first.");
    auto* dialog = fileDialog(window, "Export memory channels");
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix("csv");
    dialog->selectFile("memory-channels.csv");
    QObject::connect(dialog, &QFileDialog::fileSelected, &window, [&window, &controller](const QString& path) {
        save(window, path, memoryCsv(controller.memories.vqMemArray));
    });
    dialog->open();
}

void preview(QWidget& window, SerialPortDemoController& controller, MemoryImport import) {
    const MemoryTable shown = controller.memories.vqMemArray;
    auto* dialog = new MemoryImportPreview(std::move(import), shown, &window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(dialog, &QDialog::accepted, &window,
                     [dialog, &controller, shown] { controller.takeImportedChannels(shown, dialog->chosen()); });
    dialog->open();
}

void importFile(QWidget& window, SerialPortDemoController& controller, const QString& path) {
    const QString what = "No memory channels were imported";
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return tell(window, what, path + ": " + file.errorString() + ".");
    const QByteArray bytes = file.read(largestFile + 1);
    if (file.error() != QFile::NoError) return tell(window, what, path + ": " + file.errorString() + ".");
    if (bytes.size() > largestFile)
        return tell(window, what, path + ": a file of more than 1 MiB holds something else.");
    MemoryImport import = readMemoryCsv({bytes.data(), static_cast<std::size_t>(bytes.size())});
    if (!import.problem.empty()) return tell(window, what, path + ": " + toQString(import.problem));
    preview(window, controller, std::move(import));
}

void importMemories(QWidget& window, SerialPortDemoController& controller) {
    if (!controller.canTakeChannels())
        return tell(window, "The memory channels have not been read yet",
                    "Connect, and import a file when reading has ended: it would replace what is imported before.");
    auto* dialog = fileDialog(window, "Import memory channels");
    dialog->setFileMode(QFileDialog::ExistingFile);
    QObject::connect(dialog, &QFileDialog::fileSelected, &window,
                     [&window, &controller](const QString& path) { importFile(window, controller, path); });
    dialog->open();
}

}  // namespace

void bindMemoryFiles(QWidget& window, SerialPortDemoController& controller) {
    Display& display = controller.display;
    display.exportMemoriesButton.action = [&](Button&) { exportMemories(window, controller); };
    display.importMemoriesButton.action = [&](Button&) { importMemories(window, controller); };
}

}  // namespace corvane
