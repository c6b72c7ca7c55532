// The one adaptor between a table of the display and the toolkit's views: the rows that pass a filter. It keeps no
// cell; what is in sight is asked for as it is painted.
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
    // The row of the table that is shown there, and whether the table still has it.
    int tableRow(const QModelIndex& index) const { return shown_[static_cast<std::size_t>(index.row())]; }
    bool exists(const QModelIndex& index) const;
    int allRows() const { return rows_; }

    // Only rows that contain all the words of `text` in cells that are read are shown; no words show every row.
    void setFilter(const QString& text);

    // Takes over what the table has now. What belongs to the watched row, an open editor for one, follows it to where
    // it stands then, and stays in its place when it is gone.
    void reload();
    void showHeaders();  // the direction of sorting has changed

    // What is read in the row, by which it is found again.
    std::string rowText(int tableRow) const;
    // The row of the table that reads so, the one at `near` if it does.
    std::optional<int> find(const std::string& rowText, int near) const;
    void watch(const QModelIndex& index);
    bool watchedIsThere() const { return watched_ && find(watched_->text, watched_->tableRow).has_value(); }

private:
    struct Watched {
        int tableRow;
        std::string text;
    };

    std::vector<int> filteredRows();
    bool passes(int tableRow);
    void show(std::vector<int> next, std::optional<int> watchedBefore, std::optional<int> watchedNow);

    TableView& table_;
    int rows_;
    std::vector<int> shown_;  // rows of the table, in their order; -1 for one that is about to go
    std::optional<Watched> watched_;
    QStringList words_;                 // folded
    std::vector<QString> filterTexts_;  // by row of the table, folded; empty until a filter asks
};

}  // namespace corvane
