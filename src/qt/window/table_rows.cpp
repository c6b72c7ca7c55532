#include "qt/window/table_rows.h"

#include <QMimeData>
#include <algorithm>

#include "qt/window/control_texts.h"

namespace corvane {

namespace {

Qt::Alignment alignmentOf(const TableColumn& column) {
    switch (column.alignment) {
        case TableColumn::Alignment::center:
            return Qt::AlignCenter;
        case TableColumn::Alignment::right:
            return Qt::AlignRight | Qt::AlignVCenter;
        default:
            return Qt::AlignLeft | Qt::AlignVCenter;
    }
}

QString arrowOf(SortDirection direction) {
    if (direction == SortDirection::unknown) return {};
    return direction == SortDirection::ascending ? QStringLiteral(" \u25b4") : QStringLiteral(" \u25be");
}

QString spokenDirection(SortDirection direction) {
    if (direction == SortDirection::unknown) return {};
    return direction == SortDirection::ascending ? QStringLiteral(", ascending") : QStringLiteral(", descending");
}

bool isButton(const TableCell& cell) { return std::holds_alternative<ButtonCell>(cell); }

QString howTo(const TableCell& cell) {
    if (std::holds_alternative<ButtonCell>(cell)) return QStringLiteral("Enter presses it.");
    if (std::holds_alternative<LinkCell>(cell)) return QStringLiteral("Enter opens it in the web browser.");
    if (std::holds_alternative<PopUpCell>(cell)) return QStringLiteral("Enter opens the menu.");
    if (std::holds_alternative<EditableCell>(cell)) return QStringLiteral("Enter edits it.");
    return {};
}

}  // namespace

TableRows::TableRows(TableView& table, QObject* parent)
    : QAbstractTableModel(parent), table_(table), rows_(table.rows()), shown_(table.rowOrder()) {}

int TableRows::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(shown_.size());
}

int TableRows::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(table_.columns().size());
}

// After a change of the list and before its reload, fewer rows may exist than are shown.
bool TableRows::exists(const QModelIndex& index) const {
    return index.isValid() && tableRow(index) >= 0 && tableRow(index) < table_.rows();
}

TableCell TableRows::cell(const QModelIndex& index) const {
    return exists(index) ? table_.view(tableRow(index), index.column()) : TableCell{};
}

QString TableRows::shownText(const QModelIndex& index) const {
    QString shown = QString::fromStdString(textOf(cell(index)));
    if (table_.column(index.column()).tells != TableColumn::Tells::hertz) return shown;
    bool isNumber = false;
    const int hertz = shown.toInt(&isNumber);
    if (!isNumber) return shown;
    shown = QString::number(hertz);
    for (qsizetype place = shown.size() - 3; place > 0; place -= 3) shown.insert(place, '.');
    return shown;
}

QVariant TableRows::data(const QModelIndex& index, int role) const {
    if (!exists(index)) return {};
    switch (role) {
        case Qt::DisplayRole:
        case Qt::EditRole:
            return shownText(index);
        case Qt::TextAlignmentRole:
            return QVariant::fromValue(alignmentOf(table_.column(index.column())));
        case Qt::AccessibleTextRole: {
            const QString title = toQString(table_.column(index.column()).title);
            const TableCell shown = cell(index);
            const QString spoken = QString::fromStdString(table_.spokenCell(tableRow(index), index.column()));
            return title.isEmpty() || isButton(shown) ? spoken : title + ", " + spoken;
        }
        case Qt::AccessibleDescriptionRole:
            return howTo(cell(index));
        default:
            return {};
    }
}

QVariant TableRows::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal) return {};
    const TableColumn& column = table_.column(section);
    const QString title = toQString(column.title);
    switch (role) {
        case Qt::DisplayRole:
            return title + arrowOf(table_.sortDirection(section));
        case Qt::AccessibleTextRole:
            return title + spokenDirection(table_.sortDirection(section));
        case Qt::ToolTipRole:
            return column.sorts ? QVariant(QStringLiteral("Press to sort, again to turn the order.")) : QVariant();
        case Qt::TextAlignmentRole:
            return QVariant::fromValue(alignmentOf(column));
        default:
            return {};
    }
}

Qt::ItemFlags TableRows::flags(const QModelIndex& index) const {
    if (!index.isValid()) return {};
    Qt::ItemFlags flags = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    if (table_.takesDraggedText()) flags |= Qt::ItemIsDragEnabled;
    if (table_.isEditable(index.column())) flags |= Qt::ItemIsEditable;
    return flags;
}

QMimeData* TableRows::mimeData(const QModelIndexList& indexes) const {
    auto* data = new QMimeData;
    if (!indexes.isEmpty()) data->setText(QString::fromStdString(TableView::pasteboardText(tableRow(indexes.front()))));
    return data;
}

