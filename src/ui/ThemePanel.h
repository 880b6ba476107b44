// The themes of the layout editor: the list of them, and loading, saving and deleting one.
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
    // `content` tells what a theme saved now holds. What is referred to must live as long as the panel.
    ThemePanel(Application& application, WindowInterface& ui, const Choosers& choosers,
               std::function<ThemeContent()> content, QWidget* parent = nullptr);

    void ListThemes();
    // Applies the theme to the settings at once. A theme that is gone changes nothing.
    void LoadTheme(const std::string& name);
    void SaveTheme();
    void DeleteTheme(const std::string& name);

  signals:
    // The settings have changed; controls should follow them.
    void ThemeLoaded();

  private:
    // Asks before it replaces a file. Raises the error of a file that cannot be written.
    void WriteThemeFile(const std::string& path);
    // Runs a command on theme files and says so when it fails. Whether it went well.
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
