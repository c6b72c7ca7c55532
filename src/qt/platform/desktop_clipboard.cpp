#include "qt/platform/desktop_clipboard.h"

#include <QClipboard>
#include <QGuiApplication>

namespace corvane {

void DesktopClipboard::setText(std::string_view text) {
    QGuiApplication::clipboard()->setText(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
}

}  // namespace corvane
