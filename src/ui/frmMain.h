// The main window: folders, output file, titles, and the commands that open all other windows.
#pragma once

#include "Application.h"
#include "Dialogs.h"
#include "RunOutcome.h"
#include "WindowInterface.h"

#include <QMainWindow>

#include <string>
#include <vector>

class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QMenu;
class QPushButton;

namespace tunedex {

class RecentButton;
class ResultPanel;
class TitleField;

class frmMain final : public QMainWindow {
    Q_OBJECT

  public:
    frmMain(Application& application, WindowInterface& ui, Dialogs& dialogs);

    MainFields Fields() const;
    // Fills every field. In multi-folder mode the folder field and the folder setting are left unchanged.
    void FillFields(const MainFields& fields);
    QLineEdit& Field(MainField field) const;

    // Shows the result of a run; hides it if the run has written no list.
    void ShowResult(const RunOutcome& outcome);
    // After a change of settings elsewhere: updates the hint of the output file, the result and the caption.
    void FollowSettings();
    // The settings have been saved to this file; an empty path means the default one.
    void NoteSaved(const std::string& path);

    // Opens a settings file like the command Open Settings, or applies the look of a theme (.thm). Shows the
    // error of a file that cannot be read.
    void OpenFile(const std::string& path);

  public slots:
    void ShowTipOfTheDay();

  signals:
    void CreateListRequested();
    void OptionsRequested();
    void SwitchModernRequested();
    // The user has quit, and confirmed it if ConfirmQuit is set.
    void Closed();

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    void BuildFields();
    void BuildMenus();
    void BuildPlaceholderMenu();
    QGroupBox* BuildFolderGroup();
    QGroupBox* BuildOutputGroup();
    void ShowOutputHint();
    void ShowSettingsFile();
    QGroupBox* BuildTitleGroup();
    void BuildResultPanel();
    QWidget* BuildCommandRow();
    int LabelWidth() const; // of the longest label; aligns the fields of all groups
    void OrderControls();

    void BrowseFolder();
    void ChooseFolders();
    void TakeDroppedFolders(const std::vector<std::string>& folders);
    void BrowseOutputFile();
    void MultipleDirsToggled();
    void UpdateFolderControls();
    void ShowFolderCount(const QString& text);
    void AlignButtons(); // gives the fields of all groups one width
    void OpenPlaceholderMenu(TitleField& field, QPushButton& button);

    void RememberPaths();
    void OpenResult();
    void ShowResultFolder();

    void OpenSettings();
    void OpenSettingsFile(const std::string& path);
    void OpenTheme(const std::string& path);
    void SaveSettings();
    void SaveSettingsAs();
    void SaveSettingsTo(const std::string& path);

    void ShowHelp();
    void ShowAbout();

    Application& application_;
    WindowInterface& ui_;
    Dialogs& dialogs_;
    std::string settingsPath_; // last opened or saved file; empty for the default file
    Settings saved_;           // the settings in that file
    TitleField* placeholderTarget_ = nullptr;

    QLineEdit* txtInputDir_ = nullptr;
    RecentButton* cmdRecentFolders_ = nullptr;
    QPushButton* cmdSelectDir_ = nullptr;
    QCheckBox* chkMultipleDirs_ = nullptr;
    QLabel* lblFolderCount_ = nullptr;
    QPushButton* cmdSelectDirs_ = nullptr;
    QLineEdit* txtOutputFile_ = nullptr;
    RecentButton* cmdRecentOutputs_ = nullptr;
    QPushButton* cmdSelectOutputFile_ = nullptr;
    QLabel* lblOutputHint_ = nullptr;
    TitleField* txtWindowTitle_ = nullptr;
    TitleField* txtPageTitle_ = nullptr;
    TitleField* txtPageFooter_ = nullptr;
    QPushButton* cmdWindowTitlePlaceHolders_ = nullptr;
    QPushButton* cmdPageTitlePlaceHolders_ = nullptr;
    QPushButton* cmdPageFooterPlaceHolders_ = nullptr;
    ResultPanel* fraResult_ = nullptr;
    QPushButton* cmdOptions_ = nullptr;
    QPushButton* cmdAbout_ = nullptr;
    QPushButton* cmdQuit_ = nullptr;
    QPushButton* cmdCreateList_ = nullptr;
    QMenu* mnuPlaceholders_ = nullptr;
};

} // namespace tunedex
