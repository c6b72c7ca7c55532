#include <gmock/gmock.h>

#include <set>

#include "display/display.h"

namespace corvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct ControlTest : testing::Test {
    ControlTest() {
        queue.onFirstChange = [this] { ++planned; };
        for (Control* control :
             std::initializer_list<Control*>{&button, &popUp, &slider, &field, &level, &tabs, &box, &item})
            views.push_back(control->addView(queue, [this, control] { shown.push_back(control->objectName()); }));
    }
    std::vector<std::string> refresh() {
        queue.refresh();
        return std::exchange(shown, {});
    }

    ChangeQueue queue;
    std::vector<std::string> shown;
    int planned = 0;
    std::vector<ViewHandle> views;
    Button button{{"m20Button", 20, "20"}};
    PopUpButton popUp{{"", 2007}};
    Slider slider{{"slider"}, 10, 20};
    TextField field{{"field"}};
    LevelIndicator level{{"level"}, 10};
    TabView tabs{{"tabs"}};
    Box box{{"box", 0, "Keyer"}};
    MenuItem item{{"item", 900}};
};

TEST_F(ControlTest, ASetterShowsAChangeOnceAndNothingThatIsThereAlready) {
    popUp.setEntries({"OFF", "ON"});
    EXPECT_THAT(refresh(), ElementsAre("tag2007"));
    // clang-format off
    const std::pair<std::function<void()>, std::string> changes[] = {
        {[&] { button.setTitle("40"); }, "m20Button"}, {[&] { button.setTag(1020); }, "m20Button"},
        {[&] { button.setEnabled(false); }, "m20Button"}, {[&] { button.setBusy(true); }, "m20Button"}, {[&] { button.setVisible(false); }, "m20Button"},
        {[&] { button.setBezelColor(Color::red); }, "m20Button"},
        {[&] { button.setImage(Image::NSImageNameTouchBarAudioOutputMuteTemplate); }, "m20Button"},
        {[&] { popUp.selectItem(1); }, "tag2007"}, {[&] { popUp.selectItem(3); }, "tag2007"},
        {[&] { popUp.selectItemWithTitle("OFF"); }, "tag2007"}, {[&] { slider.setIntegerValue(99); }, "slider"},
        {[&] { field.setStringValue("FA;"); }, "field"}, {[&] { level.setIntegerValue(99); }, "level"},
        {[&] { tabs.selectItem(1); }, "tabs"}, {[&] { tabs.requestView(2); }, "tabs"},
        {[&] { box.setTitle("Send CW"); }, "box"}, {[&] { box.setTitleColor(Color::darkGray); }, "box"},
        {[&] { item.setChecked(true); }, "item"}
    };
    // clang-format on
    for (const auto& [change, name] : changes) {
        change();
        EXPECT_THAT(refresh(), ElementsAre(name));
        planned = 0;
        change();
        EXPECT_EQ(planned, 0) << name;
    }
    EXPECT_EQ(slider.integerValue(), 20);
    EXPECT_EQ(level.integerValue(), 10);
    slider.setIntegerValue(5);
    level.setIntegerValue(-4);
    EXPECT_EQ(slider.integerValue(), 10);
    EXPECT_EQ(level.integerValue(), 0);
}

TEST_F(ControlTest, ManyChangesAreShownOnceInOneRefresh) {
    for (int tag = 0; tag < 100; ++tag) {
        button.setTag(tag);
        field.setStringValue(std::to_string(tag));
    }
    EXPECT_EQ(planned, 1);
    EXPECT_THAT(refresh(), ElementsAre("m20Button", "field"));
    EXPECT_THAT(refresh(), IsEmpty());
    button.setTag(7);
    EXPECT_EQ(planned, 2);
    EXPECT_THAT(refresh(), ElementsAre("m20Button"));
}

TEST_F(ControlTest, AChangeMadeWhileShowingWaitsForTheNextRefresh) {
    const ViewHandle copying = field.addView(queue, [this] { button.setTitle(field.stringValue()); });
    field.setStringValue("40");
    EXPECT_THAT(refresh(), ElementsAre("field"));
    EXPECT_EQ(planned, 2);
    EXPECT_THAT(refresh(), ElementsAre("m20Button"));
}

TEST_F(ControlTest, EveryQueueShowsTheViewsThatJoinedIt) {
    ChangeQueue second;
    std::vector<std::string> shownInSecond;
    const ViewHandle view = button.addView(second, [&] { shownInSecond.push_back(button.title()); });
    for (const char* title : {"40", "80"}) {
        button.setTitle(title);
        EXPECT_THAT(refresh(), ElementsAre("m20Button"));
    }
    second.refresh();
    EXPECT_THAT(shownInSecond, ElementsAre("80"));
    EXPECT_THAT(refresh(), IsEmpty());
}

