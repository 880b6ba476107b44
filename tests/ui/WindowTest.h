// Fixture for window tests: a fake application, prepared answers to dialogs, access to controls by name.
#pragma once

#include "Dialogs.h"
#include "Fakes.h"
#include "QtText.h"
#include "TestFolder.h"
#include "WindowsFrontEnd.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDialog>
#include <QUrl>
#include <QtTest>

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tunedex::test {

// Records all dialogs and returns the queued answers. With an empty queue a message is answered with OK, a
// chooser is cancelled.
class FakeDialogs final : public Dialogs {
  public:
    struct Message {
        std::string text;
        int buttons;
        std::string title;
        const QWidget* owner;
    };
    struct FolderQuestion {
        std::string title;
        std::string prompt;
        std::string start;
    };

    int ShowMessage(QWidget* owner, const QString& text, int buttons, const QString& title) override;
    // Recorded as a message; declines further ones once `declineReports` is set.
    bool ShowReport(QWidget* owner, const QString& text, const QString& title) override;
    std::optional<std::string> ChooseFolder(QWidget* owner, const QString& title, const QString& prompt,
                                            const std::string& start) override;
    // The next folder, and `moreFolders` behind it.
    std::vector<std::string> ChooseFolders(QWidget* owner, const QString& title, const QString& prompt,
                                           const std::string& start) override;
    std::optional<std::string> ChooseFile(QWidget* owner, const FileQuestion& question) override;

    std::deque<int> answers;
    std::deque<std::optional<std::string>> folders;
    std::vector<std::string> moreFolders;
    std::deque<std::optional<std::string>> files;
    std::function<void()> whileMessageIsShown;
    bool declineReports = false;

    std::vector<Message> messages;
    std::vector<FolderQuestion> folderQuestions;
    std::vector<FileQuestion> fileQuestions;
};

// Receives the URLs that would open in the browser or the mail program.
class FakeBrowser final : public QObject {
    Q_OBJECT

  public:
    FakeBrowser();
    ~FakeBrowser() override;

    std::vector<QUrl> opened;

  public slots:
    void Open(const QUrl& url) { opened.push_back(url); }
};

// The windowed front end over fakes, with a temporary program folder. Windows are hidden until Show().
class Desk {
  public:
    Desk();

    void Show();
    frmMain& Main() { return frontEnd.MainWindow(); }
    Settings& TheSettings() { return fake.application.settings; }

    TestFolder folder;
    FakeApplication fake;
    FakeDialogs dialogs;
    WindowsFrontEnd frontEnd;
};

// The control with that object name. Aborts the test if there is none.
template <typename Control> Control& Find(const QObject& window, const char* name) {
    auto* control = window.findChild<Control*>(QString::fromLatin1(name));
    if (control == nullptr) {
        qFatal("no control is named %s", name);
    }
    return *control;
}

// The visible child window of `main` of that type. Aborts the test if there is none.
template <typename Window> Window& OpenWindow(const QWidget& main) {
    auto* window = main.findChild<Window*>();
    if (window == nullptr || !window->isVisible()) {
        qFatal("the window is not open");
    }
    return *window;
}

void Click(const QObject& window, const char* button);
void Choose(const QObject& window, const char* menuItem);
// Presses Alt and the letter, and waits for the button's animation.
void PressMnemonic(QWidget& window, Qt::Key letter);
// Replaces the field's text by typing.
void Type(const QObject& window, const char* field, const char* text);
std::string TextOf(const QObject& window, const char* field);
bool IsEnabled(const QObject& window, const char* control);

// Redirects saved window geometry to a temporary folder. Call once, before creating any window.
void UseOwnWindowStore();

} // namespace tunedex::test

// Defines the main function of a window test.
#define TUNEDEX_WINDOW_TEST(TestClass)                                                                       \
    int main(int argc, char** argv) {                                                                        \
        QApplication application(argc, argv);                                                                \
        QApplication::setQuitOnLastWindowClosed(false);                                                      \
        tunedex::test::UseOwnWindowStore();                                                                  \
        TestClass test;                                                                                      \
        return QTest::qExec(&test, argc, argv);                                                              \
    }
