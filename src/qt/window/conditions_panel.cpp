#include "qt/window/conditions_panel.h"

#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <array>

#include "qt/window/busy_widget.h"
#include "qt/window/control_texts.h"
#include "qt/window/control_views.h"
#include "qt/window/key_button.h"
#include "qt/window/theme.h"

namespace corvane {

namespace {

// A value on a background of its colour.
class ConditionLabel : public QLabel {
public:
    ConditionLabel(TextField& model, ChangeQueue& queue) : model_(model) {
        describe(*this, model);
        setTextFormat(Qt::PlainText);
        setFocusPolicy(Qt::TabFocus);
        setAlignment(Qt::AlignCenter);
        setMinimumWidth(16 * gridStep);
        setContentsMargins(gridStep, gridStep, gridStep, gridStep);
        view_ = model.addView(queue, [this] { showModel(); });
        showModel();
    }

protected:
    void paintEvent(QPaintEvent*) override {
        const Theme& theme = Theme::current();
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const bool empty = model_.stringValue().empty();
        const QColor fill = empty ? theme.panel : theme.of(model_.textColor(), theme.panel);
        painter.setPen(QPen(theme.line, 1));
        painter.setBrush(fill);
        painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 5, 5);
        painter.setPen(empty ? theme.quietText : readableOn(fill));
        painter.drawText(rect(), Qt::AlignCenter, empty ? QStringLiteral("\u2013") : text());
        paintFocus(*this, painter);
    }

private:
    void showModel() {
        setText(QString::fromStdString(model_.stringValue()));
        setAccessibleName(spokenWithValue(model_, model_.stringValue()));
        update();
    }

    TextField& model_;
    ViewHandle view_;
};

}  // namespace

Panel* makeConditionsPanel(Display& display, ChangeQueue& queue) {
    auto* panel = new Panel({});
    panel->follow(display.bandBox, queue, [panel, &box = display.bandBox] { panel->setTitle(toQString(box.title())); });
    auto* grid = new QGridLayout;
    grid->setSpacing(2 * gridStep);
    grid->addWidget(new QLabel("Day"), 0, 1);
    grid->addWidget(new QLabel("Night"), 0, 2);
    const std::array<std::pair<TextField*, TextField*>, 4> bands{{{&display.day8040Field, &display.night8040Field},
                                                                  {&display.day3020Field, &display.night3020Field},
                                                                  {&display.day1715Field, &display.night1715Field},
                                                                  {&display.day1210Field, &display.night1210Field}}};
    int row = 1;
    for (const auto& [day, night] : bands) {
        auto* value = new ConditionLabel(*day, queue);
        grid->addWidget(titleLabel(*day, *value), row, 0);
        grid->addWidget(value, row, 1);
        grid->addWidget(new ConditionLabel(*night, queue), row, 2);
        ++row;
    }
    row = 1;
    for (TextField* field : {&display.solarFluxField, &display.signalNoiseField, &display.magicBandField}) {
        auto* value = new ConditionLabel(*field, queue);
        grid->addWidget(titleLabel(*field, *value), row, 3);
        grid->addWidget(value, row, 4);
        ++row;
    }
    grid->setColumnMinimumWidth(3, 20 * gridStep);
    grid->setColumnStretch(5, 1);
    panel->content().addLayout(grid);
    auto* bottom = new QHBoxLayout;
    auto* refresh = new KeyButton(display.key(810), queue);
    refresh->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    auto* status = new TextLabel(display.bandStatusField, queue);
    status->setForegroundRole(QPalette::PlaceholderText);
    bottom->setSpacing(2 * gridStep);
    bottom->addWidget(refresh);
    auto* fetched = new QLabel("Fetched");
    fetched->setForegroundRole(QPalette::PlaceholderText);
    fetched->setBuddy(status);
    bottom->addWidget(fetched);
    bottom->addWidget(status, 1);
    panel->content().addLayout(bottom);
    panel->content().addStretch();
    return panel;
}

}  // namespace corvane
