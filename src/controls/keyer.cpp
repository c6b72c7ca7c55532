#include "controls/keyer.h"

#include <array>

#include "controls/sendable_text.h"
#include "controls/text_messages.h"
#include "wire/operating_modes.h"

namespace corvane {

namespace {

// One row per editor, by the tag of the pop-up that writes its text.
struct MemoryEditor {
    int tag;
    TextField Display::*text;
    const ModeGroup& group;
};

constexpr std::array memoryEditors{
    MemoryEditor{3001, &Display::cwMemoryField, *cwGroup},
    MemoryEditor{3002, &Display::rttyMemoryField, *rttyGroup},
    MemoryEditor{3003, &Display::pskMemoryField, *pskGroup},
};

const ModeGroup* groupInUse(const Mirror& mirror) { return modeGroup(modeCode(mirror.state().vqMode)); }

}  // namespace

Keyer::Keyer(Display& display, Link& link, Mirror& mirror) : display_(display), link_(link), mirror_(mirror) {
    for (TextField* text : {&display.cwMemoryField, &display.rttyMemoryField, &display.pskMemoryField})
        text->setMaximumLength(static_cast<int>(textPieceLength));
}

// Outside CW, RTTY and PSK there is no memory to send from: nothing is sent and the typed text stays.
void Keyer::sendTextMessage(Button&) {
    if (transmit(display_.textMemoryField.stringValue())) clearTextMessage();
}

bool Keyer::transmit(const std::string& text) {
    const ModeGroup* group = groupInUse(mirror_);
    if (!group || !refusal(text).empty()) return false;
    // After all three groups have been read, the memory 5 reported last may be that of another group.
    mirror_.rememberScratchMemory(*group);
    for (const std::string_view piece : textPieces(text)) {
        link_.write(storeScratch(*group, piece));
        link_.write(std::string(group->playCommands[scratchMemory - 1]));
    }
    link_.write(storeScratch(*group, mirror_.state().vqTextMemoryRevert));
    log(text);
    return true;
}

void Keyer::clearTextMessage() {
    display_.textMemoryField.endEditing();
    display_.textMemoryField.setStringValue({});
    display_.textMemoryNoticeField.setStringValue({});
}

void Keyer::returnPressedInTextMessageField(TextField&) { display_.sendTextMemoryButton.performClick(); }

std::optional<std::string> Keyer::playMemory(int memory) {
    const ModeGroup* group = groupInUse(mirror_);
    if (!group) return std::nullopt;
    log(mirror_.state().vqTextMemoryArray[static_cast<std::size_t>(memory)]);
    return std::string(group->playCommands[static_cast<std::size_t>(memory - 1)]);
}

void Keyer::log(const std::string& text) {
    constexpr std::size_t longest = 20'000;  // bytes; other programs may send texts all day
    std::string log = text + '\n' + display_.sentTextMemoryField.stringValue();
    if (log.size() > longest) log.erase(log.rfind('\n', longest) + 1);
    display_.sentTextMemoryField.setStringValue(log);
}

void Keyer::clearLog() { display_.sentTextMemoryField.setStringValue({}); }

// An entry without a memory, such as the blank one, stores nothing: the text stays in the editor.
void Keyer::writeMemoryText(PopUpButton& sender) {
    const int memory = sender.indexOfSelectedItem();
    if (memory < 1 || memory > Display::memories) return;
    for (const MemoryEditor& editor : memoryEditors) {
        if (editor.tag != sender.tag()) continue;
        TextField& field = display_.*editor.text;
        const std::string command = storeAndReadBack(editor.group, memory, field.stringValue());
        field.endEditing();
        field.setStringValue({});
        sender.selectItem(0);  // the operator chooses a memory for every text
        link_.send(command);
    }
}

}  // namespace corvane
