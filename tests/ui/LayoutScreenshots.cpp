// Takes pictures of the options dialog and of every page of the layout editor, light and dark.
//
// usage: layout_screenshots FOLDER THEMES     THEMES is the folder of the themes that ship
#include "Fakes.h"
#include "Palettes.h"
#include "TestFolder.h"
#include "frmEditLayout.h"
#include "frmOptions.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QStyleFactory>
#include <QTabWidget>
#include <QTest>

#include <cstdlib>
#include <filesystem>
#include <iostream>

using namespace Qt::StringLiterals;

namespace {

using namespace tunedex;

class Photographer {
  public:
    explicit Photographer(QString folder) : folder_(std::move(folder)) {}

    void Take(QWidget& window, const QString& name) const {
        window.show();
        QTest::qWait(50);
        const QString path = folder_ + u'/' + name + u".png"_s;
        if (!window.grab().save(path)) {
            std::cerr << "cannot write " << path.toStdString() << '\n';
            std::exit(EXIT_FAILURE);
        }
    }

  private:
    QString folder_;
};

void TakeAll(const Photographer& photographer, Application& application, UserInterface& ui,
             const QString& palette) {
    application.settings.SetDefaults();
    {
        frmOptions options(application, ui);
        photographer.Take(options, u"options-"_s + palette);
        options.findChild<QAbstractButton*>(u"chkLinks"_s)->click();
        options.resize(options.minimumSizeHint());
        photographer.Take(options, u"options-smallest-"_s + palette);
    }
    frmEditLayout editor(application, ui);
    auto* tabs = editor.findChild<QTabWidget*>(u"TabStrip"_s);
    for (int page = 0; page < tabs->count(); ++page) {
        tabs->setCurrentIndex(page);
        photographer.Take(editor, u"layout-%1-%2"_s.arg(page).arg(palette));
    }
    editor.resize(editor.minimumSizeHint());
    for (int page = 0; page < tabs->count(); ++page) {
        tabs->setCurrentIndex(page);
        photographer.Take(editor, u"layout-smallest-%1-%2"_s.arg(page).arg(palette));
    }
}

// What each theme looks like, by the preview.
void TakeThemes(const Photographer& photographer, Application& application, UserInterface& ui,
                const QDir& themes) {
    for (const QString& file : themes.entryList({u"*.thm"_s}, QDir::Files, QDir::Name)) {
        application.settings.SetDefaults();
        application.settings.DoLinks = true;
        LoadSettings(application.settings, themes.filePath(file).toStdString(), "", std::cerr);
        frmEditLayout editor(application, ui);
        editor.show();
        QTest::qWait(20);
        photographer.Take(*editor.findChild<QWidget*>(u"txtPreview"_s),
                          u"theme-"_s + QFileInfo(file).completeBaseName());
    }
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const tunedex::test::TestFolder settings;
    qputenv("XDG_CONFIG_HOME", settings.Path().c_str());
    QApplication qt(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 3) {
        std::cerr << "usage: layout_screenshots FOLDER THEMES\n";
        return EXIT_FAILURE;
    }
    QDir().mkpath(arguments[1]);
    QApplication::setStyle(QStyleFactory::create(u"Fusion"_s));

    const tunedex::test::TestFolder programFolder;
    const std::string themes = programFolder.Make("Themes");
    std::filesystem::copy(arguments[2].toStdString(), themes,
                          std::filesystem::copy_options::recursive |
                              std::filesystem::copy_options::overwrite_existing);
    tunedex::test::FakeApplication fake(programFolder.Path());
    tunedex::test::FakeUserInterface ui;
    const Photographer photographer(arguments[1]);
    QApplication::setPalette(tunedex::test::LightPalette());
    TakeAll(photographer, fake.application, ui, u"light"_s);
    TakeThemes(photographer, fake.application, ui, QDir(arguments[2]));
    QApplication::setPalette(tunedex::test::DarkPalette());
    TakeAll(photographer, fake.application, ui, u"dark"_s);
    return EXIT_SUCCESS;
}
