#include "qt/window/table_widget.h"

#include <QAccessible>
#include <QApplication>
#include <QContextMenuEvent>
#include <QDrag>
#include <QHeaderView>
#include <QMenu>
#include <QMimeData>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>

#include "qt/window/cell_delegate.h"
#include "qt/window/control_texts.h"
#include "qt/window/table_rows.h"
#include "qt/window/theme.h"

namespace corvane {

namespace {

template <class Cell>
bool is(const TableCell& cell) {
    return std::holds_alternative<Cell>(cell);
}

QString withoutMnemonic(QString text) { return text.replace('&', "&&"); }

}  // namespace

TableWidget::TableWidget(TableView& model, ChangeQueue& queue, QWidget* parent)
    : QTableView(parent),
      model_(model),
      rows_(new TableRows(model, this)),
      delegate_(new CellDelegate(model, *rows_, this)),
      shownVersion_(model.version()) {
    describe(*this, model);
    setModel(rows_);
    setItemDelegate(delegate_);
    setSelectionBehavior(QAbstractItemView::SelectItems);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::DoubleClicked);
    setTabKeyNavigation(false);
    setShowGrid(false);
    setAlternatingRowColors(true);
    setMouseTracking(true);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setDropIndicatorShown(false);
    setUpHeaders();
    connect(this, &QTableView::clicked, this, [this](const QModelIndex& cell) {
        const TableCell shown = rows_->cell(cell);
        const bool linkMissed =
            is<LinkCell>(shown) && !delegate_->linkRect(visualRect(cell), font(), cell).contains(released_);
        if (!is<EditableCell>(shown) && !linkMissed) act(cell);
    });
    view_ = model.addView(queue, [this] { reload(); });
    reload();
}

void TableWidget::setUpHeaders() {
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setMinimumSectionSize(TableView::rowHeight);
    verticalHeader()->setDefaultSectionSize(TableView::rowHeight);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsClickable(std::ranges::any_of(model_.columns(), &TableColumn::sorts));
    horizontalHeader()->setMinimumSectionSize(0);
    connect(horizontalHeader(), &QHeaderView::sectionClicked, this, [this](int column) {
        if (model_.column(column).sorts) sortBy(column);
    });
    const QFontMetrics metrics(font());
    for (int column = 0; column < rows_->columnCount(); ++column) {
        const TableColumn& shown = model_.column(column);
        const int title = metrics.horizontalAdvance(toQString(shown.title));
        const int room = shown.title.empty() ? 4 * gridStep : 7 * gridStep;
        setColumnWidth(column, std::max(shown.width * metrics.averageCharWidth(), title) + room);
    }
    // The last column takes the spare room, or the widest one if the last holds keys or numbers.
    const auto columns = model_.columns();
    const bool last = columns.back().alignment == TableColumn::Alignment::left;
    const auto longest = last ? columns.end() - 1 : std::ranges::max_element(columns, {}, &TableColumn::width);
    stretched_ = static_cast<int>(longest - columns.begin());
    leastStretched_ = std::min(columnWidth(stretched_), 12 * metrics.averageCharWidth() + 7 * gridStep);
}

// Where the columns have no room beside each other, the table scrolls.
void TableWidget::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    int others = 0;
    for (int column = 0; column < rows_->columnCount(); ++column)
        others += column == stretched_ ? 0 : columnWidth(column);
    const bool fits = others + leastStretched_ <= viewport()->width();
    horizontalHeader()->setSectionResizeMode(stretched_, fits ? QHeaderView::Stretch : QHeaderView::Fixed);
    if (!fits) setColumnWidth(stretched_, leastStretched_);
}

// Keeps the place: the current row, also if the table was empty for a while or the row stands elsewhere now, and what
// is in sight.
void TableWidget::reload() {
    if (currentIndex().isValid()) place_ = {currentIndex().row(), currentIndex().column()};
    if (shownRows() > 0) scrolled_ = verticalScrollBar()->value();
    if (state() == EditingState && !rows_->watchedIsThere()) abandonEditing();
    const bool wasEmpty = shownRows() == 0;
    rows_->reload();
    shownVersion_ = model_.version();
    if (!currentIndex().isValid() && place_ && shownRows() > 0) {
        const int found = rows_->watchedRow();
        const int row = found >= 0 ? found : std::min(place_->first, shownRows() - 1);
        selectionModel()->setCurrentIndex(rows_->index(row, place_->second), QItemSelectionModel::ClearAndSelect);
    }
    if (wasEmpty && shownRows() > 0) {
        updateGeometries();  // or the scroll bar has no room yet
        verticalScrollBar()->setValue(scrolled_);
    }
    if (currentIndex().isValid() || (shownRows() > 0 && !left_.isValid())) rows_->watch(currentIndex());
    setDragEnabled(model_.takesDraggedText());
    setAcceptDrops(model_.takesDraggedText());
    setAccessibleDescription(shownRows() == 0 ? emptyText() : toolTip());
    emit rowsChanged();
}

