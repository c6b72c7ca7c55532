// The table cells with a control in them. One row per column: the one control that serves the whole column, and its
// action.
#pragma once

#include <array>
#include <string_view>

#include "controller/serial_port_demo_controller.h"

namespace corvane {

template <class CellControl>
struct CellView {
    std::string_view name;
    TableView Display::*table;
    std::string_view column;
    CellControl Display::*control;
    void (SerialPortDemoController::*action)(CellControl& sender);
};

inline constexpr std::array buttonCellViews{
    CellView<Button>{"PotaCellView", &Display::potaTable, "tune", &Display::potaTableTuneButton,
                     &SerialPortDemoController::goPotaTune},
    CellView<Button>{"SotaCellView", &Display::sotaTable, "tune2", &Display::sotaTableTuneButton,
                     &SerialPortDemoController::goSotaTune},
    CellView<Button>{"NetLoggerCellView", &Display::netLoggerTable, "tune", &Display::netLoggerTableTuneButton,
                     &SerialPortDemoController::goNetLoggerTune},
    CellView<Button>{"NetsCellView", &Display::netsTable, "tune3", &Display::netsTableTuneButton,
                     &SerialPortDemoController::goNetsTune},
    CellView<Button>{"NetsConfirmCellView", &Display::netsTable, "confirm", &Display::netsTableConfirmButton,
                     &SerialPortDemoController::goNetsConfirm},
    CellView<Button>{"NetsUnconfirmCellView", &Display::netsTable, "unconfirm", &Display::netsTableUnconfirmButton,
                     &SerialPortDemoController::goNetsUnconfirm},
    CellView<Button>{"mwCellView", &Display::mwTable, "tune3", &Display::mwTableTuneButton,
                     &SerialPortDemoController::goMWTune},
    CellView<Button>{"AutoMemsCellView", &Display::autoMemTable, "tune", &Display::autoMemsTableTuneButton,
                     &SerialPortDemoController::goAutoMemsTune},
    CellView<Button>{"AutoMemsClearCellView", &Display::autoMemTable, "clear", &Display::autoMemsTableClearButton,
                     &SerialPortDemoController::goAutoMemsClear},
    CellView<Button>{"WatchCellView", &Display::watchTable, "tune", &Display::watchTableTuneButton,
                     &SerialPortDemoController::goWatchTune},
    CellView<Button>{"WatchListCellView", &Display::watchListTable, "remove", &Display::watchListTableRemoveButton,
                     &SerialPortDemoController::goWatchRemove},
    CellView<Button>{"ShareCellView", &Display::shareTable, "disconnect", &Display::shareTableDisconnectButton,
                     &SerialPortDemoController::goShareDisconnect},
};

inline constexpr std::array popUpCellViews{
    CellView<PopUpButton>{"ModeCellView", &Display::memoriesTable, "mode", &Display::memsTableModePopUpButton,
                          &SerialPortDemoController::modeEdited},
};

// Text cells that can be edited.
inline constexpr std::array textCellViews{
    CellView<TextField>{"", &Display::memoriesTable, "frequency", &Display::memsTableFrequencyField,
                        &SerialPortDemoController::textEdited},
    CellView<TextField>{"", &Display::memoriesTable, "memTag", &Display::memsTableTagField,
                        &SerialPortDemoController::textEdited},
    CellView<TextField>{"", &Display::autoMemTable, "notes1", &Display::autoMemsTableNoteField,
                        &SerialPortDemoController::autoNoteEdited},
};

}  // namespace corvane
