// Shows what a file of memory channels would change; the operator accepts it or not.
#pragma once

#include <QDialog>
#include <functional>
#include <vector>

#include "memories/memory_csv.h"

class QLabel;
class QPushButton;
class QTableWidget;

namespace corvane {

class MemoryImportPreview : public QDialog {
    Q_OBJECT

public:
    // Lists the channels that differ from those in `table`, each with a tick, and the lines that are refused.
    MemoryImportPreview(MemoryImport import, const MemoryTable& table, QWidget* parent);

    // Shows one over `window`; `take` is called with the ticked channels if the operator takes them.
    static void open(MemoryImport import, const MemoryTable& table, QWidget* window,
                     std::function<void(const std::vector<ImportedChannel>&)> take);

    // The channels that are ticked.
    std::vector<ImportedChannel> chosen() const;

private:
    QTableWidget* makeChanges(const MemoryTable& table);
    QTableWidget* makeRefused();
    QLabel* makeSummary() const;
    void showChoice();

    MemoryImport import_;
    std::size_t unchanged_ = 0;
    std::vector<ImportedChannel> changes_;  // by row of the table that lists them
    QTableWidget* table_;
    QPushButton* take_;
};

}  // namespace corvane
