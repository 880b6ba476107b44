// The theme list of the layout editor, with commands to load, save and delete a theme. A theme that the user
// selects is previewed until something else is done.
#pragma once

#include "Application.h"
#include "Choosers.h"
#include "Themes.h"
#include "WindowInterface.h"

#include <QGroupBox>

#include <functional>
#include <optional>
#include <string>

class QLabel;
class QPushButton;

namespace tunedex {

class ThemeList;

// What loading a theme would give.
struct ThemePreview {
    QString name;
    Settings settings;
};

class ThemePanel : public QGroupBox {
    Q_OBJECT

  public:
    // `content` returns what SaveTheme() writes. The referenced objects must outlive the panel.
    ThemePanel(Application& application, WindowInterface& ui, const Choosers& choosers,
               std::function<ThemeContent()> content, QWidget* parent = nullptr);

    // Lists the themes by name, ignoring case, and selects the first.
    void ListThemes();
    // Applies the theme to the settings at once. Does nothing if its file no longer exists.
    void LoadTheme(const std::string& name);
    void SaveTheme();
    void DeleteTheme(const std::string& name);

    // The theme that is previewed; none if its file cannot be read.
    std::optional<ThemePreview> Preview() const;
    // The user does something else: ends the preview and clears the status.
    void Leave();
    // Says beside the command to load, and to screen readers, what loading discards; empty: nothing.
    void ShowLoss(const QString& loss);

  signals:
    // The settings have changed; the controls must be reloaded.
    void ThemeLoaded();
    // Preview() has changed.
    void PreviewChanged();

  private:
    void Build();
    void Browse();
    void SetPreviewing(bool previewing);
    // Screen readers announce it, too.
    void ShowStatus(const QString& text);
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
    ThemeList* lvwThemes_;
    QPushButton* cmdLoadTheme_;
    QPushButton* cmdSaveTheme_;
    QPushButton* cmdDeleteTheme_;
    QLabel* lblLoss_;
    QLabel* lblThemeStatus_;
    bool previewing_ = false;
};

} // namespace tunedex