void TableWidget::setFilter(const QString& text) {
    rows_->setFilter(text);
    emit rowsChanged();
}

void TableWidget::askForRows(int rows) {
    setMinimumHeight(horizontalHeader()->sizeHint().height() + rows * TableView::rowHeight + 2 * frameWidth());
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::MinimumExpanding);
}

QSize TableWidget::sizeHint() const {
    const QSize usual = QTableView::sizeHint();
    return minimumHeight() > 0 ? QSize(usual.width(), minimumHeight()) : usual;
}

int TableWidget::shownRows() const { return rows_->rowCount(); }
int TableWidget::allRows() const { return rows_->allRows(); }

void TableWidget::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    if (hasFocus())
        QTableView::currentChanged(current, previous);
    else
        QAbstractItemView::currentChanged(current, previous);
    if (current.isValid()) rows_->watch(current);
}

void TableWidget::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    if (hasFocus()) return QTableView::selectionChanged(selected, deselected);
    QAbstractItemView::selectionChanged(selected, deselected);
}

// The mouse presses a cell of its own: going to another one first would scroll the pressed one away from under it.
void TableWidget::focusInEvent(QFocusEvent* event) {
    const bool goes = event->reason() != Qt::MouseFocusReason && !currentIndex().isValid();
    if (goes && left_.isValid()) selectionModel()->setCurrentIndex(left_, QItemSelectionModel::NoUpdate);
    // A row is known by its call or name, which no table has in its first column.
    if (goes && !currentIndex().isValid() && shownRows() > 0)
        selectionModel()->setCurrentIndex(rows_->index(0, model_.tellingColumn()), QItemSelectionModel::NoUpdate);
    QTableView::focusInEvent(event);
    // Qt itself tells of the table, after this event.
    QMetaObject::invokeMethod(this, &TableWidget::tellCurrentCell, Qt::QueuedConnection);
}

void TableWidget::focusOutEvent(QFocusEvent* event) {
    QTableView::focusOutEvent(event);
    const bool comesBack = event->reason() == Qt::PopupFocusReason || event->reason() == Qt::ActiveWindowFocusReason;
    if (!comesBack) leaveCell();
}

void TableWidget::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) {
    QTableView::closeEditor(editor, hint);
    leaveCell();
}

// Unless the keyboard is in the table or its editor.
void TableWidget::leaveCell() {
    const QWidget* focused = QApplication::focusWidget();
    if (hasFocus() || (focused && isAncestorOf(focused)) || !currentIndex().isValid()) return;
    left_ = currentIndex();
    place_.reset();
    selectionModel()->setCurrentIndex({}, QItemSelectionModel::NoUpdate);
}

void TableWidget::tellCurrentCell() {
    if (!QAccessible::isActive() || !hasFocus() || !rows_->exists(currentIndex())) return;
    QAccessibleInterface* table = QAccessible::queryAccessibleInterface(this);
    if (!table || !table->tableInterface()) return;
    QAccessibleInterface* cell = table->tableInterface()->cellAt(currentIndex().row(), currentIndex().column());
    if (!cell) return;
    QAccessibleEvent focus(cell, QAccessible::Focus);
    QAccessible::updateAccessibility(&focus);
}

void TableWidget::act(const QModelIndex& cell) {
    const TableCell shown = rows_->cell(cell);
    if (is<ButtonCell>(shown) || is<LinkCell>(shown)) return pressCell(cell);
    if (is<PopUpCell>(shown)) return openPopUp(cell);
    if (is<EditableCell>(shown)) edit(cell);
}

void TableWidget::pressCell(const QModelIndex& cell) {
    // If the rows have changed since they were painted, this cell may be another station by now.
    if (rows_->exists(cell) && model_.version() == shownVersion_)
        model_.pressCell(rows_->tableRow(cell), cell.column());
}

// The table may change while the menu is open: the choice is for the row for which it was opened.
void TableWidget::openPopUp(const QModelIndex& cell) {
    const TableCell shown = rows_->cell(cell);
    const auto* popUp = std::get_if<PopUpCell>(&shown);
    if (!popUp) return;
    const int tableRow = rows_->tableRow(cell);
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (const Control* control = model_.cellControl(cell.column())) describe(*menu, *control);
    for (int entry = 0; entry < popUp->entries->size(); ++entry) {
        const auto choose = [this, tableRow, text = rows_->rowText(tableRow), column = cell.column(), entry] {
            if (const auto row = rows_->find(text, tableRow)) model_.chooseInCell(*row, column, entry);
            rows_->watch(currentIndex());
            viewport()->update();
        };
        auto* action =
            menu->addAction(withoutMnemonic(QString::fromStdString(popUp->entries->at(entry))), this, choose);
        action->setCheckable(true);
        action->setChecked(entry == popUp->selection);
        if (entry == popUp->selection) menu->setActiveAction(action);
    }
    menu->popup(viewport()->mapToGlobal(visualRect(cell).topLeft()), menu->activeAction());
}

