// The main window: what changes from list to list, and the commands that reach everything else.
#pragma once

#include "Application.h"
#include "Dialogs.h"
#include "WindowInterface.h"

#include <QMainWindow>

#include <functional>
#include <string>
#include <vector>

class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QMenu;
class QPushButton;

namespace tunedex {

class TitleField;

class frmMain final : public QMainWindow {
    Q_OBJECT

  public:
    frmMain(Application& application, WindowInterface& ui, Dialogs& dialogs);

    MainFields Fields() const;
    // Fills every field; in multi-folder mode the folder field keeps its text, and the settings their
    // folders.
    void FillFields(const MainFields& fields);
    QLineEdit& Field(MainField field) const;

  public slots:
    void ShowTipOfTheDay();

  signals:
    void CreateListRequested();
    void OptionsRequested();
    // The user has quit, and confirmed it where that is wanted.
    void Closed();

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    void BuildFields();
    void BuildMenus();
    void BuildPlaceholderMenu();
    QGroupBox* BuildFolderGroup();
    QGroupBox* BuildOutputGroup();
    QGroupBox* BuildTitleGroup();
    QWidget* BuildCommandRow();
    QPushButton* MakeButton(const char* name, const QString& caption, const QString& accessibleName,
                            const QString& description);
    int LabelWidth() const; // of the longest, so that the fields of all groups are in line
    void OrderControls();

    void BrowseFolder();
    void ChooseFolders();
    void TakeDroppedFolders(const std::vector<std::string>& folders);
    void BrowseOutputFile();
    void MultipleDirsToggled();
    void UpdateFolderControls();
    void OpenPlaceholderMenu(TitleField& field, QPushButton& button);

    void OpenSettings();
    void SaveSettings();
    void SaveSettingsAs();
    void SaveSettingsTo(const std::string& path);
    // Runs a command whose run-time errors end in a message.
    void Guarded(const std::function<void()>& command);

    void ShowHelp();
    void ShowAbout();

    Application& application_;
    WindowInterface& ui_;
    Dialogs& dialogs_;
    std::string settingsPath_; // the file last opened or saved; empty for the default one
    TitleField* placeholderTarget_ = nullptr;

    QLineEdit* txtInputDir_ = nullptr;
    QLabel* lblInputDir_ = nullptr;
    QPushButton* cmdSelectDir_ = nullptr;
    QCheckBox* chkMultipleDirs_ = nullptr;
    QLabel* lblFolderCount_ = nullptr;
    QPushButton* cmdSelectDirs_ = nullptr;
    QLineEdit* txtOutputFile_ = nullptr;
    QPushButton* cmdSelectOutputFile_ = nullptr;
    TitleField* txtWindowTitle_ = nullptr;
    TitleField* txtPageTitle_ = nullptr;
    TitleField* txtPageFooter_ = nullptr;
    QPushButton* cmdWindowTitlePlaceHolders_ = nullptr;
    QPushButton* cmdPageTitlePlaceHolders_ = nullptr;
    QPushButton* cmdPageFooterPlaceHolders_ = nullptr;
    QPushButton* cmdOptions_ = nullptr;
    QPushButton* cmdAbout_ = nullptr;
    QPushButton* cmdQuit_ = nullptr;
    QPushButton* cmdCreateList_ = nullptr;
    QMenu* mnuPlaceholders_ = nullptr;
};

} // namespace tunedex
