// The band map in the real window, with the simulated transceiver: walking, pressing, hearing, and what it repaints.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QLabel>
#include <QPaintEvent>
#include <QWheelEvent>

#include "feeds/feed_table.h"
#include "qt/window/band_map_view.h"
#include "station.h"

namespace corvane {
namespace {

using namespace std::chrono_literals;

struct MapStation : Station {
    MapStation() {
        EXPECT_TRUE(eventually([this] {  // no service answers
            return std::ranges::none_of(listFeeds, [this](const ListFeed& feed) {
                return (display.*feed.status).stringValue().starts_with("Refreshing");
            });
        }));
        const auto spot = [](const char* call, const char* kilohertz) {
            return FeedRow{{call, kilohertz, "SSB", "", "A Park", "4", "", "", "US-ME", "US-1"}};
        };
        controller.lists.setRows(listFeed(Feed::pota),
                                 {spot("K1ABC", "14285"), spot("K2ABC", "14205"), spot("K3ABC", "18120")});
        showMap();
    }
    void showMap() {
        show(Display::bandMapPage);
        map = find<BandMapView>("bandMap");
        ASSERT_TRUE(eventually([&] { return map->isVisible() && !map->rows().empty(); }));
    }
    void connect() {
        show(Display::stationPage);
        synchronise();
        showMap();
    }
    void press(Qt::Key key) { QTest::keyClick(map, key); }
    std::string line() const { return controller.display.bandMapField.stringValue(); }
    bool tunedTo(int hertz) {
        return eventually([&] { return radio.transceiver.state().activeTuning().frequency == hertz; });
    }
    // What a screen reader hears of the item that has the focus.
    std::string heard() {
        QAccessibleInterface* item = QAccessible::queryAccessibleInterface(map)->focusChild();
        return item ? item->text(QAccessible::Name).toStdString() : "";
    }
    QPoint pointAt(std::size_t band, long long hertz, bool onMark) const {
        const MapRow& row = map->rows()[band];
        return QPointF(BandMapPicture::gutter + row.xOf(hertz), onMark ? row.markTop + 3 : row.stripTop + 4).toPoint();
    }

    BandMapView* map = nullptr;
};

constexpr std::size_t meters20 = 5;

TEST(BandMapTest, IsWalkedOverAndTunedFromTheKeyboard) {
    MapStation station;
    station.map->setFocus();
    station.press(Qt::Key_Home);
    station.press(Qt::Key_Return);
    EXPECT_EQ(station.line(), "Not connected: nothing is sent.");
    EXPECT_TRUE(station.radio.takeReceived().empty());

    station.connect();
    station.map->setFocus();
    while (station.map->cursor().band > meters20) station.press(Qt::Key_Up);
    while (station.map->cursor().band < meters20) station.press(Qt::Key_Down);
    station.press(Qt::Key_Down);
    EXPECT_EQ(station.heard(), "17 meters, 1 entry");
    station.press(Qt::Key_Right);
    EXPECT_EQ(station.heard(), "POTA K3ABC, US-1, 18.120 MHz, USB, 4 minutes ago, General");
    EXPECT_TRUE(station.line().starts_with(station.heard())) << station.line();
    station.press(Qt::Key_Return);
    EXPECT_TRUE(station.tunedTo(18'120'000));
    station.press(Qt::Key_Up);
    station.press(Qt::Key_End);
    station.press(Qt::Key_Left);
    QAccessibleInterface* list = QAccessible::queryAccessibleInterface(station.map);
    EXPECT_EQ(list->text(QAccessible::Name), "Band map");
    QAccessibleInterface* item = list->focusChild();
    ASSERT_NE(item, nullptr);
    EXPECT_TRUE(item->state().focused);
    EXPECT_EQ(list->child(list->indexOfChild(item)), item);
    item->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(station.tunedTo(14'285'000)) << station.heard();
    station.press(Qt::Key_Tab);
    EXPECT_FALSE(station.map->hasFocus()) << "one tab stop";
}

TEST(BandMapTest, IsTunedByAPressAndTheWheel) {
    MapStation station;
    station.connect();
    const QPoint mark = station.pointAt(meters20, 14'205'000, true);
    QTest::mouseMove(station.map, mark);
    EXPECT_TRUE(station.line().starts_with("POTA K2ABC")) << station.line();
    QTest::mouseClick(station.map, Qt::LeftButton, {}, mark);
    EXPECT_TRUE(station.tunedTo(14'205'000));
    station.settle();
    const QPoint notch(0, -120);
    QWheelEvent wheel(mark, station.map->mapToGlobal(mark), {}, notch, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                      false);
    QApplication::sendEvent(station.map, &wheel);
    EXPECT_TRUE(station.tunedTo(14'204'500));
    station.settle();
    const QPoint place = station.pointAt(meters20, 14'300'000, false);
    const long long hertz = station.map->rows()[meters20].hertzAt(place.x() - BandMapPicture::gutter);
    QTest::mouseClick(station.map, Qt::LeftButton, {}, place);
    EXPECT_TRUE(station.tunedTo(static_cast<int>((hertz + 250) / 500 * 500)));
}

// Adds up what a widget repaints.
class Repainted : public QObject {
public:
    explicit Repainted(QWidget* watched) : QObject(watched) { watched->installEventFilter(this); }

    QRegion region;

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint) region += static_cast<QPaintEvent*>(event)->region();
        return false;
    }
};

TEST(BandMapTest, ANeedleRepaintsOnlyWhatItCoversAndAHiddenMapNothing) {
    MapStation station;
    station.controller.interpretResponses("FA014200000;");
    runEventLoop(30ms);
    Repainted painted(station.map);
    station.controller.interpretResponses("FA014210000;");
    ASSERT_TRUE(eventually([&] { return !painted.region.isEmpty(); }));
    int pixels = 0;
    for (const QRect& part : painted.region) pixels += part.width() * part.height();
    EXPECT_LT(pixels, 60 * static_cast<int>(station.map->rows()[meters20].height));
    painted.region = {};
    station.controller.interpretResponses("FA014210001;");
    runEventLoop(30ms);
    EXPECT_TRUE(painted.region.isEmpty()) << "not a pixel farther";
    station.show(Display::radioPage);
    station.controller.interpretResponses("FA007210000;");
    runEventLoop(30ms);
    EXPECT_TRUE(station.map->rows().empty() && painted.region.isEmpty());
}

TEST(BandMapTest, OneRowOfItIsOnTheRadioPageWhileThePreferenceIsOn) {
    Station station;
    station.show(Display::radioPage);
    EXPECT_EQ(station.find<BandMapView>("bandMapStrip"), nullptr);
    QAction& preference = station.action("Band map on the Radio page");
    preference.trigger();
    ASSERT_TRUE(eventually([&] { return station.find<BandMapView>("bandMapStrip") != nullptr; }));
    auto* strip = station.find<BandMapView>("bandMapStrip");
    EXPECT_TRUE(eventually([&] { return strip->isVisible() && strip->rows().size() == 1; }));
    station.controller.interpretResponses("FA007210000;");
    EXPECT_TRUE(eventually([&] { return mapBands[strip->rows()[0].band].keyTag == 40; }));
    preference.trigger();
    EXPECT_TRUE(eventually([&] { return !strip->isVisible(); }));
    EXPECT_EQ(station.platform.settings.text("bandmap"), "0");
}

}  // namespace
}  // namespace corvane
