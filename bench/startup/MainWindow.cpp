// The program's own start up to its main window, by the same steps.
#include "FirstPaint.h"

#include "Application.h"
#include "Dialogs.h"
#include "QSettingsRegistry.h"
#include "Startup.h"
#include "WidgetHelpers.h"
#include "WindowsFrontEnd.h"

#include <QApplication>

#include <iostream>

int main(int argc, char** argv) {
    tunedex::SystemClock clock;
    tunedex::QSettingsRegistry registry;
    tunedex::Application application{clock, registry, std::cerr};
    QApplication qtApplication(argc, argv);
    tunedex::Dialogs dialogs;
    tunedex::WindowsFrontEnd frontEnd(application, dialogs);
    tunedex::StartUp(application, frontEnd, {});
    const FirstPaint painted(frontEnd.MainWindow());
    frontEnd.MainWindow().show();
    QTimer::singleShot(100, &frontEnd.MainWindow(), &tunedex::InstallProgramIcon);
    return QApplication::exec();
}
