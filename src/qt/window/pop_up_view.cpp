#include "qt/window/pop_up_view.h"

#include <QAbstractListModel>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QListView>
#include <QPainter>
#include <QPixmap>
#include <QSignalBlocker>
#include <QStyleOptionComboBox>
#include <QStyledItemDelegate>
#include <algorithm>
#include <utility>

#include "qt/window/busy_widget.h"
#include "qt/window/control_texts.h"
#include "qt/window/painted_style.h"
#include "qt/window/theme.h"

namespace corvane {

namespace {

QIcon dot(const QColor& color) {
    constexpr int size = 16;
    QPixmap picture(size * 2, size * 2);
    picture.setDevicePixelRatio(2);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawEllipse(QRectF(size / 4.0, size / 4.0, size / 2.0, size / 2.0));
    return picture;
}

QVariant pictureOf(Image image) {
    static const QIcon available = dot(QColor(0x34, 0xc7, 0x59));
    static const QIcon partiallyAvailable = dot(QColor(0xe0, 0xa8, 0x00));
    if (image == Image::NSImageNameStatusAvailable) return available;
    if (image == Image::NSImageNameStatusPartiallyAvailable) return partiallyAvailable;
    return {};
}

}  // namespace

// Fetches an entry only when it is shown, so that 10,000 entries cost no more than the visible ones.
class EntryModel : public QAbstractListModel {
public:
    EntryModel(const PopUpButton& popUp, QObject* parent) : QAbstractListModel(parent), popUp_(popUp) {}

    int rowCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : popUp_.titles().size(); }
    QVariant data(const QModelIndex& index, int role) const override {
        if (!index.isValid() || index.row() >= popUp_.titles().size()) return {};
        if (role == Qt::DecorationRole) return pictureOf(popUp_.itemImage(index.row()));
        if (role != Qt::DisplayRole && role != Qt::EditRole) return {};
        return QString::fromStdString(popUp_.titles().at(index.row()));
    }
    Qt::ItemFlags flags(const QModelIndex& index) const override {
        const Qt::ItemFlags flags = QAbstractListModel::flags(index);
        const bool unused = index.isValid() && index.row() < popUp_.titles().size() &&
                            popUp_.titles().at(index.row()) == PopUpButton::unusedEntry;
        return unused ? flags & ~(Qt::ItemIsEnabled | Qt::ItemIsSelectable) : flags;
    }
    void reset() {
        beginResetModel();
        endResetModel();
    }

private:
    const PopUpButton& popUp_;
};

PopUpView::PopUpView(PopUpButton& model, ChangeQueue& queue, QWidget* parent)
    : QComboBox(parent), model_(model), entries_(new EntryModel(model, this)) {
    describe(*this, model);
    setModel(entries_);
    setMaxVisibleItems(18);
    setPlaceholderText(QStringLiteral("\u2013"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setOnlyShows(*this, !model.action);
    setFocusPolicy(model.action ? Qt::StrongFocus : Qt::TabFocus);
    connect(this, &QComboBox::activated, this, [this](int index) { model_.choose(index); });
    view_ = model.addView(queue, [this] { showModel(); });
    showModel();
}

void PopUpView::showModel() {
    if (shownEntries_ != model_.entriesVersion()) {
        shownEntries_ = model_.entriesVersion();
        const QSignalBlocker quiet(this);
        entries_->reset();
    }
    enableWidget(*this, model_.enabled());
    setCurrentIndex(model_.indexOfSelectedItem());
    if (model_.busy()) hidePopup();
    fade(*this, conditionOf(model_));
    setSpokenName(*this, conditionOf(model_),
                  model_.action ? labelOf(model_) : spokenWithValue(model_, model_.titleOfSelectedItem()));
}

bool PopUpView::event(QEvent* event) {
    // Whoever asks first for the list makes it: the operator or a screen reader.
    const bool isList =
        event->type() == QEvent::ChildAdded && static_cast<QChildEvent*>(event)->child()->isWidgetType();
    if (isList && !std::exchange(hasList_, true))
        QMetaObject::invokeMethod(
            this, [this] { setUpList(); }, Qt::QueuedConnection);
    return heldBack(model_, *event) || QComboBox::event(event);
}

// A list costs a hundred kilobytes and most of the time that a page takes to open: it is made when it is wanted.
void PopUpView::setUpList() {
    if (std::exchange(listIsSetUp_, true)) return;
    view()->setAccessibleName(labelOf(model_));
    setItemDelegate(new QStyledItemDelegate(this));  // asks the style for the height of an entry
    if (auto* list = qobject_cast<QListView*>(view()))
        list->setUniformItemSizes(true);  // so that Qt does not measure each
}

// Qt would make the list to pass a new style or font on to it.
void PopUpView::changeEvent(QEvent* event) {
    const bool isForList = event->type() == QEvent::StyleChange || event->type() == QEvent::FontChange;
    isForList && !hasList_ ? QWidget::changeEvent(event) : QComboBox::changeEvent(event);
}

// The same for every list of entries: room for six letters and a picture. Qt would make the list to measure by itself.
QSize PopUpView::sizeHint() const {
    constexpr int letters = 6;
    const QFontMetrics metrics(font());
    const QSize content(letters * metrics.horizontalAdvance('X') + iconSize().width() + gridStep,
                        std::max(metrics.height(), iconSize().height()) + 2);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    return style()->sizeFromContents(QStyle::CT_ComboBox, &option, content, this);
}

void PopUpView::showPopup() {
    setUpList();
    QComboBox::showPopup();
}

void PopUpView::wheelEvent(QWheelEvent* event) { event->ignore(); }

void PopUpView::mousePressEvent(QMouseEvent* event) {
    if (model_.action) QComboBox::mousePressEvent(event);
}

// Arrow keys on a closed list would choose, and so send, every entry on the way: they open the list instead.
void PopUpView::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
            return QComboBox::keyPressEvent(event);
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_Space:
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (model_.action) return showPopup();
            [[fallthrough]];
        default:
            event->ignore();
    }
}

}  // namespace corvane
