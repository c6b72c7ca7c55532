#include "qt/window/program_facts.h"

#include <QCoreApplication>
#include <QDir>
#include <QGuiApplication>
#include <QSysInfo>

namespace corvane {

ProgramFacts programFacts() {
    const QString system = QSysInfo::prettyProductName() + ", " + QSysInfo::kernelType() + ' ' +
                           QSysInfo::kernelVersion() + ", " + QSysInfo::currentCpuArchitecture();
    return {"Corvane " + QCoreApplication::applicationVersion().toStdString(),
            std::string("Qt ") + qVersion() + " on " + QGuiApplication::platformName().toStdString(),
            system.toStdString(), QDir::homePath().toStdString()};
}

}  // namespace corvane
