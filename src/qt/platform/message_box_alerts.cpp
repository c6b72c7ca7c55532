#include "qt/platform/message_box_alerts.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <utility>

#include "qt/platform/parent_window.h"

namespace corvane {

namespace {

// Deletes itself when it is answered or the window is deleted.
QMessageBox* box(QMessageBox::Icon icon, std::string_view text) {
    auto* box = new QMessageBox(icon, QApplication::applicationDisplayName(),
                                QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())),
                                QMessageBox::NoButton, parentWindow());
    box->setTextFormat(Qt::PlainText);
    box->setAttribute(Qt::WA_DeleteOnClose);
    return box;
}

}  // namespace

void MessageBoxAlerts::warn(std::string_view text) {
    QMessageBox* warning = box(QMessageBox::Warning, text);
    warning->addButton(QMessageBox::Ok);
    warning->open();
}

void MessageBoxAlerts::confirm(std::string_view text, std::string_view verb, std::function<void()> confirmed) {
    QMessageBox* question = box(QMessageBox::Question, text);
    const auto* yes = question->addButton(QString::fromUtf8(verb.data(), static_cast<qsizetype>(verb.size())),
                                          QMessageBox::AcceptRole);
    QPushButton* no = question->addButton(QMessageBox::Cancel);
    question->setDefaultButton(no);
    question->setEscapeButton(no);
    QObject::connect(question, &QMessageBox::finished, question, [question, yes, run = std::move(confirmed)] {
        if (question->clickedButton() == yes) run();
    });
    question->open();
}

}  // namespace corvane
