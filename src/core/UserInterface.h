// What start-up and the list job need from a front end. Implemented by the windows, the terminal and the test
// fakes.
#pragma once

#include "RunMonitor.h"
#include "Settings.h"

#include <string>
#include <string_view>

namespace tunedex {

// Buttons and icon of a message box, and its answer. The values are an interface: they appear in logs and
// tests.
enum MessageButtons : int {
    kOkCancelQuestion = 33,
    kYesNoQuestion = 36,
    kOkExclamation = 48,
    kYesNoExclamation = 52,
    kOkInformation = 64,
};

enum MessageAnswer : int {
    kAnswerOk = 1,
    kAnswerCancel = 2,
    kAnswerYes = 6,
    kAnswerNo = 7,
};

// The fields of the main window: txtInputDir, txtOutputFile, txtWindowTitle, txtPageTitle, txtPageFooter and
// the check box chkMultipleDirs. UTF-8; paths may contain stray bytes.
struct MainFields {
    bool multipleFolders = false;
    std::string inputFolder;
    std::string outputFile;
    std::string windowTitle;
    std::string pageTitle;
    std::string pageFooter;
};

enum class MainField { InputFolder, OutputFile };

class UserInterface {
  public:
    UserInterface() = default;
    UserInterface(const UserInterface&) = delete;
    UserInterface& operator=(const UserInterface&) = delete;
    virtual ~UserInterface() = default;

    virtual MainFields Fields() const = 0;
    virtual void FillFields(const MainFields& fields) = 0;

    // Copies the controls of all windows into the settings, with TakeMainFields and TakeLayoutControls where
    // no dialog is open.
    virtual void TakeControls(Settings& settings) = 0;

    // Shows a message and waits for the answer. Line breaks in `text` are CR LF.
    virtual int ShowMessage(std::string_view text, int buttons, std::string_view title) = 0;

    // Shows the message of an error that does not end the run. A front end may let the user decline further
    // ones until the run is over.
    virtual void ShowReport(std::string_view text, std::string_view title) {
        ShowMessage(text, kOkExclamation, title);
    }

    // The form of a file or folder name within a message. Override where a line break or another character of
    // the name could be mistaken for part of the message.
    virtual std::string NameInMessage(std::string_view name) const { return std::string(name); }

    // Sets the focus to a field and selects all its text.
    virtual void FocusAndSelect(MainField field) = 0;
    // Re-enables the main window and the options window.
    virtual void EnableWindows() = 0;

    // Shows the progress window and returns at once. The monitor lives as long as the front end; while the
    // window is closed it stores texts and numbers and shows nothing.
    virtual RunMonitor& ShowProgress() = 0;
    virtual void SetProgressCaption(std::string_view caption) = 0;
    // Does nothing when the progress window is closed.
    virtual void CloseProgress() = 0;
};

} // namespace tunedex
