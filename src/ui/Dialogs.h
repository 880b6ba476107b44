// The boxes that ask the user something and wait: messages, folders, files. Behind one class, so that tests
// can answer.
#pragma once

#include <QString>

#include <optional>
#include <string>

class QWidget;

namespace tunedex {

struct FileQuestion {
    QString title;
    QString filters;   // a filter list: "Text File (*.txt)|*.txt|All Files (*.*)|*.*"
    std::string start; // the file or folder to begin with; may be empty
    bool forSaving = false;
};

class Dialogs {
  public:
    Dialogs() = default;
    Dialogs(const Dialogs&) = delete;
    Dialogs& operator=(const Dialogs&) = delete;
    virtual ~Dialogs() = default;

    // `buttons` is one of MessageButtons, the result one of MessageAnswer.
    virtual int ShowMessage(QWidget* owner, const QString& text, int buttons, const QString& title);
    // No value when the user cancels. Paths are native, as bytes.
    virtual std::optional<std::string> ChooseFolder(QWidget* owner, const QString& title,
                                                    const QString& prompt, const std::string& start);
    virtual std::optional<std::string> ChooseFile(QWidget* owner, const FileQuestion& question);
};

// The text with places at which a very long word (a path) may be broken, so that a message box stays on the
// screen.
QString WithBreaksInLongWords(const QString& text);

} // namespace tunedex
