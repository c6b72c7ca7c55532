// Takes the addresses that would open in the desktop's programs.
#pragma once

#include <QDesktopServices>
#include <QObject>
#include <QUrl>
#include <string>
#include <vector>

namespace corvane {

class UrlCatcher : public QObject {
    Q_OBJECT

public:
    explicit UrlCatcher(std::vector<const char*> schemes) : schemes_(std::move(schemes)) {
        for (const char* scheme : schemes_) QDesktopServices::setUrlHandler(scheme, this, "take");
    }
    ~UrlCatcher() override {
        for (const char* scheme : schemes_) QDesktopServices::unsetUrlHandler(scheme);
    }

    std::vector<std::string> taken;

public slots:
    void take(const QUrl& url) { taken.push_back(url.toEncoded().toStdString()); }

private:
    const std::vector<const char*> schemes_;
};

}  // namespace corvane
