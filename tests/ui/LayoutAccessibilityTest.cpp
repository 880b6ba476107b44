#include "LayoutFixture.h"
#include "Palettes.h"
#include "TestClasses.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QButtonGroup>
#include <QCheckBox>
#include <QGroupBox>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QTabBar>
#include <QTextBrowser>

using namespace Qt::StringLiterals;

namespace tunedex::test {

class LayoutAccessibilityTest : public QObject {
    Q_OBJECT

  private slots:
    void EveryControlHasANameADescriptionAndARole();
    void EveryControlIsReachedByTab();
    void TabStopsAtTheSelectedOption();
    void EveryLabelOfAControlHasAUniqueMnemonic();
    void NothingIsClippedAtTheSmallestSize();
    void TheSmallestSizesFitASmallScreen();
    void EveryPageFitsItsScreenInLargeFonts_data();
    void EveryPageFitsItsScreenInLargeFonts();
    void WhatHasTheFocusIsScrolledTo();
};

namespace {

const TestClass<LayoutAccessibilityTest> kLayoutAccessibilityTestRegistered("LayoutAccessibilityTest");

bool IsControl(const QWidget& widget) {
    return qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
           qobject_cast<const QLineEdit*>(&widget) != nullptr ||
           qobject_cast<const QComboBox*>(&widget) != nullptr ||
           qobject_cast<const QAbstractItemView*>(&widget) != nullptr ||
           qobject_cast<const QTextBrowser*>(&widget) != nullptr ||
           qobject_cast<const QTabBar*>(&widget) != nullptr;
}

// The window's visible controls, without Qt's internal ones, whose names begin with "qt_".
QList<QWidget*> VisibleControls(const QWidget& window) {
    QList<QWidget*> controls;
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        if (widget->isVisible() && IsControl(*widget) && widget->window() == &window &&
            (!widget->objectName().startsWith(u"qt_"_s) || qobject_cast<QTabBar*>(widget) != nullptr)) {
            controls << widget;
        }
    }
    return controls;
}

// Calls `check` for the options dialog and for every page of the editor, each visible with all controls
// enabled.
void ForEveryPage(const std::function<void(QWidget&, const QString&)>& check) {
    LayoutFixture with;
    with.settings.DoLinks = true;
    with.settings.Modern = true;
    with.settings.DocumentType = "HTML5";
    with.settings.ActiveColumns = "Artist|Title|Album";
    with.folder.Write("Themes/Blue.thm", "");
    frmOptions options(with.application, with.ui);
    Show(options);
    check(options, u"options"_s);
    options.hide();
    frmEditLayout editor(with.application, with.ui);
    Show(editor);
    editor.findChild<QListWidget*>(u"lstActiveColumns"_s)->setCurrentRow(1);
    editor.findChild<QListWidget*>(u"lstInactiveColumns"_s)->setCurrentRow(0);
    QTabWidget& tabs = Find<QTabWidget>(editor, u"TabStrip"_s);
    for (int page = 0; page < tabs.count(); ++page) {
        tabs.setCurrentIndex(page);
        check(editor, tabs.tabText(page).remove(u'&'));
    }
}

QString Where(const QString& page, const QWidget& widget) {
    return page + u": "_s +
           (widget.objectName().isEmpty() ? QString::fromLatin1(widget.metaObject()->className())
                                          : widget.objectName());
}

// Tab stops at the selected option of a group; arrow keys reach the others.
bool IsReachedByArrows(const QWidget& widget) {
    const auto* option = qobject_cast<const QRadioButton*>(&widget);
    return option != nullptr && option->group() != nullptr && option->group()->checkedButton() != nullptr &&
           option->group()->checkedButton() != option;
}

// The caption then needs no mnemonic.
bool HasKeysOfItsOwn(const QAbstractButton& button) {
    return !button.shortcut().isEmpty() && button.shortcut() != QKeySequence::mnemonic(button.text());
}

QChar Mnemonic(const QString& text) {
    const qsizetype sign = text.indexOf(u'&');
    return sign < 0 || sign + 1 >= text.size() ? QChar() : text[sign + 1].toUpper();
}

} // namespace

