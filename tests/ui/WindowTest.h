// What the tests of windows share: an application of fakes, answers to dialogs, a hand on every control.
#pragma once

#include "Dialogs.h"
#include "Fakes.h"
#include "TestFolder.h"
#include "WidgetHelpers.h"
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

// Remembers what was asked and gives prepared answers; what nobody has prepared is answered with OK or
// cancelled.
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
    std::optional<std::string> ChooseFolder(QWidget* owner, const QString& title, const QString& prompt,
                                            const std::string& start) override;
    std::optional<std::string> ChooseFile(QWidget* owner, const FileQuestion& question) override;

    std::deque<int> answers;
    std::deque<std::optional<std::string>> folders;
    std::deque<std::optional<std::string>> files;
    std::function<void()> whileMessageIsShown;

    std::vector<Message> messages;
    std::vector<FolderQuestion> folderQuestions;
    std::vector<FileQuestion> fileQuestions;
};

// Takes the place of the browser and the mail program.
class FakeBrowser final : public QObject {
    Q_OBJECT

  public:
    FakeBrowser();
    ~FakeBrowser() override;

    std::vector<QUrl> opened;

  public slots:
    void Open(const QUrl& url) { opened.push_back(url); }
};

// The windows over fakes, in a program folder of the test's own. Nothing is shown before Show().
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

// The control of that name; the test fails loudly where there is none.
template <typename Control> Control& Find(const QObject& window, const char* name) {
    auto* control = window.findChild<Control*>(QString::fromLatin1(name));
    if (control == nullptr) {
        qFatal("no control is called %s", name);
    }
    return *control;
}

// The window of that kind that is open in front of `main`.
template <typename Window> Window& OpenWindow(const QWidget& main) {
    auto* window = main.findChild<Window*>();
    if (window == nullptr || !window->isVisible()) {
        qFatal("no such window is open");
    }
    return *window;
}

void Click(const QObject& window, const char* button);
void Choose(const QObject& window, const char* menuItem);
// Presses Alt and the letter, and waits for the button that it animates.
void PressMnemonic(QWidget& window, Qt::Key letter);
// Types over what is there.
void Type(const QObject& window, const char* field, const char* text);
std::string TextOf(const QObject& window, const char* field);
bool IsEnabled(const QObject& window, const char* control);

// Keeps the window store out of the user's files; call it once, before any window.
void UseOwnWindowStore();

} // namespace tunedex::test

// The main function of a window test.
#define TUNEDEX_WINDOW_TEST(TestClass)                                                                       \
    int main(int argc, char** argv) {                                                                        \
        QApplication application(argc, argv);                                                                \
        QApplication::setQuitOnLastWindowClosed(false);                                                      \
        tunedex::test::UseOwnWindowStore();                                                                  \
        TestClass test;                                                                                      \
        return QTest::qExec(&test, argc, argv);                                                              \
    }
