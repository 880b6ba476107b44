// The lower bound: a program with an empty Qt Widgets window.
#include "FirstPaint.h"

#include <QApplication>
#include <QMainWindow>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QMainWindow window;
    const FirstPaint painted(window);
    window.resize(600, 370);
    window.show();
    return QApplication::exec();
}
