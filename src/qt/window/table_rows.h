// Adapts a table of the display to Qt's views: the rows that pass a filter. It stores no cells; the view asks for the
// visible ones when it paints them.
#pragma once

#include <QAbstractTableModel>
#include <QStringList>
#include <optional>
#include <vector>

#include "display/table_view.h"

namespace corvane {

class TableRows final : public QAbstractTableModel {
    Q_OBJECT

public:
    TableRows(TableView& table, QObject* parent);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QMimeData* mimeData(const QModelIndexList& indexes) const override;  // of the first one's row

    // An empty text cell for a row that is gone.
    TableCell cell(const QModelIndex& index) const;
    // What stands in a cell; hertz as on the display of the VFOs: "014253300" as "14.253.300".
    QString shownText(const QModelIndex& index) const;
    // The row of the table that is shown there, and whether the table still has it.
    int tableRow(const QModelIndex& index) const { return shown_[static_cast<std::size_t>(index.row())]; }
    bool exists(const QModelIndex& index) const;
    int allRows() const { return rows_; }

    // Shows only the rows whose texts contain all words of `text`; without words, every row.
    void setFilter(const QString& text);

    // Shows the present rows of the table, in their order. The current cell and an open editor follow the watched row
    // to its new place; if the row is gone, they stay where they are.
    void reload();
    void showHeaders();  // the direction of sorting has changed

    // The texts of the row that stay, by which it is found again.
    std::string rowText(int tableRow) const;
    // The row of the table with these texts; of several, the one at `near` comes first.
    std::optional<int> find(const std::string& rowText, int near) const;
    void watch(const QModelIndex& index);
    // Where the watched row is shown; -1: nowhere.
    int watchedRow() const;
    bool watchedIsThere() const { return watched_ && find(watched_->text, watched_->tableRow).has_value(); }

private:
    struct Watched {
        int tableRow;
        std::string text;
    };

    std::vector<int> filteredRows();
    bool passes(int tableRow);
    QString filterText(int tableRow) const;
    void show(std::vector<int> next, std::optional<int> watchedBefore, std::optional<int> watchedNow);

    TableView& table_;
    int rows_;
    std::vector<int> shown_;  // rows of the table, in the order shown; -1 for one about to be removed
    std::optional<Watched> watched_;
    QStringList words_;                 // without case
    std::vector<QString> filterTexts_;  // by row of the table, without case; made for the first filter
};

}  // namespace corvane
