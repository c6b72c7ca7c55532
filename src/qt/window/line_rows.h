// The lines of the traffic as the rows of a table; only those in sight are put into words.
#pragma once

#include <QAbstractTableModel>

#include "line/line_watch.h"

namespace corvane {

class LineRows : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { time, direction, bytes, meaning, columns };

    explicit LineRows(LineWatch& line, QObject* parent) : QAbstractTableModel(parent), line_(line) {}

    // Takes in what is new. Returns how many rows have gone at the top.
    int look();
    // Shows nothing, and asks for nothing, until it looks again.
    void lookAway();

    int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : rows_; }
    int columnCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : columns; }
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    void reset(int rows);

    LineWatch& line_;
    int rows_ = 0;
    bool looks_ = false;
};

}  // namespace corvane
