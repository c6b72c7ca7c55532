#include "qt/platform/desktop_web_browser.h"

#include <QDesktopServices>
#include <QString>
#include <QUrl>

#include "platform/web_address.h"

namespace corvane {

void DesktopWebBrowser::open(std::string_view url) {
    const std::string_view web = webAddress(url);
    const QUrl address(QString::fromUtf8(web.data(), static_cast<qsizetype>(web.size())), QUrl::TolerantMode);
    if (!web.empty() && address.isValid()) QDesktopServices::openUrl(address);
}

}  // namespace corvane
