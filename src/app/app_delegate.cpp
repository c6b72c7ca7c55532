#include "app/app_delegate.h"

namespace corvane {

void AppDelegate::applicationDidFinishLaunching() {
    pages_.tabView.selectItem(0);
    display_.memoriesTable.registerForDraggedText();
}

}  // namespace corvane
