#include "WindowTest.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace tunedex::test {
namespace {

template <typename Answer> Answer Next(std::deque<Answer>& answers, Answer otherwise) {
    if (answers.empty()) {
        return otherwise;
    }
    Answer answer = answers.front();
    answers.pop_front();
    return answer;
}

} // namespace

int FakeDialogs::ShowMessage(QWidget* owner, const QString& text, int buttons, const QString& title) {
    messages.push_back({FromQt(text), buttons, FromQt(title), owner});
    if (whileMessageIsShown) {
        whileMessageIsShown();
    }
    return Next(answers, static_cast<int>(kAnswerOk));
}

bool FakeDialogs::ShowReport(QWidget* owner, const QString& text, const QString& title) {
    ShowMessage(owner, text, kOkExclamation, title);
    return !declineReports;
}

std::optional<std::string> FakeDialogs::ChooseFolder(QWidget* /*owner*/, const QString& title,
                                                     const QString& prompt, const std::string& start) {
    folderQuestions.push_back({FromQt(title), FromQt(prompt), start});
    return Next(folders, std::optional<std::string>());
}

std::vector<std::string> FakeDialogs::ChooseFolders(QWidget* owner, const QString& title,
                                                    const QString& prompt, const std::string& start) {
    std::vector<std::string> chosen;
    if (const auto first = ChooseFolder(owner, title, prompt, start)) {
        chosen.push_back(*first);
        chosen.insert(chosen.end(), moreFolders.begin(), moreFolders.end());
    }
    return chosen;
}

std::optional<std::string> FakeDialogs::ChooseFile(QWidget* /*owner*/, const FileQuestion& question) {
    fileQuestions.push_back(question);
    return Next(files, std::optional<std::string>());
}

FakeBrowser::FakeBrowser() {
    for (const QString& scheme : {u"file"_s, u"https"_s, u"mailto"_s}) {
        QDesktopServices::setUrlHandler(scheme, this, "Open");
    }
}

FakeBrowser::~FakeBrowser() {
    for (const QString& scheme : {u"file"_s, u"https"_s, u"mailto"_s}) {
        QDesktopServices::unsetUrlHandler(scheme);
    }
}

Desk::Desk() : fake(folder.Path()), frontEnd(fake.application, dialogs) {}

void Desk::Show() {
    Main().show();
    if (!QTest::qWaitForWindowExposed(&Main())) {
        qFatal("the main window does not appear");
    }
    Main().activateWindow();
    if (!QTest::qWaitForWindowActive(&Main())) {
        qFatal("the main window does not become active");
    }
}

void Click(const QObject& window, const char* button) {
    QTest::mouseClick(&Find<QAbstractButton>(window, button), Qt::LeftButton);
}

void Choose(const QObject& window, const char* menuItem) {
    Find<QAction>(window, menuItem).trigger();
}

void PressMnemonic(QWidget& window, Qt::Key letter) {
    QTest::keyClick(&window, letter, Qt::AltModifier);
    QTest::qWait(200); // animateClick() releases the button after 100 ms
}

void Type(const QObject& window, const char* field, const char* text) {
    auto& line = Find<QLineEdit>(window, field);
    line.setFocus();
    line.selectAll();
    QTest::keyClick(&line, Qt::Key_Delete);
    QTest::keyClicks(&line, QString::fromUtf8(text));
}

std::string TextOf(const QObject& window, const char* field) {
    if (const auto* line = window.findChild<QLineEdit*>(QString::fromLatin1(field)); line != nullptr) {
        return FromQt(line->text());
    }
    return FromQt(Find<QLabel>(window, field).text());
}

bool IsEnabled(const QObject& window, const char* control) {
    return Find<QWidget>(window, control).isEnabled();
}

void UseOwnWindowStore() {
    static const QTemporaryDir folder;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder.path());
}

} // namespace tunedex::test