void TableWidget::pressFirstButton() {
    for (int column = 0; column < rows_->columnCount(); ++column) {
        const QModelIndex cell = currentIndex().siblingAtColumn(column);
        if (is<ButtonCell>(rows_->cell(cell))) return pressCell(cell);
    }
}

void TableWidget::sortBy(int column) {
    finishEditing();
    model_.pressHeader(column);
    const QString title = toQString(model_.column(column).title);
    const bool up = model_.sortDirection(column) == SortDirection::ascending;
    emit sorted("Sorted by " + title + (up ? ", ascending" : ", descending"));
}

// The current cell moves along with the row.
void TableWidget::moveRow(int tableRow, int gap) {
    finishEditing();
    const auto row = model_.drop(TableView::pasteboardText(tableRow), gap);
    if (row) setCurrentIndex(rows_->index(*row, std::max(0, currentIndex().column())));
}

void TableWidget::finishEditing() {
    if (state() != EditingState || !delegate_->editor()) return;
    commitData(delegate_->editor());
    closeEditor(delegate_->editor(), QAbstractItemDelegate::NoHint);
}

void TableWidget::abandonEditing() {
    if (delegate_->editor()) closeEditor(delegate_->editor(), QAbstractItemDelegate::RevertModelCache);
}

void TableWidget::keyPressEvent(QKeyEvent* event) {
    const QModelIndex current = currentIndex();
    const bool alt = event->modifiers() == Qt::AltModifier && current.isValid() && model_.takesDraggedText();
    const bool shift = event->modifiers() == Qt::ShiftModifier;
    switch (event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space:
            // An open editor handles the key itself and commits a moment later.
            if (event->isAutoRepeat() || state() == EditingState) return;
            return event->modifiers().testFlag(Qt::ControlModifier) ? pressFirstButton() : act(current);
        case Qt::Key_Up:
            return alt ? moveRow(current.row(), current.row() - 1) : QTableView::keyPressEvent(event);
        case Qt::Key_Down:
            return alt ? moveRow(current.row(), current.row() + 2) : QTableView::keyPressEvent(event);
        case Qt::Key_F10:
            return shift ? openMenu(QPoint()) : QTableView::keyPressEvent(event);
        default:
            QTableView::keyPressEvent(event);
    }
}

void TableWidget::contextMenuEvent(QContextMenuEvent* event) {
    const bool byMouse = event->reason() == QContextMenuEvent::Mouse;
    if (byMouse && !indexAt(event->pos()).isValid()) return;  // below the rows
    openMenu(event->reason() == QContextMenuEvent::Keyboard ? QPoint() : event->globalPos());
}

void TableWidget::openMenu(QPoint position) {
    finishEditing();
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setObjectName(objectName() + "Menu");
    menu->setAccessibleName(labelOf(model_));
    if (rows_->exists(currentIndex())) addRowActions(*menu);
    for (int column = 0; column < rows_->columnCount(); ++column)
        if (model_.column(column).sorts)
            menu->addAction("Sort by " + toQString(model_.column(column).title), this,
                            [this, column] { sortBy(column); });
    if (menu->isEmpty()) return menu->deleteLater();
    if (position.isNull()) position = viewport()->mapToGlobal(visualRect(currentIndex()).bottomLeft());
    menu->popup(position);
}

// Everything that can be done in the row for which the menu was opened.
void TableWidget::addRowActions(QMenu& menu) {
    const int tableRow = rows_->tableRow(currentIndex());
    const auto inRow = [this, tableRow, text = rows_->rowText(tableRow)](auto act) {
        return [this, tableRow, text, act] {
            if (const auto row = rows_->find(text, tableRow)) act(*row);
        };
    };
    for (int column = 0; column < rows_->columnCount(); ++column) {
        const QModelIndex cell = currentIndex().siblingAtColumn(column);
        const TableCell shown = rows_->cell(cell);
        const QString title = toQString(model_.column(column).title);
        const auto press = inRow([this, column](int row) { model_.pressCell(row, column); });
        const auto go = inRow([this, place = QPersistentModelIndex(cell)](int row) {
            if (rows_->tableRow(place) != row) return;
            setCurrentIndex(place);
            act(place);
        });
        if (is<ButtonCell>(shown))
            menu.addAction(withoutMnemonic(QString::fromStdString(model_.spokenPress(tableRow, column))), this, press);
        else if (is<LinkCell>(shown))
            menu.addAction("Open " + title + " in the web browser", this, press);
        else if (is<PopUpCell>(shown))
            menu.addAction("Choose " + title, this, go);
        else if (is<EditableCell>(shown))
            menu.addAction("Edit " + title, this, go);
    }
    if (!model_.takesDraggedText()) return;
    menu.addSeparator();
    // The menu shows the keys; the table itself takes them.
    const auto addMove = [&menu, this](const char* text, const char* keys, auto move) {
        auto* action = menu.addAction(text, this, move);
        action->setShortcut(QKeySequence(keys));
        action->setShortcutContext(Qt::WidgetShortcut);
        action->setShortcutVisibleInContextMenu(true);
    };
    addMove("Move up", "Alt+Up", inRow([this](int row) { moveRow(row, row - 1); }));
    addMove("Move down", "Alt+Down", inRow([this](int row) { moveRow(row, row + 2); }));
    menu.addSeparator();
}

