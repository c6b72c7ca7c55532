// Widgets one after the other, as words in a paragraph: what has no room goes to the next line.
#pragma once

#include <QLayout>
#include <vector>

namespace corvane {

class FlowLayout : public QLayout {
public:
    explicit FlowLayout(int gap, QWidget* parent = nullptr);
    ~FlowLayout() override;

    void addItem(QLayoutItem* item) override { items_.push_back(item); }
    // More room before what is added next, if it stands on the same line.
    void addGap(int gap) { addItem(new QSpacerItem(gap, 0, QSizePolicy::Fixed, QSizePolicy::Fixed)); }

    int count() const override { return static_cast<int>(items_.size()); }
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;
    Qt::Orientations expandingDirections() const override { return {}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override { return layOut(QRect(0, 0, width, 0), false); }
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    void setGeometry(const QRect& rect) override;

private:
    int layOut(const QRect& rect, bool moves) const;

    std::vector<QLayoutItem*> items_;
    const int gap_;
};

}  // namespace corvane
