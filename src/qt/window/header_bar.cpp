#include "qt/window/header_bar.h"

#include <QGridLayout>
#include <QLabel>
#include <QPainter>

#include "qt/window/announcer.h"
#include "qt/window/busy_widget.h"
#include "qt/window/control_texts.h"
#include "qt/window/control_views.h"
#include "qt/window/key_button.h"
#include "qt/window/on_air_lamp.h"
#include "qt/window/read_label.h"
#include "qt/window/s_meter_view.h"
#include "qt/window/theme.h"
#include "qt/window/vfo_button.h"

namespace corvane {

namespace {

// The state of the link: a lamp, filled while connected, else a ring, and words.
class LinkLabel : public QLabel {
public:
    LinkLabel(TextField& link, ChangeQueue& queue) : link_(link) {
        describe(*this, link);
        setTextFormat(Qt::PlainText);
        setFocusPolicy(Qt::TabFocus);
        setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        view_ = link.addView(queue, [this] { showModel(); });
        showModel();
    }

protected:
    void paintEvent(QPaintEvent*) override {
        const Theme& theme = Theme::current();
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const QColor lamp = theme.of(link_.textColor(), theme.quietText);
        paintFocus(*this, painter);
        painter.setPen(QPen(lamp, 2));
        painter.setBrush(link_.textColor() == Color::none ? Qt::NoBrush : QBrush(lamp));
        painter.drawEllipse(QPointF(8, height() / 2.0), 4, 4);
        const QRect words = rect().adjusted(5 * gridStep, 0, 0, 0);
        painter.setPen(theme.text);
        painter.drawText(words, Qt::AlignLeft | Qt::AlignVCenter,
                         fontMetrics().elidedText(text(), Qt::ElideMiddle, words.width()));
    }

private:
    void showModel() {
        setText(QString::fromStdString(link_.stringValue()));
        setToolTip(plainToolTip(text()));
        setAccessibleName(spokenWithValue(link_, link_.stringValue()));
        update();
    }

    TextField& link_;
    ViewHandle view_;
};

// The name of the mode, in large letters.
class ModeLabel : public ReadLabel {
public:
    ModeLabel(TextField& mode, ChangeQueue& queue) {
        describe(*this, mode);
        setTextFormat(Qt::PlainText);
        setFocusPolicy(Qt::TabFocus);
        setFont(typeface(TypeSize::value, QFont::DemiBold));
        const auto show = [this, &mode] {
            const std::string& name = mode.stringValue();
            setText(name.empty() ? QStringLiteral("\u2013") : QString::fromStdString(name));
            fade(*this, conditionOf(mode));
            setSpokenName(*this, conditionOf(mode), spokenWithValue(mode, name));
        };
        view_ = mode.addView(queue, show);
        show();
    }

private:
    ViewHandle view_;
};

}  // namespace

HeaderBar::HeaderBar(Display& display, ChangeQueue& queue, QWidget* parent) : QWidget(parent) {
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(4 * gridStep, 2 * gridStep, 4 * gridStep, 2 * gridStep);
    rows->setSpacing(2 * gridStep);
    auto* row = new QHBoxLayout;
    row->setSpacing(3 * gridStep);
    row->addWidget(
        new VfoButton(display.vqFreqAButton, display.activeVfoField, display.channelFrequencyAField, "A", queue), 4);
    row->addWidget(
        new VfoButton(display.vqFreqBButton, display.activeVfoField, display.channelFrequencyBField, "B", queue), 4);
    row->addWidget(makeStatusBlock(display, queue), 4);
    rows->addLayout(row);
    rows->addWidget(new NoticeLabel(display.linkMessageField, queue));
    new Announcer(display, queue, this);
}

QWidget* HeaderBar::makeStatusBlock(Display& display, ChangeQueue& queue) {
    auto* block = new QWidget;
    auto* grid = new QGridLayout(block);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(2 * gridStep);
    auto* meter = new QHBoxLayout;
    meter->setSpacing(3 * gridStep);
    meter->addWidget(new SMeterView(display.sMeter, queue), 1);
    meter->addWidget(new OnAirLamp(display, queue));
    grid->addLayout(meter, 0, 0, 1, 3);
    grid->addWidget(new ModeLabel(display.modeField, queue), 1, 0);
    grid->addWidget(new KeyButton(display.licenseClassButton, queue), 1, 1);
    grid->addWidget(new KeyButton(display.vqMemAButton, queue), 1, 2);
    grid->addWidget(new LinkLabel(display.linkStatusField, queue), 2, 0, 1, 3);
    grid->setColumnMinimumWidth(0, 26 * gridStep);
    // "Technician CW" and a channel with a tag of twelve characters fit.
    grid->setColumnStretch(1, 3);
    grid->setColumnStretch(2, 4);
    return block;
}

}  // namespace corvane
