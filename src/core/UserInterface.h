// What start-up and the list job need of a front end. The windows and the terminal implement it, and so do
// the tests.
#pragma once

#include "RunMonitor.h"
#include "Settings.h"

#include <string>
#include <string_view>

namespace tunedex {

// Buttons and icon of a message box, and the button pressed. The numbers are an interface: they stand in logs
// and tests.
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

// The main window's fields: txtInputDir, txtOutputFile, txtWindowTitle, txtPageTitle, txtPageFooter and the
// check box chkMultipleDirs. UTF-8; paths may hold stray bytes.
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

    // Takes every control of the windows into the settings, as TakeMainFields and TakeLayoutControls do where
    // there is no open dialog.
    virtual void TakeControls(Settings& settings) = 0;

    // Shows a message and waits for its answer. Line breaks in `text` are CR LF.
    virtual int ShowMessage(std::string_view text, int buttons, std::string_view title) = 0;

    // A name of a file or folder as it goes into a message: unchanged unless the front end shows messages
    // where a line break or another character of the name could pass for part of the message.
    virtual std::string NameInMessage(std::string_view name) const { return std::string(name); }

    // Moves the focus into a field and selects its whole text.
    virtual void FocusAndSelect(MainField field) = 0;
    // Lets the user at the main window and the options window again.
    virtual void EnableWindows() = 0;

    // Shows the progress window without waiting; the monitor lives until the front end does. While the window
    // is closed the monitor stores texts and numbers and shows nothing.
    virtual RunMonitor& ShowProgress() = 0;
    virtual void SetProgressCaption(std::string_view caption) = 0;
    // Closes the progress window, if it is open.
    virtual void CloseProgress() = 0;
};

} // namespace tunedex
