// Accessibility of every window: names and roles, keyboard, small and magnified screens.
#include "DefaultSettings.h"
#include "WindowTest.h"
#include "frmAbout.h"
#include "frmDirSelection.h"
#include "frmProgress.h"
#include "frmTip.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QStyleFactory>

#include <functional>
#include <map>
#include <memory>
#include <set>

using namespace Qt::StringLiterals;
using namespace tunedex;
using namespace tunedex::test;

namespace {

bool IsInteractive(QAccessible::Role role) {
    switch (role) {
    case QAccessible::Button:
    case QAccessible::ButtonMenu:
    case QAccessible::CheckBox:
    case QAccessible::RadioButton:
    case QAccessible::EditableText:
    case QAccessible::ComboBox:
    case QAccessible::SpinBox:
    case QAccessible::Slider:
    case QAccessible::List:
    case QAccessible::Tree:
    case QAccessible::Table:
    case QAccessible::MenuItem:
    case QAccessible::ProgressBar:
    case QAccessible::Link:
        return true;
    default:
        return false;
    }
}

// Calls `visit` for every object of the accessible tree, in preorder.
void Walk(QAccessibleInterface& object, const std::function<void(QAccessibleInterface&)>& visit) {
    visit(object);
    for (int i = 0; i < object.childCount(); ++i) {
        if (QAccessibleInterface* child = object.child(i); child != nullptr) {
            Walk(*child, visit);
        }
    }
}

QString NameOf(const QObject& object) {
    return QString::fromLatin1(object.metaObject()->className()) + u' ' + object.objectName();
}

const QString kMainAfterRun = u"frmMain after a run"_s;

// All windows, filled and with every control enabled where possible.
struct AllWindows : Desk {
    AllWindows() {
        TheSettings() = DefaultSettings();
        TheSettings().Directory = "%MULT%/a%||%/b%||%/c";
        fake.application.statistics = {"2026-11-21", 12345, 2345, 1234567};
        fake.registry.values["TipsFile"] = folder.Write("tips.lst", "A tip.\r\n");
        fake.registry.values["TipsOnStartup"] = "1";
        Show();
        folders = std::make_unique<frmDirSelection>(fake.application, frontEnd, dialogs, nullptr);
        tip = std::make_unique<frmTip>(fake.application, frontEnd, nullptr);
        about = std::make_unique<frmAbout>(fake.application, frontEnd, nullptr);
        progress = std::make_unique<frmProgress>(ground);
        progress->Display({.status = u"Retrieving MPEG/ID3 information (100000/100000)..."_s,
                           .details = u"100000 files a second, 1000:00 left"_s,
                           .maximum = 100000,
                           .position = 50000});
        folders->findChild<QAbstractItemView*>(u"lvwDirs"_s)
            ->setCurrentIndex(folders->findChild<QAbstractItemView*>(u"lvwDirs"_s)->model()->index(1, 0));
    }

    QWidget& Window(const QString& name) {
        const std::map<QString, QWidget*> windows{
            {u"frmMain"_s, &Main()},      {u"frmDirSelection"_s, folders.get()}, {u"frmTip"_s, tip.get()},
            {u"frmAbout"_s, about.get()}, {u"frmProgress"_s, progress.get()},    {kMainAfterRun, &Main()}};
        QWidget& window = *windows.at(name);
        if (!name.startsWith(window.objectName())) {
            qFatal("a window has another name");
        }
        if (name == kMainAfterRun) {
            RunOutcome outcome;
            outcome.end = RunEnd::Written;
            outcome.file = "/lists/" + std::string(200, 'w') + ".001.htm";
            outcome.tracks = 1234567;
            outcome.pages = 12346;
            outcome.unreadFolders = 12345;
            outcome.unreadFiles = 12345;
            outcome.modernTags = 1234567;
            Main().ShowResult(outcome);
        }
        window.show();
        window.activateWindow();
        if (!QTest::qWaitForWindowActive(&window)) {
            qFatal("a window does not become active");
        }
        return window;
    }

