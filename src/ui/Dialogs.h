// The modal dialogs: message box, folder chooser, file chooser. Virtual, so that tests can answer them.
#pragma once

#include <QCoreApplication>
#include <QString>

#include <optional>
#include <string>
#include <vector>

class QWidget;

namespace tunedex {

struct FileQuestion {
    QString title;
    QString filters;   // see FileFilters.h: "Text File (*.txt)|*.txt|All Files (*.*)|*.*"
    std::string start; // initial file or folder; may be empty
    bool forSaving = false;
};

class Dialogs {
    Q_DECLARE_TR_FUNCTIONS(tunedex::Dialogs)

  public:
    Dialogs() = default;
    Dialogs(const Dialogs&) = delete;
    Dialogs& operator=(const Dialogs&) = delete;
    virtual ~Dialogs() = default;

    // `buttons` is one of MessageButtons, the result one of MessageAnswer.
    virtual int ShowMessage(QWidget* owner, const QString& text, int buttons, const QString& title);
    // The message of an error that does not end a run. Returns false if the user wants no more of them in
    // this run.
    virtual bool ShowReport(QWidget* owner, const QString& text, const QString& title);
    // Folders are chosen in the desktop's own dialog where it offers one (FolderPortal.h).
    // Return no value when the user cancels. Paths are native bytes, not necessarily UTF-8.
    virtual std::optional<std::string> ChooseFolder(QWidget* owner, const QString& title,
                                                    const QString& prompt, const std::string& start);
    // The same for several folders; none when the user cancels.
    virtual std::vector<std::string> ChooseFolders(QWidget* owner, const QString& title,
                                                   const QString& prompt, const std::string& start);
    virtual std::optional<std::string> ChooseFile(QWidget* owner, const FileQuestion& question);
};

// Inserts zero-width spaces into words of more than 60 characters (paths), so that a message box can wrap
// them and stays narrower than the screen.
QString WithBreaksInLongWords(const QString& text);

} // namespace tunedex
