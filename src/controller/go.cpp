// The two actions that many controls share. They find the room of a front-panel key or a pop-up.
#include <variant>

#include "controller/serial_port_demo_controller.h"
#include "controls/setup_pop_ups.h"
#include "feeds/feed_table.h"
#include "interpret/menu_groups.h"

namespace corvane {

namespace {

struct Press {
    SerialPortDemoController& face;
    Button& sender;
    int firstTag;

    template <typename Key>
    void operator()(const Key& key) const {
        face.frontPanel.press(sender, key);
    }
    void operator()(const ToggleKey& key) const { face.frontPanel.press(sender, key, firstTag); }
    void operator()(const MuteKey& key) const { face.frontPanel.press(sender, key, firstTag); }
    void operator()(const FirstScopeColorKey& key) const { face.frontPanel.press(sender, key, firstTag); }
    void operator()(const TextMemoryKey& key) const {
        if (auto command = face.keyer.playMemory(key.memory)) face.frontPanel.finish(std::move(*command));
    }
    void operator()(const ClearLogKey&) const {
        face.keyer.clearLog();
        face.frontPanel.finish({});
    }
    void operator()(const ReadMenuKey& key) const {
        face.frontPanel.finish(face.setupMenu.readGroup(menuGroups.at(static_cast<std::size_t>(key.page))));
    }
    void operator()(const ProductPageKey&) const { face.openLink(face.hosts.productPage()); }
    void operator()(const ClearAutoMemoriesKey&) const { face.autoMemories.clear(); }
    // Only a refresh that a key started ends with a sound.
    void operator()(const RefreshKey& key) const {
        const auto& status =
            key.feed == Feed::bandConditions ? face.display.bandStatusField : face.display.*listFeed(key.feed).status;
        const auto sound = [&face = face, &status] {
            face.voice.playSound("Funk");
            face.display.announcements.say(status.stringValue());
        };
        if (key.feed == Feed::bandConditions)
            face.conditions.fetch({.sound = sound, .then = {}});
        else
            face.lists.fetch(key.feed, {.sound = sound, .then = {}});
    }
};

}  // namespace

void SerialPortDemoController::go(Button& sender) {
    if (const FrontPanelKey* key = frontPanelKey(sender.tag())) {
        std::visit(Press{*this, sender, key->outlet.tag}, key->action);
        // The voice guide speaks the frequency of a VFO by itself.
        const bool spoken = std::holds_alternative<VfoKey>(key->action) && preferences.voiceGuide();
        if (tunes(key->panel) && !spoken) display.announcements.sayTuning();
    } else
        frontPanel.pressWithoutAction(sender);
}

void SerialPortDemoController::goSuperPopUp(PopUpButton& sender) {
    const SetupPopUp* row = setupPopUp(sender.tag());
    if (!row) return setupMenu.writeMenuItem(sender);
    switch (row->choice) {
        case SetupChoice::powerOff:
            return powerOff.choose(sender);
        case SetupChoice::memoryText:
            return keyer.writeMemoryText(sender);
        case SetupChoice::index:
        case SetupChoice::title:
        case SetupChoice::watts:
            return functionPopUps.send(sender, *row);
    }
}

}  // namespace corvane
