// Keys that share one tab stop: the arrow keys move among them, and Tab comes back to the one that was used last.
#pragma once

#include <QObject>
#include <QWidget>
#include <vector>

namespace corvane {

class KeyRing : public QObject {
    Q_OBJECT

public:
    // The members stand in rows of `columns`.
    KeyRing(int columns, QObject* parent) : QObject(parent), columns_(columns) {}

    void add(QWidget& member);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void makeStop(QWidget* member);
    bool move(const QWidget& from, int key);

    const int columns_;
    std::vector<QWidget*> members_;
    QWidget* stop_ = nullptr;
};

}  // namespace corvane