std::string TableRows::rowText(int tableRow) const {
    std::string text;
    if (tableRow < 0 || tableRow >= table_.rows())
        return text;  // the row is gone, but the table has not been reloaded yet
    for (int column = 0; column < columnCount(); ++column)
        if (!table_.isButton(column) && !table_.column(column).changes)
            text.append(table_.cell(tableRow, column)).append("\n");
    return text;
}

// All that can be read in a row, without case.
QString TableRows::filterText(int tableRow) const {
    std::string text;
    for (int column = 0; column < columnCount(); ++column)
        if (!table_.isButton(column)) text.append(table_.cell(tableRow, column)).append("\n");
    return QString::fromStdString(text).toCaseFolded();
}

std::optional<int> TableRows::find(const std::string& text, int near) const {
    const int rows = table_.rows();
    if (near < rows && rowText(near) == text) return near;
    for (int row = 0; row < rows; ++row)
        if (rowText(row) == text) return row;
    return std::nullopt;
}

void TableRows::watch(const QModelIndex& index) {
    watched_.reset();
    if (exists(index)) watched_ = Watched{tableRow(index), rowText(tableRow(index))};
}

int TableRows::watchedRow() const {
    const auto found = watched_ ? find(watched_->text, watched_->tableRow) : std::nullopt;
    const auto place = found ? std::ranges::find(shown_, *found) : shown_.end();
    return place == shown_.end() ? -1 : static_cast<int>(place - shown_.begin());
}

bool TableRows::passes(int tableRow) {
    const QString& text = filterTexts_[static_cast<std::size_t>(tableRow)];
    return std::ranges::all_of(words_, [&text](const QString& word) { return text.contains(word); });
}

std::vector<int> TableRows::filteredRows() {
    std::vector<int> rows = table_.rowOrder();
    if (words_.isEmpty()) return rows;
    // Folding the case of every cell for each typed character would be slow.
    if (filterTexts_.empty()) {
        filterTexts_.reserve(static_cast<std::size_t>(rows_));
        for (int row = 0; row < rows_; ++row) filterTexts_.push_back(filterText(row));
    }
    std::erase_if(rows, [this](int row) { return !passes(row); });
    return rows;
}

void TableRows::setFilter(const QString& text) {
    words_ = text.toCaseFolded().simplified().split(' ', Qt::SkipEmptyParts);
    const std::optional<int> watched = watched_ ? std::optional(watched_->tableRow) : std::nullopt;
    show(filteredRows(), watched, watched);
}

void TableRows::reload() {
    rows_ = table_.rows();
    filterTexts_.clear();
    std::optional<int> before, now;
    if (watched_) {
        before = watched_->tableRow;
        now = find(watched_->text, watched_->tableRow).value_or(watched_->tableRow);
        watched_->tableRow = *now;
    }
    show(filteredRows(), before, now);
    showHeaders();
}

void TableRows::showHeaders() { emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1); }

// A change of layout keeps the editor, the current cell and the scroll position of a view; a reset would lose them.
// Rows are added and removed only at the end.
void TableRows::show(std::vector<int> next, std::optional<int> watchedBefore, std::optional<int> watchedNow) {
    const int before = rowCount();
    const int after = static_cast<int>(next.size());
    int from = -1, to = -1;
    for (int row = 0; row < before && watchedBefore && from < 0; ++row)
        if (shown_[static_cast<std::size_t>(row)] == *watchedBefore) from = row;
    if (watchedNow) {
        const auto found = std::ranges::find(next, *watchedNow);
        to = found == next.end() ? std::min(from, after - 1) : static_cast<int>(found - next.begin());
    }
    if (next == shown_ && from == to) {
        if (after > 0) emit dataChanged(index(0, 0), index(after - 1, columnCount() - 1));
        return;
    }
    if (after > before) {
        beginInsertRows({}, before, after - 1);
        shown_.resize(next.size(), -1);
        endInsertRows();
    }
    emit layoutAboutToBeChanged();
    next.resize(shown_.size(), -1);
    shown_ = std::move(next);
    const QModelIndexList kept = persistentIndexList();
    QModelIndexList places;
    for (const QModelIndex& cell : kept) {
        // Two kept cells must never become one, so what stood at `to` changes places with the watched row.
        const int row = cell.row() == from ? to : cell.row() == to ? from : cell.row();
        places.push_back(row < 0 || row >= after ? QModelIndex() : index(row, cell.column()));
    }
    changePersistentIndexList(kept, places);
    emit layoutChanged();
    if (after < before) {
        beginRemoveRows({}, after, before - 1);
        shown_.resize(static_cast<std::size_t>(after));
        endRemoveRows();
    }
}

}  // namespace corvane
