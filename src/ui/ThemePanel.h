// The theme list of the layout editor, with commands to load, save and delete a theme.
#pragma once

#include "Application.h"
#include "Choosers.h"
#include "Themes.h"
#include "WindowInterface.h"

#include <QGroupBox>

#include <functional>
#include <string>

class QLabel;
class QListWidget;
class QPushButton;

namespace tunedex {

class ThemePanel : public QGroupBox {
    Q_OBJECT

  public:
    // `content` returns what SaveTheme() writes. The referenced objects must outlive the panel.
    ThemePanel(Application& application, WindowInterface& ui, const Choosers& choosers,
               std::function<ThemeContent()> content, QWidget* parent = nullptr);

    void ListThemes();
    // Applies the theme to the settings at once. Does nothing if its file no longer exists.
    void LoadTheme(const std::string& name);
    void SaveTheme();
    void DeleteTheme(const std::string& name);

  signals:
    // The settings have changed; the controls must be reloaded.
    void ThemeLoaded();

  private:
    // Asks before replacing a file. Raises the error if the file cannot be written.
    void WriteThemeFile(const std::string& path);
    // Runs a command and shows the run-time error it raises. Returns whether it raised none.
    bool Attempt(const std::function<void()>& command);
    std::string SelectedTheme() const;
    void EnableCommands();

    Application& application_;
    WindowInterface& ui_;
    const Choosers& choosers_;
    std::function<ThemeContent()> content_;
    QListWidget* lvwThemes_;
    QPushButton* cmdLoadTheme_;
    QPushButton* cmdSaveTheme_;
    QPushButton* cmdDeleteTheme_;
    QLabel* lblThemeStatus_;
};

} // namespace tunedex
