// The help page lists what the window has.
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "qt/window/shortcuts.h"

namespace corvane {
namespace {

TEST(HelpPage, HasEveryShortcut) {
    std::ifstream stream(CORVANE_SOURCE "/docs/help.html");
    const std::string page{std::istreambuf_iterator<char>(stream), {}};
    Display display;
    for (const ShortcutText& shortcut : shortcutTexts(display)) {
        const QString row = "<td><kbd>" + shortcut.keys + "</kbd></td><td>" + shortcut.meaning;
        EXPECT_NE(page.find(row.toStdString()), std::string::npos) << row.toStdString();
    }
}

}  // namespace
}  // namespace corvane
