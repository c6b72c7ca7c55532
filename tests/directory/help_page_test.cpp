// The help page tells of what the window has.
#include <gmock/gmock.h>

#include <fstream>
#include <iterator>

#include "qt/window/shortcuts.h"

namespace corvane {
namespace {

using testing::HasSubstr;

TEST(HelpPage, HasEveryShortcut) {
    std::ifstream stream(CORVANE_SOURCE "/docs/help.html");
    const std::string page{std::istreambuf_iterator<char>(stream), {}};
    Display display;
    for (const ShortcutText& shortcut : shortcutTexts(display)) {
        const QString row = "<td><kbd>" + shortcut.keys + "</kbd></td><td>" + shortcut.meaning;
        EXPECT_THAT(page, HasSubstr(row.toStdString()));
    }
}

}  // namespace
}  // namespace corvane
