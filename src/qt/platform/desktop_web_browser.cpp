#include "qt/platform/desktop_web_browser.h"

#include <QDesktopServices>
#include <QString>
#include <QUrl>

namespace corvane {

void DesktopWebBrowser::open(std::string_view url) {
    const QUrl address(QString::fromUtf8(url.data(), static_cast<qsizetype>(url.size())), QUrl::StrictMode);
    const bool web = address.scheme() == QLatin1String("http") || address.scheme() == QLatin1String("https");
    if (web && !address.host().isEmpty()) QDesktopServices::openUrl(address);
}

}  // namespace corvane
