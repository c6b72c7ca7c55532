// Panels side by side that stand in fewer columns where the screen is narrow.
#pragma once

#include <QWidget>
#include <vector>

class QGridLayout;

namespace corvane {

class FlowPage : public QWidget {
    Q_OBJECT

public:
    // A place in a grid of twelve columns.
    struct Cell {
        int row;
        int column;
        int columns;
        int rows = 1;
    };

    // `takesRest` is the row that gets the height that is left, wide and narrow; one after the last leaves it empty.
    FlowPage(int takesRestWide, int takesRestNarrow, QWidget* parent = nullptr);

    void add(QWidget* panel, const Cell& wide, const Cell& narrow);
    QGridLayout& grid() { return *grid_; }
    bool isNarrow() const { return narrow_; }

    QSize minimumSizeHint() const override;  // as wide as the narrow arrangement needs

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    struct Placed {
        QWidget* panel;
        Cell wide;
        Cell narrow;
    };
    void arrange(bool narrow);
    int narrowWidth() const;

    QGridLayout* grid_;
    std::vector<Placed> panels_;
    const int takesRestWide_;
    const int takesRestNarrow_;
    bool narrow_ = false;
    int wideWidth_ = 0;  // what the wide arrangement needs
};

}  // namespace corvane
