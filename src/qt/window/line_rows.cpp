#include "qt/window/line_rows.h"

#include <QFontDatabase>
#include <array>

#include "line/line_text.h"
#include "qt/window/control_texts.h"

namespace corvane {

namespace {

constexpr std::array titles{"Time (UTC)", "Direction", "Bytes", "Meaning"};

QString cellText(const LineText& line, int column) {
    switch (column) {
        case LineRows::time:
            return toQString(line.time);
        case LineRows::direction:
            return toQString(line.direction);
        case LineRows::bytes:
            return toQString(line.bytes);
        default:
            return toQString(line.meaning);
    }
}

}  // namespace

int LineRows::look() {
    const LineView::Change change = line_.look();
    const int all = static_cast<int>(line_.view().rows());
    const int removed = static_cast<int>(change.removed);
    if (!std::exchange(looks_, true) || change.anew || removed >= rows_) {
        if (rows_ != 0 || all != 0) reset(all);
        return 0;
    }
    if (removed > 0) {
        beginRemoveRows({}, 0, removed - 1);
        rows_ -= removed;
        endRemoveRows();
    }
    if (all > rows_) {
        beginInsertRows({}, rows_, all - 1);
        rows_ = all;
        endInsertRows();
    }
    return removed;
}

void LineRows::lookAway() {
    looks_ = false;
    reset(0);
}

void LineRows::reset(int rows) {
    beginResetModel();
    rows_ = rows;
    endResetModel();
}

QVariant LineRows::data(const QModelIndex& index, int role) const {
    const auto row = static_cast<std::size_t>(index.row());
    if (!index.isValid() || row >= line_.view().rows()) return {};
    if (role == Qt::FontRole && index.column() == bytes) return QFontDatabase::systemFont(QFontDatabase::FixedFont);
    if (role == Qt::DisplayRole) return cellText(lineText(line_.view().row(row)), index.column());
    if (role == Qt::ToolTipRole) return plainToolTip(cellText(lineText(line_.view().row(row)), index.column()));
    return {};
}

QVariant LineRows::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    return titles.at(static_cast<std::size_t>(section));
}

}  // namespace corvane