void LayoutAccessibilityTest::EveryControlHasANameADescriptionAndARole() {
    int controls = 0;
    ForEveryPage([&](QWidget& window, const QString& page) {
        for (QWidget* widget : VisibleControls(window)) {
            ++controls;
            QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(widget);
            const QString where = Where(page, *widget);
            QVERIFY2(accessible != nullptr, qPrintable(where));
            QVERIFY2(accessible->role() != QAccessible::NoRole && accessible->role() != QAccessible::Client,
                     qPrintable(where));
            if (qobject_cast<QTabBar*>(widget) != nullptr) {
                for (int tab = 0; tab < accessible->childCount(); ++tab) {
                    const QAccessibleInterface* child = accessible->child(tab);
                    if (child->role() == QAccessible::PageTab) {
                        QVERIFY2(!child->text(QAccessible::Name).isEmpty(), qPrintable(where));
                    }
                }
                continue;
            }
            QVERIFY2(!accessible->text(QAccessible::Name).isEmpty(), qPrintable(where));
            QVERIFY2(!accessible->text(QAccessible::Description).isEmpty(), qPrintable(where));
            QVERIFY2(!widget->objectName().isEmpty(), qPrintable(where));
        }
    });
    QVERIFY(controls > 100);
}

void LayoutAccessibilityTest::EveryControlIsReachedByTab() {
    ForEveryPage([&](QWidget& window, const QString& page) {
        QSet<QWidget*> reached;
        for (int step = 0; step < 100; ++step) {
            QTest::keyClick(window.focusWidget() != nullptr ? window.focusWidget() : &window, Qt::Key_Tab);
            QVERIFY2(QApplication::focusWidget() != nullptr, qPrintable(page));
            if (reached.contains(QApplication::focusWidget())) {
                break; // back at the first control
            }
            reached.insert(QApplication::focusWidget());
        }
        for (QWidget* widget : VisibleControls(window)) {
            QVERIFY2(reached.contains(widget) || IsReachedByArrows(*widget) || !widget->isEnabled(),
                     qPrintable(Where(page, *widget)));
            QVERIFY2(widget->isEnabled(), qPrintable(Where(page, *widget)));
        }
    });
}

void LayoutAccessibilityTest::TabStopsAtTheSelectedOption() {
    for (const auto& [sizeType, stop] :
         {std::pair(2, u"optMegabytes"_s), std::pair(0, u"optBytes"_s), std::pair(7, u"optBytes"_s)}) {
        LayoutFixture with;
        with.settings.SizeType = static_cast<std::int16_t>(sizeType);
        frmOptions options(with.application, with.ui);
        Show(options);
        Field(options, u"txtFilesPerPage"_s).setFocus();
        QTest::keyClick(options.focusWidget(), Qt::Key_Tab);
        QCOMPARE(options.focusWidget()->objectName(), stop);
        QTest::keyClick(options.focusWidget(), Qt::Key_Tab);
        QCOMPARE(options.focusWidget()->objectName(), u"optAscSort"_s);
    }
    LayoutFixture with;
    frmOptions options(with.application, with.ui);
    Show(options);
    Button(options, u"optMegabytes"_s).setFocus();
    QTest::keyClick(options.focusWidget(), Qt::Key_Up);
    QVERIFY(IsChecked(options, u"optKilobytes"_s));
    QVERIFY(Button(options, u"optKilobytes"_s).hasFocus());
}

void LayoutAccessibilityTest::EveryLabelOfAControlHasAUniqueMnemonic() {
    ForEveryPage([&](QWidget& window, const QString& page) {
        QMap<QChar, QString> taken;
        const auto take = [&](const QString& text, const QString& where) {
            const QChar mnemonic = Mnemonic(text);
            QVERIFY2(!mnemonic.isNull(), qPrintable(where));
            // The three fonts share their mnemonics; pressing one repeatedly cycles through the fonts.
            QVERIFY2(page == u"Fonts"_s || !taken.contains(mnemonic),
                     qPrintable(where + u" and "_s + taken.value(mnemonic)));
            taken.insert(mnemonic, where);
        };
        for (const QLabel* label : window.findChildren<QLabel*>()) {
            if (label->isVisible() && label->buddy() != nullptr) {
                take(label->text(), Where(page, *label->buddy()));
            }
        }
        for (const QAbstractButton* button : window.findChildren<QAbstractButton*>()) {
            if (button->isVisible() && !button->text().isEmpty() && !HasKeysOfItsOwn(*button)) {
                take(button->text(), Where(page, *button));
            }
        }
        if (const auto* tabs = window.findChild<QTabWidget*>(u"TabStrip"_s)) {
            for (int tab = 0; tab < tabs->count(); ++tab) {
                take(tabs->tabText(tab), tabs->tabText(tab));
            }
        }
        if (const auto* menu = window.findChild<QMenuBar*>()) {
            for (const QAction* action : menu->actions()) {
                take(action->text(), action->text());
            }
        }
    });
}

