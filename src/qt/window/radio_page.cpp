// The radio: front panel, function and scope pop-ups, sliders.
#include <QGridLayout>
#include <QLabel>
#include <QScrollArea>
#include <QVBoxLayout>

#include "qt/window/control_views.h"
#include "qt/window/flow_page.h"
#include "qt/window/key_button.h"
#include "qt/window/key_grid.h"
#include "qt/window/pages.h"
#include "qt/window/panel.h"
#include "qt/window/pop_up_view.h"
#include "qt/window/theme.h"

namespace corvane {

namespace {

void addRow(QGridLayout& grid, int place, int columns, const Control& control, QWidget* view) {
    const int row = place / columns;
    const int column = 2 * (place % columns);
    grid.addWidget(titleLabel(control, *view), row, column);
    grid.addWidget(view, row, column + 1);
    grid.setColumnStretch(column + 1, 1);
}

// In two columns of controls.
void addSlider(QGridLayout& grid, int place, Slider& slider, ChangeQueue& queue) {
    auto* view = new SliderView(slider, queue);
    auto* row = new QHBoxLayout;
    row->addWidget(view, 1);
    row->addWidget(new SliderValue(slider, queue));
    grid.addWidget(titleLabel(slider, *view), place / 2, 2 * (place % 2));
    grid.addLayout(row, place / 2, 2 * (place % 2) + 1);
}

QGridLayout* popUpGrid(const std::vector<PopUpButton*>& popUps, ChangeQueue& queue, int columns) {
    auto* grid = new QGridLayout;
    grid->setSpacing(2 * gridStep);
    int place = 0;
    for (PopUpButton* popUp : popUps) addRow(*grid, place++, columns, *popUp, new PopUpView(*popUp, queue));
    return grid;
}

Panel* keysPanel(const QString& title, Display& display, KeyPanel keys, ChangeQueue& queue, int columns) {
    auto* panel = new Panel(title);
    panel->content().addLayout(keyGrid(display, keys, queue, columns));
    panel->content().addStretch();
    return panel;
}

// A click on it leaves the keyboard in the field.
KeyButton* tuneKey(Display& display, ChangeQueue& queue) {
    auto* key = new KeyButton(display.tuneButton, queue);
    key->setFocusPolicy(Qt::TabFocus);
    return key;
}

Panel* tuningPanel(Display& display, ChangeQueue& queue) {
    auto* panel = new Panel("Tuning");
    auto* row = new QHBoxLayout;
    row->setSpacing(2 * gridStep);
    auto* frequency = new TextFieldView(display.freqTextField, queue);
    frequency->setFont(typeface(TypeSize::value));
    frequency->setMinimumWidth(QFontMetrics(frequency->font()).horizontalAdvance("50.0000") + 6 * gridStep);
    // Where the frequency is read next, and Tab goes on from.
    QObject::connect(frequency, &TextFieldView::resigned, frequency, [frequency, &display] {
        const bool sideB = display.activeVfoField.stringValue() == "B";
        const Button& vfo = sideB ? display.vqFreqBButton : display.vqFreqAButton;
        if (auto* key = frequency->window()->findChild<KeyButton*>(QString::fromStdString(vfo.objectName())))
            key->setFocus();
    });
    row->addWidget(frequency, 2);
    row->addWidget(titleLabel(display.freqTextField, *frequency));
    auto* tune = tuneKey(display, queue);
    frequency->addOwnKey(*tune);
    row->addWidget(tune);
    row->addWidget(new GroupedPopUpView(display.presetPopUpButton), 1);
    panel->content().addLayout(row);
    panel->content().addLayout(keyGrid(display, KeyPanel::steps, queue, 4));
    panel->content().addLayout(keyGrid(display, KeyPanel::vfo, queue, 4));
    panel->content().addStretch();
    return panel;
}

Panel* receiverPanel(Display& display, ChangeQueue& queue) {
    auto* panel = new Panel("Receiver");
    auto* grid =
        popUpGrid({&display.modesPopUpButton, &display.memPopUpButton, &display.AGCPopUpButton, &display.ATTPopUpButton,
                   &display.ampPopUpButton, &display.RFILPopUpButton, &display.DNRPopupButton, &display.NBPopupButton},
                  queue, 2);
    addSlider(*grid, 8, display.afGainSlider, queue);
    addSlider(*grid, 9, display.rfGainSlider, queue);
    panel->content().addLayout(grid);
    panel->content().addStretch();
    return panel;
}

Panel* transmitterPanel(Display& display, ChangeQueue& queue) {
    auto* panel = new Panel("Transmitter and knobs");
    panel->content().addLayout(popUpGrid({&display.powerPopUpButton, &display.smeterPopUpButton, &display.MPVDButton,
                                          &display.FuncKnobButton, &display.APOPopUpButton},
                                         queue, 1));
    panel->content().addStretch();
    return panel;
}

Panel* scopePanel(Display& display, ChangeQueue& queue) {
    auto* panel = new Panel("Spectrum scope");
    panel->content().addLayout(popUpGrid({&display.spectrumModePopUpButton}, queue, 1));
    panel->content().addLayout(popUpGrid({&display.scopeSpanPopUpButton, &display.scopeSpeedPopUpButton,
                                          &display.scopeLevelPopUpButton, &display.scopePeakPopUpButton},
                                         queue, 2));
    panel->content().addLayout(keyGrid(display, KeyPanel::scope, queue, 2));
    panel->content().addLayout(popUpGrid({&display.colorPopUpButton}, queue, 1));
    panel->content().addLayout(keyGrid(display, KeyPanel::scopeColors, queue, 11));
    panel->content().addStretch();
    return panel;
}

// A gap separates the keys for receiving from those for transmitting.
Panel* functionsPanel(Display& display, ChangeQueue& queue) {
    auto* panel = new Panel("Functions");
    panel->content().addLayout(keyGrid(display, KeyPanel::functions, queue, 4));
    panel->content().addSpacing(gridStep);
    panel->content().addLayout(keyGrid(display, KeyPanel::power, queue, 3));
    panel->content().addStretch();
    return panel;
}

}  // namespace

QWidget* makeRadioPage(BandMap& map, Display& display, ChangeQueue& queue) {
    auto* panels = new FlowPage(3, 4);
    panels->grid().setContentsMargins(4 * gridStep, 3 * gridStep, 4 * gridStep, 3 * gridStep);
    panels->add(keysPanel("Bands, meters", display, KeyPanel::bands, queue, 13), {0, 0, 12}, {0, 0, 12});
    panels->add(keysPanel("Mode", display, KeyPanel::modes, queue, 4), {1, 0, 4}, {1, 0, 6});
    panels->add(tuningPanel(display, queue), {1, 4, 4}, {1, 6, 6});
    panels->add(functionsPanel(display, queue), {1, 8, 4}, {2, 6, 6});
    panels->add(receiverPanel(display, queue), {2, 0, 5}, {2, 0, 6});
    panels->add(transmitterPanel(display, queue), {2, 5, 3}, {3, 0, 6});
    panels->add(scopePanel(display, queue), {2, 8, 4}, {3, 6, 6});
    // The strip stays in sight while the panels scroll on a small screen.
    auto* place = new QScrollArea;
    place->setWidgetResizable(true);
    place->setFrameShape(QFrame::NoFrame);
    place->setFocusPolicy(Qt::NoFocus);
    place->setWidget(panels);
    auto* page = new QWidget;
    auto* rows = new QVBoxLayout(page);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addWidget(place, 1);
    rows->addWidget(makeBandMapStrip(map, display, queue));
    return page;
}

}  // namespace corvane
