// A certificate that is made for one test and trusted only by it.
#pragma once

#include <QProcess>
#include <QSslCertificate>
#include <QSslConfiguration>
#include <QSslKey>
#include <QTemporaryDir>

namespace corvane {

class TestCertificate {
public:
    // `name` is the server's: "IP:127.0.0.1" or "DNS:elsewhere.example". Valid for `days` from now; -1: until
    // yesterday.
    explicit TestCertificate(const QString& name, int days = 1) {
        run("req -x509 -newkey ec -pkeyopt ec_paramgen_curve:prime256v1 -nodes -keyout key.pem -out first.pem "
            "-subj /CN=corvane-test -addext subjectAltName=" +
            name);
        run("x509 -in first.pem -signkey key.pem -out certificate.pem -days " + QString::number(days));
    }

    QSslConfiguration ofServer() const {
        QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
        configuration.setLocalCertificate(certificate());
        QFile file(folder_.filePath("key.pem"));
        if (file.open(QIODevice::ReadOnly)) configuration.setPrivateKey(QSslKey(&file, QSsl::Ec));
        return configuration;
    }
    QSslCertificate certificate() const {
        return QSslCertificate::fromPath(folder_.filePath("certificate.pem")).value(0);
    }

private:
    void run(const QString& arguments) const {
        QProcess openssl;
        openssl.setWorkingDirectory(folder_.path());
        openssl.start("openssl", arguments.split(' '));
        openssl.waitForFinished();
    }

    const QTemporaryDir folder_;
};

// While it lives, this process trusts the certificate.
class Trusted {
public:
    explicit Trusted(const TestCertificate& certificate) {
        QSslConfiguration trusting = before_;
        trusting.addCaCertificate(certificate.certificate());
        QSslConfiguration::setDefaultConfiguration(trusting);
    }
    ~Trusted() { QSslConfiguration::setDefaultConfiguration(before_); }
    Trusted(const Trusted&) = delete;
    Trusted& operator=(const Trusted&) = delete;

private:
    const QSslConfiguration before_ = QSslConfiguration::defaultConfiguration();
};

}  // namespace corvane
