# Headers of libraries that nearly every source of a target includes: they are read once for a target instead of once for
# a source, which halves the time of a whole build. Sources include what they use all the same: other builds
# than Debug do without, as g++ 12 warns of its own headers when it optimises what was precompiled.
function(corvane_precompile target)
    if(NOT CMAKE_BUILD_TYPE STREQUAL "Debug")
        return()
    endif()
    set(headers <algorithm> <array> <chrono> <functional> <map> <memory> <optional> <string> <string_view> <variant>
                <vector>)
    if("Qt" IN_LIST ARGN)
        list(APPEND headers <QHash> <QObject> <QString> <QTimer>)
    endif()
    if("Widgets" IN_LIST ARGN)
        list(APPEND headers <QAbstractButton> <QApplication> <QComboBox> <QLabel> <QLayout> <QLineEdit> <QMenu>
                            <QPainter> <QTableView> <QWidget>)
    endif()
    if("GTest" IN_LIST ARGN)
        list(APPEND headers <gtest/gtest.h>)
    endif()
    if("GMock" IN_LIST ARGN)
        list(APPEND headers <gmock/gmock.h>)
    endif()
    if("QtTest" IN_LIST ARGN)
        list(APPEND headers <QTest>)
    endif()
    target_precompile_headers(${target} PRIVATE ${headers})
endfunction()
