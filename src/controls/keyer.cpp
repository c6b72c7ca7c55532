// Texts on the air: what the operator types, and the memories that the transceiver keeps of each family of modes.
#include <array>

#include "controller/serial_port_demo_controller.h"
#include "controls/text_messages.h"
#include "wire/operating_modes.h"

namespace corvane {

// One row per editor, by the tag of the pop-up that writes its text.
struct SerialPortDemoController::MemoryEditor {
    int tag;
    TextField Display::*text;
    const ModeGroup& family;
};

const SerialPortDemoController::MemoryEditor* SerialPortDemoController::memoryEditor(int tag) {
    static constexpr std::array editors{
        MemoryEditor{3001, &Display::cwMemoryField, modeGroups[0]},
        MemoryEditor{3002, &Display::rttyMemoryField, modeGroups[1]},
        MemoryEditor{3003, &Display::pskMemoryField, modeGroups[2]},
    };
    for (const MemoryEditor& editor : editors)
        if (editor.tag == tag) return &editor;
    return nullptr;
}

// Outside CW, RTTY and PSK there is no memory to send from: nothing goes out and what was typed stays.
void SerialPortDemoController::sendTextMessage(Button&) {
    const ModeGroup* family = modeGroup(modeCode(radio.vqMode));
    if (!family) return;
    const std::string typed = display.textMemoryField.stringValue();
    rememberScratchMemory(*family);
    for (const std::string_view piece : textPieces(typed)) {
        link.cmd = storeScratch(*family, piece);
        writeString(link.cmd);
        link.cmd = family->playCommands[scratchMemory - 1];
        writeString(link.cmd);
    }
    link.cmd = storeScratch(*family, radio.vqTextMemoryRevert);
    writeString(link.cmd);
    display.sentTextMemoryField.setStringValue(typed + '\n' + display.sentTextMemoryField.stringValue());
    clearTextMessage();
}

// The memory 5 reported last may be another family's, after all three have been read.
void SerialPortDemoController::rememberScratchMemory(const ModeGroup& family) {
    const std::array families{&display.cwMemoryButtons, &display.rttyMemoryButtons, &display.pskMemoryButtons};
    const auto index = static_cast<std::size_t>(&family - modeGroups.data());
    radio.vqTextMemoryRevert = (*families[index])[scratchMemory - 1].title();
}

void SerialPortDemoController::clearTextMessage() {
    display.textMemoryField.endEditing();
    display.textMemoryField.setStringValue({});
    display.textMemoryNoticeField.setStringValue({});
}

void SerialPortDemoController::returnPressedInTextMessageField(TextField&) {
    display.sendTextMemoryButton.performClick();
}

// An entry without a memory, the blank one included, has nowhere to store the text: it stays in the editor.
void SerialPortDemoController::writeMemoryText(PopUpButton& sender) {
    const MemoryEditor* editor = memoryEditor(sender.tag());
    const int memory = sender.indexOfSelectedItem();
    if (!editor || memory < 1 || memory > Display::memories) return;
    TextField& field = display.*editor->text;
    link.cmd = storeAndReadBack(editor->family, memory, field.stringValue());
    field.endEditing();
    field.setStringValue({});
    sender.selectItem(0);  // no memory is chosen beforehand for the next text
    sendCommand(link.cmd);
}

}  // namespace corvane