    QWidget ground; // parent of the progress window, which disables it
    std::unique_ptr<frmDirSelection> folders;
    std::unique_ptr<frmTip> tip;
    std::unique_ptr<frmAbout> about;
    std::unique_ptr<frmProgress> progress;
};

const QStringList kWindows{u"frmMain"_s,  u"frmDirSelection"_s, u"frmTip"_s,
                           u"frmAbout"_s, u"frmProgress"_s,     kMainAfterRun};

void AddWindowRows() {
    QTest::addColumn<QString>("name");
    for (const QString& name : kWindows) {
        QTest::newRow(qPrintable(name)) << name;
    }
}

// The character after the first single "&", in upper case; null if there is none.
QChar MnemonicOf(const QString& text) {
    for (qsizetype i = 0; i + 1 < text.size(); ++i) {
        if (text[i] == u'&') {
            if (text[i + 1] != u'&') {
                return text[i + 1].toUpper();
            }
            ++i;
        }
    }
    return {};
}

// The caption then needs no mnemonic.
bool HasKeysOfItsOwn(const QAbstractButton& button) {
    const QKeySequence keys = button.shortcut();
    return !keys.isEmpty() && keys != QKeySequence::mnemonic(button.text());
}

// The captions in the window that need a mnemonic.
QStringList TextsWithMnemonics(QWidget& window) {
    QStringList texts;
    for (const auto* button : window.findChildren<QAbstractButton*>()) {
        if (!HasKeysOfItsOwn(*button)) {
            texts.append(button->text());
        }
    }
    for (const auto* label : window.findChildren<QLabel*>()) {
        if (label->buddy() != nullptr) {
            texts.append(label->text());
        }
    }
    if (const auto* bar = window.findChild<QMenuBar*>(); bar != nullptr) {
        for (const QAction* menu : bar->actions()) {
            texts.append(menu->text());
        }
    }
    return texts;
}

// The widgets that clip their text or extend beyond their parent; empty if there are none.
QString Clipped(const QWidget& window) {
    for (const auto* widget : window.findChildren<QWidget*>()) {
        if (!widget->isVisible() || widget->isWindow() || widget->objectName().startsWith(u"qt_"_s)) {
            continue;
        }
        const auto* label = qobject_cast<const QLabel*>(widget);
        const bool fixedText = qobject_cast<const QAbstractButton*>(widget) != nullptr ||
                               (label != nullptr && !label->wordWrap());
        const QSize needed = fixedText ? widget->sizeHint() : widget->minimumSizeHint();
        const bool ignoresWidth = widget->sizePolicy().horizontalPolicy() == QSizePolicy::Ignored;
        const bool tooSmall =
            (!ignoresWidth && widget->width() < needed.width()) || widget->height() < needed.height();
        const bool wrapped =
            label != nullptr && label->wordWrap() && label->height() < label->heightForWidth(label->width());
        const bool inViewport = widget->parentWidget()->objectName() == u"qt_scrollarea_viewport"_s;
        const bool sticksOut = !inViewport && !widget->parentWidget()->rect().contains(widget->geometry());
        if (tooSmall || wrapped || sticksOut) {
            return u"%1 is %2x%3, needs %4x%5"_s.arg(NameOf(*widget))
                .arg(widget->width())
                .arg(widget->height())
                .arg(needed.width())
                .arg(needed.height());
        }
    }
    return {};
}

} // namespace

class AccessibilityTest : public QObject {
    Q_OBJECT

    const QFont font_ = QApplication::font();
    const QPalette palette_ = QApplication::palette();

  private slots:
    void cleanup() {
        QApplication::setStyle(QStyleFactory::create(u"Fusion"_s));
        QApplication::setFont(font_);
        QApplication::setPalette(palette_);
    }

    void EveryInteractiveControlHasNameAndRole_data() { AddWindowRows(); }
    void EveryInteractiveControlHasNameAndRole() {
        QFETCH(QString, name);
        AllWindows windows;
        QWidget& window = windows.Window(name);
        QVERIFY(!window.windowTitle().isEmpty());
        std::set<QString> seen;
        Walk(*QAccessible::queryAccessibleInterface(&window), [&](QAccessibleInterface& object) {
            if (IsInteractive(object.role()) && !object.state().invisible) {
                const QString where = object.object() != nullptr ? NameOf(*object.object()) : u"an item"_s;
                QVERIFY2(!object.text(QAccessible::Name).isEmpty(), qPrintable(where));
                seen.insert(where);
            }
        });
        // Every focusable widget must be interactive.
        for (const auto* widget : window.findChildren<QWidget*>()) {
            if (widget->isVisible() && (widget->focusPolicy() & Qt::TabFocus) != 0 && !widget->isWindow() &&
                widget->objectName() != u"TipPanel"_s && widget->objectName() != u"lblResult"_s) {
                QVERIFY2(seen.contains(NameOf(*widget)), qPrintable(NameOf(*widget)));
            }
        }
    }

