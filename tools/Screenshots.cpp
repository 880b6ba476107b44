// Takes a picture of each window with sample content, in light and in dark colours.
//
// usage: screenshots FOLDER            run by tools/screenshots, which gives it a screen of its own

#include "Dialogs.h"
#include "Registry.h"
#include "Startup.h"
#include "Statistics.h"
#include "UserInterface.h"
#include "WidgetHelpers.h"
#include "WindowsFrontEnd.h"
#include "frmAbout.h"
#include "frmDirSelection.h"
#include "frmProgress.h"
#include "frmTip.h"

#include <QApplication>
#include <QDir>
#include <QMenu>
#include <QPalette>
#include <QPushButton>
#include <QSettings>
#include <QStyle>
#include <QStyleFactory>
#include <QTemporaryDir>
#include <QTimer>

#include <cstdio>
#include <iostream>

using namespace Qt::StringLiterals;
using namespace tunedex;

namespace {

class SampleRegistry final : public Registry {
  public:
    explicit SampleRegistry(std::string tipsFile) : tipsFile_(std::move(tipsFile)) {}
    std::string Read(std::string_view name) const override {
        return name == "TipsFile" ? tipsFile_ : name == "TipsOnStartup" ? "1" : "";
    }
    void Write(std::string_view /*name*/, std::string_view /*text*/) override {}

  private:
    std::string tipsFile_;
};

QPalette DarkPalette() {
    QPalette palette(QColor(0x32, 0x32, 0x36), QColor(0x2b, 0x2b, 0x2f));
    palette.setColor(QPalette::Base, QColor(0x1e, 0x1e, 0x21));
    palette.setColor(QPalette::AlternateBase, QColor(0x26, 0x26, 0x2a));
    palette.setColor(QPalette::Highlight, QColor(0x2a, 0x7f, 0x93));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(0x6c, 0xc3, 0xd6));
    palette.setColor(QPalette::PlaceholderText, QColor(0x8a, 0x8a, 0x90));
    palette.setColor(QPalette::ToolTipBase, QColor(0x3a, 0x3a, 0x3f));
    palette.setColor(QPalette::ToolTipText, Qt::white);
    return palette;
}

void FillSample(Application& application) {
    application.settings.SetDefaults();
    application.settings.Directory = "/home/lea/Music";
    application.settings.OutputFile = "/home/lea/Documents/music.htm";
    application.statistics = {"2026-03-14", 41, 27, 18230};
}

class Pictures {
  public:
    Pictures(QString folder, QString suffix) : folder_(std::move(folder)), suffix_(std::move(suffix)) {}

    void Take(QWidget& window, const QString& name) {
        window.show();
        for (int turn = 0; turn < 5; ++turn) {
            QApplication::processEvents();
        }
        const QString path = QDir(folder_).filePath(name + suffix_ + u".png"_s);
        if (!window.grab().save(path)) {
            std::cerr << "cannot write " << path.toStdString() << '\n';
            failed_ = true;
        }
    }
    // The picture of a window that waits for an answer; it is dismissed afterwards.
    void TakeModal(const QString& name) {
        QTimer::singleShot(300, qApp, [this, name] {
            QWidget* window = QApplication::activeModalWidget();
            Take(*window, name);
            window->close();
        });
    }
    bool Failed() const { return failed_; }

  private:
    QString folder_;
    QString suffix_;
    bool failed_ = false;
};

bool TakeAll(Application& application, const QString& folder, const QString& suffix) {
    Pictures pictures(folder, suffix);
    FillSample(application);
    Dialogs dialogs;
    WindowsFrontEnd frontEnd(application, dialogs);
    frontEnd.FillFields(FieldsFor(application.settings));
    frmMain& window = frontEnd.MainWindow();
    pictures.Take(window, u"main"_s);

    window.findChild<QPushButton*>(u"cmdPageTitlePlaceHolders"_s)->click();
    pictures.Take(*window.findChild<QMenu*>(u"mnuPlaceholders"_s), u"placeholders"_s);
    window.findChild<QMenu*>(u"mnuPlaceholders"_s)->close();

    application.settings.Directory = "%MULT%/home/lea/Music%||%/home/lea/Audio books%||%/media/archive/mp3";
    frontEnd.FillFields(FieldsFor(application.settings));
    pictures.Take(window, u"main-folders"_s);
    {
        frmDirSelection folders(application, frontEnd, dialogs, &window);
        pictures.Take(folders, u"folders"_s);
    }
    {
        frmTip tip(application, frontEnd, &window);
        pictures.Take(tip, u"tip"_s);
    }
    {
        frmAbout about(application, frontEnd, &window);
        pictures.Take(about, u"about"_s);
    }
    {
        frmProgress progress(window);
        progress.Display(u"Retrieving MPEG/ID3 information (812/1250)..."_s, 1250, 812);
        pictures.Take(progress, u"progress"_s);
    }
    pictures.TakeModal(u"message"_s);
    frontEnd.ShowMessage("The output directory does not exist!\r\n\r\nDo you want to create it?",
                         kYesNoExclamation, "Error!");
    pictures.TakeModal(u"browse"_s);
    dialogs.ChooseFolder(
        &window, u"Select a Directory"_s,
        u"Select the folder that you would like Tunedex to scan for MP3 files, and click OK."_s,
        QDir::rootPath().toStdString());
    window.hide();
    return !pictures.Failed();
}

} // namespace

int main(int argc, char** argv) {
    QApplication qtApplication(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 3) {
        std::cerr << "usage: screenshots FOLDER TIPS-FILE\n";
        return 2;
    }
    const QTemporaryDir configuration; // pictures show windows as they are at first
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, configuration.path());
    SystemClock clock;
    SampleRegistry registry(arguments[2].toStdString());
    Application application{clock, registry, std::cerr, Locale(), {}, {}, {}, "", "", false, "Error!", false};

    QApplication::setStyle(QStyleFactory::create(u"Fusion"_s));
    InstallProgramIcon();
    const QPalette light = QApplication::style()->standardPalette();
    QApplication::setPalette(light);
    const bool lightTaken = TakeAll(application, arguments[1], u"-light"_s);
    QApplication::setPalette(DarkPalette());
    const bool darkTaken = TakeAll(application, arguments[1], u"-dark"_s);
    return lightTaken && darkTaken ? 0 : 1;
}
