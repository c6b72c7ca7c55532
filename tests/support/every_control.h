// All controls of the window, one after the other.
#pragma once

#include "display/display.h"

namespace corvane {

template <typename Each>
void forEachControl(Display& display, Each each) {
    for (const FrontPanelKey& row : frontPanelKeys) each(display.key(row.outlet.tag));
    for (auto* memories : {&display.cwMemoryButtons, &display.rttyMemoryButtons, &display.pskMemoryButtons})
        for (Button& memory : *memories) each(memory);
    // clang-format off
    Control* const controls[] = {
        &display.mainTab, &display.settingsTab, &display.activeVfoField, &display.modeField, &display.sMeter, &display.licenseClassButton,
        &display.linkStatusField, &display.linkMessageField, &display.PortPopUpButton, &display.BaudPopUpButton,
        &display.portDetailsField, &display.openCloseButton, &display.readMemoriesButton, &display.sendTextField,
        &display.sendButton, &display.freqTextField, &display.modesPopUpButton, &display.memPopUpButton,
        &display.AGCPopUpButton, &display.ATTPopUpButton, &display.ampPopUpButton, &display.RFILPopUpButton,
        &display.DNRPopupButton, &display.NBPopupButton, &display.smeterPopUpButton, &display.MPVDButton,
        &display.FuncKnobButton, &display.powerPopUpButton, &display.APOPopUpButton, &display.colorPopUpButton,
        &display.spectrumModePopUpButton, &display.scopeSpeedPopUpButton, &display.scopePeakPopUpButton,
        &display.scopeLevelPopUpButton, &display.scopeSpanPopUpButton, &display.afGainSlider, &display.rfGainSlider,
        &display.sendBox, &display.textMemoryField, &display.sendTextMemoryButton, &display.clearTextMemoryButton,
        &display.sentTextMemoryField, &display.menuItemPreferencesVoice, &display.menuItemPreferencesSounds,
        &display.menuItemPreferencesIPO, &display.callTextField, &display.saveCallButton, &display.callNoticeField,
        &display.tuneButton, &display.presetPopUpButton, &display.textMemoryNoticeField, &display.cwMemoryField,
        &display.rttyMemoryField, &display.pskMemoryField, &display.cwMemoryPopUpButton,
        &display.rttyMemoryPopUpButton, &display.pskMemoryPopUpButton, &display.memoryTextNoticeField,
        &display.memoriesTable, &display.writeMemoriesButton, &display.exportMemoriesButton,
        &display.importMemoriesButton, &display.memoryReadField, &display.memoryReadProgress,
        &display.memoryBackupField, &display.autoMemTable, &display.autoMemoryNowButton,
        &display.autoMemSquelchSlider, &display.autoMemSquelchTextField, &display.autoMemsTableTuneButton,
        &display.autoMemsTableClearButton, &display.memsTableModePopUpButton, &display.memsTableFrequencyField,
        &display.memsTableTagField, &display.autoMemsTableNoteField, &display.listsTab, &display.potaTable, &display.sotaTable,
        &display.netLoggerTable, &display.netsTable, &display.mwTable, &display.potaStatusField,
        &display.sotaStatusField, &display.netLoggerStatusField, &display.netsStatusField, &display.mwStatusField,
        &display.potaTableTuneButton, &display.sotaTableTuneButton, &display.netLoggerTableTuneButton,
        &display.netsTableTuneButton, &display.netsTableConfirmButton, &display.netsTableUnconfirmButton,
        &display.mwTableTuneButton, &display.bandBox, &display.solarFluxField, &display.day8040Field,
        &display.day3020Field, &display.day1715Field, &display.day1210Field, &display.night8040Field,
        &display.night3020Field, &display.night1715Field, &display.night1210Field, &display.magicBandField,
        &display.signalNoiseField, &display.bandStatusField
    };
    // clang-format on
    for (Control* control : controls) each(*control);
    display.menu.forEachPopUp([&](const MenuItemRow&, PopUpButton& popUp) { each(popUp); });
    for (int page = 0; page < MenuControls::pages; ++page) {
        each(display.menu.readField(page));
        each(display.menu.readProgress(page));
    }
}

}  // namespace corvane
