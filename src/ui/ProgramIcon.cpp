#include "ProgramIcon.h"

#include <QApplication>
#include <QIcon>

using namespace Qt::StringLiterals;

// Q_INIT_RESOURCE declares a function in the enclosing namespace, which must be the global one.
static void InitResources() {
    Q_INIT_RESOURCE(icons);
}

namespace tunedex {

void InstallProgramIcon() {
    InitResources();
    QIcon icon;
    for (const int size : {16, 22, 24, 32, 48, 64, 128, 256}) {
        icon.addFile(u":/icons/tunedex-%1.png"_s.arg(size), QSize(size, size));
    }
    QApplication::setWindowIcon(icon);
}

} // namespace tunedex
