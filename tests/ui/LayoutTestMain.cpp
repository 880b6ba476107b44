// Runs one test class, or all of them: layout_test [CLASS [QT-TEST-OPTION...]]
#include "TestClasses.h"
#include "TestFolder.h"

#include <QApplication>
#include <QStandardPaths>
#include <QTest>

#include <iostream>

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const tunedex::test::TestFolder home; // keeps window geometry out of the user's settings
    qputenv("XDG_CONFIG_HOME", home.Path().c_str());
    QApplication application(argc, argv);
    const std::string wanted = argc > 1 ? argv[1] : "";
    QStringList options = QApplication::arguments();
    options.remove(1, wanted.empty() ? 0 : 1);

    int failures = 0;
    bool found = false;
    for (const auto& [name, make] : tunedex::test::TestClasses()) {
        if (wanted.empty() || wanted == name) {
            found = true;
            failures += QTest::qExec(make().get(), options);
        }
    }
    if (!found) {
        std::cerr << "there is no test class " << wanted << '\n';
        return EXIT_FAILURE;
    }
    return failures == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
