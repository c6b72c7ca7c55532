// The widget of a pop-up. It shows its model as long as both live; a model without an action is only shown.
#pragma once

#include <QComboBox>

#include "display/pop_up_button.h"

namespace corvane {

class EntryModel;

class PopUpView : public QComboBox {
    Q_OBJECT

public:
    PopUpView(PopUpButton& model, ChangeQueue& queue, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }
    void showPopup() override;

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    // The wheel scrolls the page and must not change the transceiver.
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void showModel();
    void setUpList();

    PopUpButton& model_;
    EntryModel* entries_;
    int shownEntries_ = -1;
    bool hasList_ = false;
    bool listIsSetUp_ = false;
    ViewHandle view_;
};

}  // namespace corvane
