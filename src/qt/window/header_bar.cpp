#include "qt/window/header_bar.h"

#include <QGridLayout>
#include <QLabel>
#include <QPainter>

#include "qt/window/control_texts.h"
#include "qt/window/control_views.h"
#include "qt/window/key_button.h"
#include "qt/window/s_meter_view.h"
#include "qt/window/theme.h"
#include "qt/window/vfo_button.h"

namespace corvane {

namespace {

// The link in words, behind a lamp in the colour of the connection.
class LinkLabel : public QLabel {
public:
    LinkLabel(Display& display, ChangeQueue& queue) : button_(display.openCloseButton) {
        describe(*this, display.linkStatusField);
        setContentsMargins(5 * gridStep, 0, 0, 0);
        setMinimumWidth(60 * gridStep);
        setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        const auto show = [this, &field = display.linkStatusField] {
            setText(QString::fromStdString(field.stringValue()));
            setAccessibleName(spokenWithValue(field, field.stringValue()));
            connected_ = field.stringValue() != "Not connected";
            update();
        };
        display.linkStatusField.addView(queue, show);
        show();
    }

protected:
    void paintEvent(QPaintEvent* event) override {
        QLabel::paintEvent(event);
        const Theme& theme = Theme::current();
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(connected_ ? theme.green : theme.quietText);
        painter.drawEllipse(QPointF(8, height() / 2.0), 5, 5);
    }

private:
    Button& button_;
    bool connected_ = false;
};

// The mode's name in the size of a value.
QLabel* modeLabel(PopUpButton& modes, ChangeQueue& queue) {
    auto* label = new QLabel;
    label->setObjectName("modeLabel");
    label->setFont(typeface(TypeSize::value, QFont::DemiBold));
    label->setToolTip(toQString(modes.outlet().help));
    const auto show = [label, &modes] {
        const std::string_view mode = modes.titleOfSelectedItem();
        label->setText(mode.empty() ? QStringLiteral("\u2013") : toQString(mode));
        label->setAccessibleName(spokenWithValue(modes, mode));
    };
    modes.addView(queue, show);
    show();
    return label;
}

}  // namespace

HeaderBar::HeaderBar(Display& display, ChangeQueue& queue, QWidget* parent) : QWidget(parent) {
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(4 * gridStep, 2 * gridStep, 4 * gridStep, 2 * gridStep);
    rows->setSpacing(2 * gridStep);
    auto* row = new QHBoxLayout;
    row->setSpacing(3 * gridStep);
    row->addWidget(new VfoButton(display.vqFreqAButton, display.activeVfoField, "A", queue), 4);
    row->addWidget(new VfoButton(display.vqFreqBButton, display.activeVfoField, "B", queue), 4);
    row->addWidget(makeStatusBlock(display, queue), 4);
    rows->addLayout(row);
    rows->addWidget(makeMessage(display, queue));
}

QWidget* HeaderBar::makeStatusBlock(Display& display, ChangeQueue& queue) {
    auto* block = new QWidget;
    auto* grid = new QGridLayout(block);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(2 * gridStep);
    grid->addWidget(new SMeterView(display.sMeter, queue), 0, 0, 1, 3);
    grid->addWidget(modeLabel(display.modesPopUpButton, queue), 1, 0);
    grid->addWidget(new KeyButton(display.licenseClassButton, queue), 1, 1);
    grid->addWidget(new KeyButton(display.vqMemAButton, queue), 1, 2);
    grid->addWidget(new LinkLabel(display, queue), 2, 0, 1, 3);
    grid->setColumnMinimumWidth(0, 26 * gridStep);
    // "Technician CW" and a channel with a tag of twelve characters fit.
    grid->setColumnStretch(1, 3);
    grid->setColumnStretch(2, 4);
    return block;
}

// Stands in the window only while there is something to say.
QWidget* HeaderBar::makeMessage(Display& display, ChangeQueue& queue) {
    auto* message = new TextLabel(display.linkMessageField, queue);
    message->setContentsMargins(3 * gridStep, 2 * gridStep, 3 * gridStep, 2 * gridStep);
    const auto show = [message, &field = display.linkMessageField] {
        message->setVisible(!field.stringValue().empty());
    };
    display.linkMessageField.addView(queue, show);
    show();
    return message;
}

}  // namespace corvane