namespace {

bool IsScrolled(const QWidget& widget) {
    for (const QWidget* parent = widget.parentWidget(); parent != nullptr; parent = parent->parentWidget()) {
        if (qobject_cast<const QScrollArea*>(parent) != nullptr) {
            return true;
        }
    }
    return false;
}

} // namespace

void LayoutAccessibilityTest::NothingIsClippedAtTheSmallestSize() {
    for (const QPalette& palette : {LightPalette(), DarkPalette()}) {
        QApplication::setPalette(palette);
        ForEveryPage([&](QWidget& window, const QString& page) {
            window.resize(1, 1);
            QTest::qWait(1);
            for (const QWidget* widget : window.findChildren<QWidget*>()) {
                const bool textual = qobject_cast<const QAbstractButton*>(widget) != nullptr ||
                                     qobject_cast<const QLabel*>(widget) != nullptr ||
                                     qobject_cast<const QComboBox*>(widget) != nullptr ||
                                     qobject_cast<const QTabBar*>(widget) != nullptr;
                if (!textual || !widget->isVisible() || widget->objectName().startsWith(u"qt_"_s) ||
                    widget->parent()->objectName().startsWith(u"qt_"_s)) {
                    continue;
                }
                const QString where = Where(page, *widget);
                QSize wanted = widget->minimumSizeHint();
                if (const auto* label = qobject_cast<const QLabel*>(widget);
                    label != nullptr && label->wordWrap()) {
                    wanted = {0, label->heightForWidth(label->width())};
                }
                QVERIFY2(widget->width() >= wanted.width() && widget->height() >= wanted.height(),
                         qPrintable(where));
                const QRect place(widget->mapTo(&window, QPoint()), widget->size());
                QRect room = window.rect();
                if (IsScrolled(*widget)) { // what is above or below can be scrolled to
                    room.setTop(std::min(room.top(), place.top()));
                    room.setBottom(std::max(room.bottom(), place.bottom()));
                }
                QVERIFY2(room.contains(place), qPrintable(where));
            }
        });
    }
}

void LayoutAccessibilityTest::TheSmallestSizesFitASmallScreen() {
    ForEveryPage([](QWidget& window, const QString& page) {
        const QSize smallest = window.minimumSizeHint();
        QVERIFY2(smallest.width() <= 800 && smallest.height() <= 560, qPrintable(page));
    });
}

void LayoutAccessibilityTest::EveryPageFitsItsScreenInLargeFonts_data() {
    QTest::addColumn<double>("scale");
    QTest::addColumn<QSize>("room"); // of the screen, without panel and frame
    QTest::newRow("1024 x 600") << 1.0 << QSize(1016, 540);
    QTest::newRow("1366 x 768 at 150 %") << 1.5 << QSize(1358, 700);
    QTest::newRow("1366 x 768 at 200 %") << 2.0 << QSize(1358, 700);
}

void LayoutAccessibilityTest::EveryPageFitsItsScreenInLargeFonts() {
    QFETCH(double, scale);
    QFETCH(QSize, room);
    const QFont before = QApplication::font();
    QFont font = before;
    font.setPointSizeF(before.pointSizeF() * scale);
    QApplication::setFont(font);
    QStringList tooLarge;
    ForEveryPage([&](QWidget& window, const QString& page) {
        const QSize smallest = window.minimumSizeHint();
        if (smallest.width() > room.width() || smallest.height() > room.height()) {
            tooLarge << u"%1: %2x%3"_s.arg(page).arg(smallest.width()).arg(smallest.height());
        }
    });
    QApplication::setFont(before);
    QCOMPARE(tooLarge.join(u", "_s), QString());
}

void LayoutAccessibilityTest::WhatHasTheFocusIsScrolledTo() {
    ForEveryPage([&](QWidget& window, const QString& page) {
        window.resize(1, 1);
        QTest::qWait(1);
        for (const QWidget* control : VisibleControls(window)) {
            QTest::keyClick(window.focusWidget() != nullptr ? window.focusWidget() : &window, Qt::Key_Tab);
            const QWidget* focus = QApplication::focusWidget();
            if (focus == nullptr || !IsScrolled(*focus)) {
                continue;
            }
            // Lists are higher than the room; their upper edge is enough.
            const QPoint top = focus->mapTo(&window, QPoint(1, 1));
            QVERIFY2(!focus->visibleRegion().isEmpty() && window.rect().contains(top),
                     qPrintable(Where(page, *focus) + u" after "_s + control->objectName()));
        }
    });
}

} // namespace tunedex::test

#include "LayoutAccessibilityTest.moc"
