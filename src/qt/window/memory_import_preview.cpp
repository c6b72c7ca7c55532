#include "qt/window/memory_import_preview.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QStyledItemDelegate>
#include <QTableWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "qt/window/control_texts.h"
#include "qt/window/theme.h"

namespace corvane {

namespace {

constexpr int lineHeight = 27;
constexpr std::size_t mostRefused = 200;  // lines that are listed: nobody reads more of a wrong file

QString counted(std::size_t count, const QString& noun) {
    return QString::number(count) + ' ' + noun + (count == 1 ? "" : "s");
}

// Puts a space before the text, which aligns it with its title.
class RoomyCells final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QString displayText(const QVariant& value, const QLocale&) const override {
        return QChar(0x2002) + value.toString();
    }
};

// Aligns the frequencies at their decimal points.
QString aligned(const MemoryChannel& channel) {
    const QString words = toQString(channelInWords(channel));
    return words.indexOf('.') == 1 ? QChar(0x2007) + words : words;
}

QTableWidget* listOf(const QStringList& titles, int rows, const QString& name) {
    auto* list = new QTableWidget(rows, static_cast<int>(titles.size()));
    list->setHorizontalHeaderLabels(titles);
    list->setAccessibleName(name);
    list->setItemDelegate(new RoomyCells(list));
    list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    list->setSelectionBehavior(QAbstractItemView::SelectRows);
    list->setSelectionMode(QAbstractItemView::SingleSelection);
    list->setTabKeyNavigation(false);
    list->setShowGrid(false);
    list->setAlternatingRowColors(true);
    list->setWordWrap(false);
    list->verticalHeader()->hide();
    list->verticalHeader()->setDefaultSectionSize(lineHeight);
    list->horizontalHeader()->setHighlightSections(false);
    list->horizontalHeader()->setSectionsClickable(false);
    list->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    list->horizontalHeader()->setStretchLastSection(true);
    return list;
}

void setCell(QTableWidget& list, int row, int column, const QString& text) {
    auto* cell = new QTableWidgetItem(text);
    cell->setToolTip(plainToolTip(text));
    list.setItem(row, column, cell);
}

}  // namespace

MemoryImportPreview::MemoryImportPreview(MemoryImport import, const MemoryTable& table, QWidget* parent)
    : QDialog(parent), import_(std::move(import)) {
    setObjectName("memoryImportPreview");
    setWindowTitle("Import memory channels");
    for (const ImportedChannel& imported : import_.channels) {
        const bool same = sameChannel(imported.channel, table.at(static_cast<std::size_t>(imported.row)));
        if (same)
            ++unchanged_;
        else
            changes_.push_back(imported);
    }
    std::ranges::sort(changes_, {}, &ImportedChannel::row);
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(pageMargins);
    rows->setSpacing(2 * gridStep);
    rows->addWidget(makeSummary());
    table_ = makeChanges(table);
    rows->addWidget(table_, 2);
    if (!import_.refused.empty()) {
        rows->addWidget(new QLabel("Lines that cannot be used:"));
        rows->addWidget(makeRefused(), 1);
    }
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    take_ = buttons->addButton("Import", QDialogButtonBox::AcceptRole);
    take_->setObjectName("takeImportedChannels");
    take_->setToolTip("Put the channels that are ticked into the table. Nothing is sent to the transceiver.");
    buttons->button(QDialogButtonBox::Cancel)->setToolTip("Leave the table as it is.");
    rows->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(table_, &QTableWidget::itemChanged, this, &MemoryImportPreview::showChoice);
    showChoice();
    resize(860, 600);
}

QLabel* MemoryImportPreview::makeSummary() const {
    QStringList parts;
    parts << counted(changes_.size(), "channel") + " would change";
    if (unchanged_ > 0) parts << QString::number(unchanged_) + (unchanged_ == 1 ? " is" : " are") + " as in the file";
    if (!import_.refused.empty()) parts << counted(import_.refused.size(), "line") + " cannot be used";
    auto* summary = new QLabel(parts.join(", ") +
                               ".\nAll other channels stay as they are. Nothing is sent to the "
                               "transceiver before you press Write memories.");
    summary->setObjectName("memoryImportSummary");
    return summary;
}

QTableWidget* MemoryImportPreview::makeChanges(const MemoryTable& table) {
    auto* list = listOf({"Channel", "Now", "In the file", "Note"}, static_cast<int>(changes_.size()),
                        "Channels that would change");
    list->setObjectName("memoryImportChanges");
    list->setToolTip("Space ticks a channel or unticks it: only ticked ones are imported.");
    for (std::size_t i = 0; i < changes_.size(); ++i) {
        const ImportedChannel& change = changes_[i];
        const int row = static_cast<int>(i);
        auto* channel = new QTableWidgetItem(QString("M-%1").arg(change.row + 1, 2, 10, QChar('0')));
        channel->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        channel->setCheckState(Qt::Checked);
        list->setItem(row, 0, channel);
        setCell(*list, row, 1, aligned(table.at(static_cast<std::size_t>(change.row))));
        setCell(*list, row, 2, aligned(change.channel));
        setCell(*list, row, 3, toQString(change.note));
    }
    const int width = list->fontMetrics().averageCharWidth();
    list->setColumnWidth(0, 14 * width);
    list->setColumnWidth(1, 36 * width);
    list->setColumnWidth(2, 36 * width);
    if (!changes_.empty()) list->setCurrentCell(0, 0);
    return list;
}

QTableWidget* MemoryImportPreview::makeRefused() {
    const std::size_t listed = std::min(import_.refused.size(), mostRefused);
    const bool more = import_.refused.size() > listed;
    auto* list = listOf({"Line", "Why"}, static_cast<int>(listed + (more ? 1 : 0)), "Lines that cannot be used");
    list->setObjectName("memoryImportRefused");
    for (std::size_t i = 0; i < listed; ++i) {
        setCell(*list, static_cast<int>(i), 0, QString::number(import_.refused[i].line));
        setCell(*list, static_cast<int>(i), 1, toQString(import_.refused[i].reason));
    }
    if (more) setCell(*list, static_cast<int>(listed), 1, counted(import_.refused.size() - listed, "more line"));
    list->setColumnWidth(0, 10 * list->fontMetrics().averageCharWidth());
    return list;
}

void MemoryImportPreview::open(MemoryImport import, const MemoryTable& table, QWidget* window,
                               std::function<void(const std::vector<ImportedChannel>&)> take) {
    auto* preview = new MemoryImportPreview(std::move(import), table, window);
    preview->setAttribute(Qt::WA_DeleteOnClose);
    connect(preview, &QDialog::accepted, window, [preview, take = std::move(take)] { take(preview->chosen()); });
    preview->QDialog::open();
}

std::vector<ImportedChannel> MemoryImportPreview::chosen() const {
    std::vector<ImportedChannel> ticked;
    for (std::size_t i = 0; i < changes_.size(); ++i)
        if (table_->item(static_cast<int>(i), 0)->checkState() == Qt::Checked) ticked.push_back(changes_[i]);
    return ticked;
}

void MemoryImportPreview::showChoice() {
    const std::size_t count = chosen().size();
    take_->setText("Import " + counted(count, "channel"));
    take_->setEnabled(count > 0);
}

}  // namespace corvane