    void EveryControlHasADescription_data() { AddWindowRows(); }
    void EveryControlHasADescription() {
        QFETCH(QString, name);
        AllWindows windows;
        QWidget& window = windows.Window(name);
        for (const auto* widget : window.findChildren<QWidget*>()) {
            const bool control = qobject_cast<const QAbstractButton*>(widget) != nullptr ||
                                 qobject_cast<const QLineEdit*>(widget) != nullptr ||
                                 qobject_cast<const QProgressBar*>(widget) != nullptr;
            if (control && !widget->objectName().startsWith(u"qt_"_s)) {
                QVERIFY2(!widget->accessibleDescription().isEmpty(), qPrintable(NameOf(*widget)));
                QVERIFY2(!widget->toolTip().isEmpty(), qPrintable(NameOf(*widget)));
            }
        }
    }

    void TabReachesEveryEnabledControlAndWraps_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("several");
        for (const QString& name : kWindows) {
            QTest::newRow(qPrintable(name)) << name << false;
        }
        QTest::newRow("frmMain with a folder list") << u"frmMain"_s << true;
    }
    void TabReachesEveryEnabledControlAndWraps() {
        QFETCH(QString, name);
        QFETCH(bool, several);
        AllWindows windows;
        MainFields fields;
        fields.multipleFolders = several;
        windows.frontEnd.FillFields(fields);
        QWidget& window = windows.Window(name);
        std::set<QString> expected;
        for (const auto* widget : window.findChildren<QWidget*>()) {
            const bool interactive = qobject_cast<const QAbstractButton*>(widget) != nullptr ||
                                     qobject_cast<const QLineEdit*>(widget) != nullptr ||
                                     qobject_cast<const QAbstractItemView*>(widget) != nullptr;
            if (interactive && widget->isVisible() && widget->isEnabled() &&
                !widget->objectName().startsWith(u"qt_"_s)) {
                expected.insert(NameOf(*widget));
            }
        }
        QVERIFY(!expected.empty());
        for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Backtab}) {
            std::set<QString> reached;
            for (std::size_t i = 0; i < expected.size() + 2; ++i) {
                QTest::keyClick(window.windowHandle(), key);
                if (window.focusWidget() != nullptr) {
                    reached.insert(NameOf(*window.focusWidget()));
                }
            }
            for (const QString& control : expected) {
                QVERIFY2(reached.contains(control), qPrintable(control));
            }
        }
    }

    void TabFollowsTheRowsOfTheMainWindow() {
        AllWindows windows;
        windows.frontEnd.FillFields({});
        QWidget& window = windows.Window(u"frmMain"_s);
        Find<QWidget>(window, "txtInputDir").setFocus();
        QStringList order;
        for (int i = 0; i < 14; ++i) {
            order.append(window.focusWidget()->objectName());
            QTest::keyClick(window.windowHandle(), Qt::Key_Tab);
        }
        const QStringList expected{u"txtInputDir"_s,
                                   u"cmdSelectDir"_s,
                                   u"chkMultipleDirs"_s,
                                   u"txtOutputFile"_s,
                                   u"cmdSelectOutputFile"_s,
                                   u"txtWindowTitle"_s,
                                   u"cmdWindowTitlePlaceHolders"_s,
                                   u"txtPageTitle"_s,
                                   u"cmdPageTitlePlaceHolders"_s,
                                   u"txtPageFooter"_s,
                                   u"cmdPageFooterPlaceHolders"_s,
                                   u"cmdCreateList"_s,
                                   u"cmdOptions"_s,
                                   u"cmdAbout"_s};
        QCOMPARE(order, expected);
    }

    void EveryCaptionHasAUniqueMnemonic_data() { AddWindowRows(); }
    void EveryCaptionHasAUniqueMnemonic() {
        QFETCH(QString, name);
        AllWindows windows;
        std::map<QChar, QString> taken;
        for (const QString& text : TextsWithMnemonics(windows.Window(name))) {
            if (text.isEmpty()) {
                continue; // Qt's internal buttons in menu bars and line edits
            }
            const QChar key = MnemonicOf(text);
            QVERIFY2(!key.isNull(), qPrintable(text));
            QVERIFY2(!taken.contains(key), qPrintable(text + u" and "_s + taken[key]));
            taken[key] = text;
        }
    }

    void EveryMenuItemHasAUniqueMnemonic() {
        Desk desk;
        for (const char* name : {"mnuFile", "mnuHelp"}) {
            std::set<QChar> taken;
            for (const QAction* item : Find<QMenu>(desk.Main(), name).actions()) {
                if (!item->isSeparator()) {
                    QVERIFY2(taken.insert(MnemonicOf(item->text())).second, qPrintable(item->text()));
                    QVERIFY2(!MnemonicOf(item->text()).isNull(), qPrintable(item->text()));
                }
            }
        }
    }

    void NothingIsClippedAtTheSmallestSize_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("style");
        QTest::addColumn<double>("scale");
        for (const QString& name : kWindows) {
            for (const QString& style : {u"Fusion"_s, u"Windows"_s}) {
                for (const double scale : {1.0, 1.25, 1.5, 2.0}) {
                    QTest::addRow("%s, %s, %g", qPrintable(name), qPrintable(style), scale)
                        << name << style << scale;
                }
            }
        }
    }
    void NothingIsClippedAtTheSmallestSize() {
        QFETCH(QString, name);
        QFETCH(QString, style);
        QFETCH(double, scale);
        QFont font = font_;
        font.setPointSizeF(font_.pointSizeF() * scale);
        QApplication::setFont(font);
        QApplication::setStyle(QStyleFactory::create(style));
        AllWindows windows;
        QWidget& window = windows.Window(name);
        QTest::qWait(1);
        QCOMPARE(Clipped(window), QString());
        window.resize(1, 1);
        QTest::qWait(1);
        QVERIFY(window.width() >= window.minimumSizeHint().width());
        QCOMPARE(Clipped(window), QString());
    }

    void EveryWindowFitsItsScreenInLargeFonts_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<double>("scale");
        QTest::addColumn<QSize>("room"); // of the screen, without panel and frame
        for (const QString& name : kWindows) {
            QTest::addRow("%s, 1024 x 600", qPrintable(name)) << name << 1.0 << QSize(1016, 540);
            QTest::addRow("%s, 1366 x 768 at 150 %%", qPrintable(name)) << name << 1.5 << QSize(1358, 700);
            QTest::addRow("%s, 1366 x 768 at 200 %%", qPrintable(name)) << name << 2.0 << QSize(1358, 700);
        }
    }
    void EveryWindowFitsItsScreenInLargeFonts() {
        QFETCH(QString, name);
        QFETCH(double, scale);
        QFETCH(QSize, room);
        QFont font = font_;
        font.setPointSizeF(font_.pointSizeF() * scale);
        QApplication::setFont(font);
        AllWindows windows;
        const QSize smallest = windows.Window(name).minimumSizeHint();
        QVERIFY2(smallest.width() <= room.width() && smallest.height() <= room.height(),
                 qPrintable(u"%1x%2"_s.arg(smallest.width()).arg(smallest.height())));
    }

    void NothingIsClippedWithManyFolders() {
        AllWindows windows;
        windows.TheSettings().Directory = "%MULT%";
        for (int i = 0; i < 1200; ++i) {
            windows.TheSettings().Directory += (i > 0 ? "%||%/" : "/") + std::to_string(i);
        }
        MainFields fields;
        fields.multipleFolders = true;
        windows.frontEnd.FillFields(fields);
        QWidget& window = windows.Window(u"frmMain"_s);
        QCOMPARE(TextOf(window, "lblFolderCount"), std::string("1200 folders chosen"));
        window.resize(1, 1);
        QTest::qWait(1);
        QCOMPARE(Clipped(window), QString());
    }

    void TextsContrastWithDarkBackgrounds() {
        QPalette dark(QColor(0x32, 0x32, 0x36), QColor(0x2b, 0x2b, 0x2f));
        dark.setColor(QPalette::Base, QColor(0x1e, 0x1e, 0x21));
        QApplication::setPalette(dark);
        AllWindows windows;
        for (const QString& name : kWindows) {
            for (const auto* widget : windows.Window(name).findChildren<QWidget*>()) {
                const QColor text = widget->palette().color(QPalette::Active, widget->foregroundRole());
                const QColor ground = widget->palette().color(QPalette::Active, widget->backgroundRole());
                QVERIFY2(text.lightness() - ground.lightness() > 80, qPrintable(NameOf(*widget)));
            }
        }
    }
};

TUNEDEX_WINDOW_TEST(AccessibilityTest)
#include "AccessibilityTest.moc"
