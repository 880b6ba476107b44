// Starts the program up to its main window, in the same steps as main.cpp.
#include "FirstPaint.h"

#include "Application.h"
#include "Dialogs.h"
#include "ProgramIcon.h"
#include "QSettingsRegistry.h"
#include "Startup.h"
#include "WindowsFrontEnd.h"

#include <QApplication>

#include <iostream>

int main(int argc, char** argv) {
    tunedex::SystemClock clock;
    tunedex::QSettingsRegistry registry;
    tunedex::Application application{clock, registry, std::cerr};
    QApplication qtApplication(argc, argv);
    tunedex::InstallProgramIcon();
    tunedex::Dialogs dialogs;
    tunedex::WindowsFrontEnd frontEnd(application, dialogs);
    tunedex::StartUp(application, frontEnd, {});
    const FirstPaint painted(frontEnd.MainWindow());
    frontEnd.MainWindow().show();
    return QApplication::exec();
}
