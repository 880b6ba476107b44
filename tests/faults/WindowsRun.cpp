// The program with windows and automatic answers: prints every message to standard error and presses its
// default button, or Yes if it has one and TUNEDEX_ANSWER is "yes".
#include "Application.h"
#include "CommandLine.h"
#include "QSettingsRegistry.h"
#include "RunWindows.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include <cstdio>
#include <exception>
#include <iostream>
#include <string>
#include <vector>

namespace {

QAbstractButton* ButtonFor(const QMessageBox& box) {
    QAbstractButton* const yes = box.button(QMessageBox::Yes);
    if (yes != nullptr && qEnvironmentVariable("TUNEDEX_ANSWER") == QStringLiteral("yes")) {
        return yes;
    }
    QAbstractButton* const no = box.button(QMessageBox::No);
    return no != nullptr ? no : box.buttons().value(0);
}

void AnswerMessages() {
    auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr || !box->isVisible() || box->property("answered").toBool()) {
        return;
    }
    box->setProperty("answered", true);
    std::cerr << box->windowTitle().toStdString() << '\n' << box->text().toStdString() << '\n';
    ButtonFor(*box)->click();
}

void StartAnswering() {
    auto* const timer = new QTimer(QCoreApplication::instance());
    QObject::connect(timer, &QTimer::timeout, &AnswerMessages);
    timer->start(1);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(StartAnswering)

int main(int argc, char** argv) {
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    tunedex::SystemClock clock;
    tunedex::QSettingsRegistry registry;
    tunedex::Application application{clock, registry, std::cerr};
    try {
        return tunedex::RunWindows(argc, argv, application, tunedex::IsAutomatic(arguments));
    } catch (const std::exception& error) {
        std::cerr << "Tunedex could not start: " << error.what() << '\n';
    }
    return 2;
}
