#include "qt/window/table_widget.h"

#include <QAbstractTableModel>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QSortFilterProxyModel>
#include <QStyledItemDelegate>
#include <algorithm>

#include "qt/window/control_texts.h"
#include "qt/window/theme.h"

namespace corvane {

namespace {

constexpr int cellHeight = 27;

const TableColumn& columnOf(const TableView& table, int column) {
    return table.columns()[static_cast<std::size_t>(column)];
}

// Asks the table for what is in sight; keeps nothing.
class TableRows final : public QAbstractTableModel {
public:
    TableRows(TableView& table, QObject* parent) : QAbstractTableModel(parent), table_(table), rows_(table.rows()) {}

    int rowCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : rows_; }
    int columnCount(const QModelIndex& parent) const override {
        return parent.isValid() ? 0 : static_cast<int>(table_.columns().size());
    }
    QVariant data(const QModelIndex& index, int role) const override {
        // Between a change of the list and its reload there may be fewer rows than are shown.
        if (!index.isValid() || index.row() >= table_.rows()) return {};
        const TableColumn& column = columnOf(table_, index.column());
        if (role == Qt::DisplayRole) return QString::fromStdString(table_.cell(index.row(), index.column()));
        if (role == Qt::TextAlignmentRole)
            return QVariant::fromValue<Qt::Alignment>((column.numeric ? Qt::AlignRight : Qt::AlignLeft) |
                                                      Qt::AlignVCenter);
        if (role == Qt::AccessibleTextRole)
            return toQString(column.title) + ", " + QString::fromStdString(table_.cell(index.row(), index.column()));
        return {};
    }
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
        if (orientation != Qt::Horizontal) return {};
        const TableColumn& column = columnOf(table_, section);
        if (role == Qt::DisplayRole) return toQString(column.title);
        if (role == Qt::TextAlignmentRole)
            return QVariant::fromValue<Qt::Alignment>((column.numeric ? Qt::AlignRight : Qt::AlignLeft) |
                                                      Qt::AlignVCenter);
        return {};
    }

    // The rows in sight are asked for again; which one is chosen stays as long as their number does.
    void reload() {
        const int rows = table_.rows();
        if (rows != rows_) {
            beginResetModel();
            rows_ = rows;
            endResetModel();
        } else if (rows > 0) {
            emit dataChanged(index(0, 0), index(rows - 1, columnCount({}) - 1));
        }
    }

private:
    TableView& table_;
    int rows_;
};

}  // namespace

// The rows that pass the filter.
class FilteredRows final : public QSortFilterProxyModel {
public:
    FilteredRows(TableView& table, QObject* parent) : QSortFilterProxyModel(parent), table_(table), rows_(table, this) {
        setSourceModel(&rows_);
    }

    void setFilter(const QString& text) {
        words_ = text.simplified().split(' ', Qt::SkipEmptyParts);
        invalidateFilter();
    }
    void reload() { rows_.reload(); }

protected:
    bool filterAcceptsRow(int row, const QModelIndex&) const override {
        return std::ranges::all_of(words_, [&](const QString& word) { return contains(row, word); });
    }

private:
    bool contains(int row, const QString& word) const {
        for (int column = 0; column < rows_.columnCount({}); ++column) {
            const bool text = columnOf(table_, column).kind == TableColumn::Kind::text;
            if (text && rows_.index(row, column).data().toString().contains(word, Qt::CaseInsensitive)) return true;
        }
        return false;
    }

    TableView& table_;
    TableRows rows_;
    QStringList words_;
};

namespace {

// Paints the cells of a button column as keys.
class CellDelegate final : public QStyledItemDelegate {
public:
    CellDelegate(const TableView& table, QObject* parent) : QStyledItemDelegate(parent), table_(table) {}

    // Room at both ends, so that a number on the right does not touch the text that follows it.
    QString displayText(const QVariant& value, const QLocale&) const override {
        const QChar room(0x2002);
        return room + value.toString() + room;
    }
    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        if (columnOf(table_, index.column()).kind != TableColumn::Kind::button)
            return QStyledItemDelegate::paint(painter, option, index);
        const Theme& theme = Theme::current();
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        const bool focused = option.state.testFlag(QStyle::State_HasFocus);
        painter->setPen(QPen(focused ? theme.accent : theme.line, focused ? 2 : 1));
        painter->setBrush(option.state.testFlag(QStyle::State_MouseOver) ? theme.keyHover : theme.key);
        painter->drawRoundedRect(QRectF(option.rect).adjusted(3, 2.5, -3, -2.5), 5, 5);
        painter->setPen(theme.text);
        painter->drawText(option.rect, Qt::AlignCenter, index.data().toString());
        painter->restore();
    }

private:
    const TableView& table_;
};

}  // namespace

TableWidget::TableWidget(TableView& model, ChangeQueue& queue, QWidget* parent)
    : QTableView(parent), model_(model), shown_(new FilteredRows(model, this)), shownVersion_(model.version()) {
    describe(*this, model);
    setModel(shown_);
    setItemDelegate(new CellDelegate(model, this));
    setSelectionBehavior(QAbstractItemView::SelectItems);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setTabKeyNavigation(false);
    setShowGrid(false);
    setAlternatingRowColors(true);
    setMouseTracking(true);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(cellHeight);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsClickable(false);
    horizontalHeader()->setStretchLastSection(true);
    const QFontMetrics metrics(font());
    for (int column = 0; column < static_cast<int>(model.columns().size()); ++column) {
        const TableColumn& shown = columnOf(model, column);
        const int title = metrics.horizontalAdvance(toQString(shown.title));
        setColumnWidth(column, std::max(shown.width * metrics.averageCharWidth(), title) + 7 * gridStep);
    }
    connect(this, &QTableView::clicked, this, [this](const QModelIndex& cell) { pressCell(cell); });
    model.addView(queue, [this] { reload(); });
}

// The keyboard stays where it was as far as there are rows, also across an empty table.
void TableWidget::reload() {
    if (currentIndex().isValid()) place_ = {currentIndex().row(), currentIndex().column()};
    shown_->reload();
    shownVersion_ = model_.version();
    if (!currentIndex().isValid() && place_ && shownRows() > 0) {
        const QModelIndex cell = shown_->index(std::min(place_->first, shownRows() - 1), place_->second);
        selectionModel()->setCurrentIndex(cell, QItemSelectionModel::ClearAndSelect);
    }
    emit rowsChanged();
}

void TableWidget::setFilter(const QString& text) {
    shown_->setFilter(text);
    emit rowsChanged();
}

int TableWidget::shownRows() const { return shown_->rowCount({}); }
int TableWidget::allRows() const { return shown_->sourceModel()->rowCount({}); }

void TableWidget::pressCell(const QModelIndex& cell) {
    // What is pressed is what is shown: rows that have changed since are other stations.
    if (model_.version() != shownVersion_) return;
    if (cell.isValid() && columnOf(model_, cell.column()).kind == TableColumn::Kind::button)
        model_.pressCell(shown_->mapToSource(cell).row(), cell.column());
}

void TableWidget::keyPressEvent(QKeyEvent* event) {
    const bool presses =
        event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Space;
    if (!presses) return QTableView::keyPressEvent(event);
    if (!event->isAutoRepeat()) pressCell(currentIndex());
}

}  // namespace corvane