TEST_F(ControlTest, ViewsControlsAndQueuesGoInAnyOrder) {
    const auto say = [this](const char* what) { return [this, what] { shown.emplace_back(what); }; };
    auto gone = std::make_unique<Button>(Outlet{"gone"});
    ViewHandle ofGone = gone->addView(queue, say("gone"));
    ViewHandle taken = button.addView(queue, say("taken back"));
    ViewHandle ended = field.addView(queue, say("ended by another"));
    const ViewHandle ending = button.addView(queue, [&] { ended = {}; });
    auto other = std::make_unique<ChangeQueue>();
    const ViewHandle ofOther = button.addView(*other, say("of no queue"));
    ViewHandle moved = item.addView(queue, say("moved"));
    views.push_back(std::move(moved));
    gone->setTitle("changed");
    button.setTitle("40");
    field.setStringValue("FA;");
    item.setChecked(true);
    gone.reset();
    taken = {};
    other.reset();
    EXPECT_THAT(refresh(), ElementsAre("m20Button", "field", "item", "moved"));
    button.setTitle("80");
    EXPECT_THAT(refresh(), ElementsAre("m20Button"));
}

TEST_F(ControlTest, PopUpSelectsWhatItHas) {
    popUp.setEntries({"OFF", "1", "2"});
    EXPECT_EQ(popUp.indexOfSelectedItem(), PopUpButton::noSelection);
    EXPECT_EQ(popUp.titleOfSelectedItem(), "");
    popUp.selectItem(2);
    popUp.selectItemWithTitle("3");
    EXPECT_EQ(popUp.titleOfSelectedItem(), "2");
    popUp.selectItemWithTitle("1");
    EXPECT_EQ(popUp.indexOfSelectedItem(), 1);
    for (const int beyond : {3, -1, -7}) {
        popUp.selectItem(0);
        popUp.selectItem(beyond);
        EXPECT_EQ(popUp.indexOfSelectedItem(), PopUpButton::noSelection) << beyond;
    }
    popUp.selectItem(2);
    const int version = popUp.entriesVersion();
    popUp.setEntries({"OFF"});
    EXPECT_EQ(popUp.indexOfSelectedItem(), PopUpButton::noSelection);
    EXPECT_NE(popUp.entriesVersion(), version);
}

TEST_F(ControlTest, AChoiceActsOnlyWhereTheOperatorMayMakeIt) {
    std::vector<std::string> done;
    popUp.setEntries({"OFF", "ON"});
    popUp.choose(1);
    EXPECT_EQ(popUp.indexOfSelectedItem(), PopUpButton::noSelection) << "a pop-up without an action only shows";
    popUp.action = [&](PopUpButton& sender) { done.emplace_back(sender.titleOfSelectedItem()); };
    button.action = [&](Button& sender) { done.push_back(sender.title()); };
    field.action = [&](TextField& sender) { done.push_back(sender.stringValue()); };
    slider.action = [&](Slider& sender) { done.push_back(std::to_string(sender.integerValue())); };
    item.action = [&](MenuItem& sender) { done.push_back(sender.objectName()); };
    const std::initializer_list<Control*> controls{&popUp, &button, &field, &slider, &item};
    const auto useAll = [&] {
        popUp.choose(1 - popUp.indexOfSelectedItem());
        button.performClick();
        field.performReturn();
        slider.drag(slider.integerValue() + 1);
        item.performClick();
    };
    popUp.selectItem(0);
    field.setStringValue("FA;");
    useAll();
    EXPECT_THAT(std::exchange(done, {}), ElementsAre("ON", "20", "FA;", "11", "item"));
    for (Control* control : controls) control->setEnabled(false);
    useAll();
    for (Control* control : controls) control->setEnabled(true);
    for (Control* control : controls) control->setBusy(true);
    refresh();
    useAll();
    EXPECT_THAT(refresh(), ElementsAre("tag2007", "slider")) << "their widgets may show what did not happen";
    EXPECT_THAT(done, IsEmpty());
    EXPECT_EQ(popUp.indexOfSelectedItem(), 1);
    EXPECT_EQ(slider.integerValue(), 11);
}

TEST(Display, ListsEveryControlOnceByItsName) {
    Display display;
    const Button beside{{"beside"}};
    std::set<std::string> names;
    for (const Control* control : display.controls())
        EXPECT_TRUE(names.insert(control->objectName()).second) << control->objectName();
    for (const char* name : {"m6Button", "tag2050000", "mainTab", "callTextField", "pskMemory5Button", "mwTable",
                             "displayMenuReadProgress", "tag2010104", "menuItemPreferencesIPO"})
        EXPECT_TRUE(names.contains(name)) << name;
    EXPECT_FALSE(names.contains("beside"));
}

}  // namespace
}  // namespace corvane