void TableWidget::mouseMoveEvent(QMouseEvent* event) {
    QTableView::mouseMoveEvent(event);
    const QModelIndex cell = indexAt(event->pos());
    const bool link = cell.isValid() && delegate_->linkRect(visualRect(cell), font(), cell).contains(event->pos());
    viewport()->setCursor(link ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

void TableWidget::mouseReleaseEvent(QMouseEvent* event) {
    released_ = event->pos();
    QTableView::mouseReleaseEvent(event);
}

void TableWidget::startDrag(Qt::DropActions) {
    const QModelIndex current = currentIndex();
    if (!current.isValid()) return;
    auto* drag = new QDrag(this);
    drag->setMimeData(rows_->mimeData({current}));
    const QRect row(0, rowViewportPosition(current.row()), viewport()->width(), TableView::rowHeight);
    drag->setPixmap(viewport()->grab(row));
    drag->setHotSpot(QPoint(4 * gridStep, TableView::rowHeight / 2));
    drag->exec(Qt::MoveAction);
}

// The number of the gap nearest to the position: gap 0 is above row 0.
int TableWidget::gapAt(const QPoint& position) const {
    const int row = rowAt(position.y());
    if (row < 0) return position.y() < 0 ? 0 : shownRows();
    return row + (position.y() - rowViewportPosition(row) > TableView::rowHeight / 2 ? 1 : 0);
}

void TableWidget::showGap(std::optional<int> gap) {
    if (gap_ == gap) return;
    gap_ = gap;
    viewport()->update();
}

void TableWidget::dragEnterEvent(QDragEnterEvent* event) {
    event->ignore();
    if (!model_.takesDraggedText() || !event->mimeData()->hasText()) return;
    finishEditing();
    setState(DraggingState);
    event->setDropAction(Qt::MoveAction);
    event->accept();
}

void TableWidget::dragMoveEvent(QDragMoveEvent* event) {
    QTableView::dragMoveEvent(event);  // scrolls at the edges
    if (!model_.takesDraggedText() || !event->mimeData()->hasText()) return event->ignore();
    showGap(gapAt(event->position().toPoint()));
    event->setDropAction(Qt::MoveAction);
    event->accept();
}

void TableWidget::dragLeaveEvent(QDragLeaveEvent* event) {
    QTableView::dragLeaveEvent(event);
    showGap(std::nullopt);
}

void TableWidget::dropEvent(QDropEvent* event) {
    stopAutoScroll();
    setState(NoState);
    showGap(std::nullopt);
    finishEditing();
    const auto row = model_.drop(event->mimeData()->text().toStdString(), gapAt(event->position().toPoint()));
    if (!row) return event->ignore();
    setCurrentIndex(rows_->index(*row, std::max(0, currentIndex().column())));
    event->setDropAction(Qt::MoveAction);
    event->accept();
}

QString TableWidget::emptyText() const {
    return allRows() > 0 ? QStringLiteral("No row passes the filter and the chips.") : toQString(model_.emptyText());
}

void TableWidget::paintEvent(QPaintEvent* event) {
    QTableView::paintEvent(event);
    if (shownRows() == 0) {
        QPainter painter(viewport());
        painter.setPen(Theme::current().quietText);
        const int above = std::clamp((viewport()->height() - fontMetrics().height()) / 2, 0, 4 * gridStep);
        const QRect place = viewport()->rect().adjusted(4 * gridStep, above, -4 * gridStep, 0);
        painter.drawText(place, Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, emptyText());
    }
    if (!gap_) return;
    QPainter painter(viewport());
    const int y = rowViewportPosition(std::max(0, *gap_ - 1)) + (*gap_ > 0 ? TableView::rowHeight : 0);
    painter.fillRect(QRect(0, std::max(0, y - 1), viewport()->width(), 2), Theme::current().accent);
}

}  // namespace corvane
