// Fixture for tests of the options dialog and the layout editor.
#pragma once

#include "DefaultSettings.h"
#include "Fakes.h"
#include "TestFolder.h"
#include "frmEditLayout.h"
#include "frmOptions.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QTabWidget>
#include <QTest>

#include <functional>
#include <string>

namespace tunedex::test {

// Records messages and fields like FakeUserInterface. TakeControls() and FillFields() also store and load the
// open options dialog.
class FakeWindowInterface final : public WindowInterface {
  public:
    MainFields Fields() const override { return fake.Fields(); }
    void FillFields(const MainFields& fields) override {
        fake.FillFields(fields);
        if (options != nullptr) {
            options->LoadControls();
        }
    }
    void TakeControls(Settings& settings) override {
        fake.TakeControls(settings);
        if (options != nullptr) {
            options->StoreControls(settings);
        }
    }
    int ShowMessage(std::string_view text, int buttons, std::string_view title) override {
        if (whileMessageShows) {
            whileMessageShows();
        }
        return fake.ShowMessage(text, buttons, title);
    }
    int ShowMessage(QWidget& /*owner*/, std::string_view text, int buttons, std::string_view title) override {
        return ShowMessage(text, buttons, title);
    }
    void FocusAndSelect(MainField field) override { fake.FocusAndSelect(field); }
    void EnableWindows() override { fake.EnableWindows(); }
    RunMonitor& ShowProgress() override { return fake.ShowProgress(); }
    void SetProgressCaption(std::string_view text) override { fake.SetProgressCaption(text); }
    void CloseProgress() override { fake.CloseProgress(); }

    FakeUserInterface fake;
    frmOptions* options = nullptr;
    std::function<void()> whileMessageShows;
};

// An application with default settings and a temporary program folder without themes.
class LayoutFixture {
  public:
    LayoutFixture() { settings = DefaultSettings(); }

    TestFolder folder;
    FakeApplication fake{folder.Path()};
    Application& application = fake.application;
    Settings& settings = fake.application.settings;
    FakeWindowInterface ui;

    using Message = FakeUserInterface::Message;
    std::vector<Message>& Messages() { return ui.fake.messages; }
};

// The control with that object name. Aborts the test if there is none.
template <typename T> T& Find(const QWidget& window, const QString& name) {
    T* control = window.findChild<T*>(name);
    if (control == nullptr) {
        qFatal("no control is named %s", qPrintable(name));
    }
    return *control;
}

inline QAbstractButton& Button(const QWidget& window, const QString& name) {
    return Find<QAbstractButton>(window, name);
}
inline QLineEdit& Field(const QWidget& window, const QString& name) {
    return Find<QLineEdit>(window, name);
}
inline bool IsChecked(const QWidget& window, const QString& name) {
    return Button(window, name).isChecked();
}
inline bool IsEnabled(const QWidget& window, const QString& name) {
    return Find<QWidget>(window, name).isEnabled();
}
inline QString Text(const QWidget& window, const QString& name) {
    return Field(window, name).text();
}
inline void Click(const QWidget& window, const QString& name) {
    QTest::mouseClick(&Button(window, name), Qt::LeftButton, {}, Button(window, name).rect().center());
}
// Calls click(): a simulated mouse click in the centre may miss indicator and text.
inline void Set(const QWidget& window, const QString& name, bool checked) {
    if (IsChecked(window, name) != checked) {
        Button(window, name).click();
    }
}
inline void Type(const QWidget& window, const QString& name, const QString& text) {
    Field(window, name).clear();
    QTest::keyClicks(&Field(window, name), text);
}

// Shows and activates a window.
inline void Show(QWidget& window) {
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
}

} // namespace tunedex::test
