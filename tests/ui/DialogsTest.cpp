// The real dialogs, answered with simulated input.
#include "Dialogs.h"

#include "WindowTest.h"

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QFileDialog>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace tunedex;
using namespace tunedex::test;

namespace {

// Calls `answer` once the dialog is open.
void WhenShown(const std::function<void(QWidget&)>& act) {
    QTimer::singleShot(0, qApp, [act] {
        if (QWidget* box = QApplication::activeModalWidget(); box != nullptr && box->isVisible()) {
            act(*box);
        } else {
            WhenShown(act);
        }
    });
}

QMessageBox& AsMessageBox(QWidget& box) {
    return *qobject_cast<QMessageBox*>(&box);
}

const QString kOutput =
    u"HTML File (*.htm,*.html)|*.htm;*.html|Text File (*.txt)|*.txt|Winamp Playlist (*.m3u)|*.m3u|"_s;

} // namespace

class DialogsTest : public QObject {
    Q_OBJECT

  private slots:
    void AReportCanBeTheLastOneAndItsTextCanBeCopied() {
        Dialogs dialogs;
        const QString path = u"/music/"_s + QString(100, u'x') + u".mp3"_s;
        for (const bool last : {false, true}) {
            WhenShown([&](QWidget& box) {
                QMessageBox& message = AsMessageBox(box);
                QCOMPARE(message.icon(), QMessageBox::Warning);
                QVERIFY(message.textInteractionFlags().testFlag(Qt::TextSelectableByKeyboard));
                QGuiApplication::clipboard()->setText(message.text());
                QTRY_COMPARE(QGuiApplication::clipboard()->text(), path);
                if (last) {
                    Find<QCheckBox>(box, "chkNoMoreMessages").click();
                }
                QTest::mouseClick(message.button(QMessageBox::Ok), Qt::LeftButton);
            });
            QCOMPARE(dialogs.ShowReport(nullptr, path, u"Error!"_s), !last);
        }
    }

    void EachButtonReturnsItsAnswer_data() {
        QTest::addColumn<int>("buttons");
        QTest::addColumn<int>("button");
        QTest::addColumn<int>("answer");
        QTest::addColumn<int>("icon");
        QTest::addColumn<int>("escape");
        using Box = QMessageBox;
        const auto row = [](const char* name, int buttons, Box::StandardButton button, int answer,
                            Box::Icon icon, int escape) {
            QTest::newRow(name) << buttons << static_cast<int>(button) << answer << static_cast<int>(icon)
                                << escape;
        };
        row("48: OK", kOkExclamation, Box::Ok, kAnswerOk, Box::Warning, kAnswerOk);
        row("64: OK", kOkInformation, Box::Ok, kAnswerOk, Box::Information, kAnswerOk);
        row("33: OK", kOkCancelQuestion, Box::Ok, kAnswerOk, Box::Question, kAnswerCancel);
        row("33: Cancel", kOkCancelQuestion, Box::Cancel, kAnswerCancel, Box::Question, kAnswerCancel);
        row("52: Yes", kYesNoExclamation, Box::Yes, kAnswerYes, Box::Warning, kAnswerNo);
        row("52: No", kYesNoExclamation, Box::No, kAnswerNo, Box::Warning, kAnswerNo);
        row("36: Yes", kYesNoQuestion, Box::Yes, kAnswerYes, Box::Question, kAnswerNo);
        row("36: No", kYesNoQuestion, Box::No, kAnswerNo, Box::Question, kAnswerNo);
    }
    void EachButtonReturnsItsAnswer() {
        QFETCH(int, buttons);
        QFETCH(int, button);
        QFETCH(int, answer);
        QFETCH(int, icon);
        QFETCH(int, escape);
        Dialogs dialogs;
        WhenShown([&](QWidget& box) {
            QCOMPARE(box.windowTitle(), u"The title"_s);
            QCOMPARE(AsMessageBox(box).text(), u"<b>Two\nlines"_s);
            QCOMPARE(AsMessageBox(box).textFormat(), Qt::PlainText);
            QCOMPARE(static_cast<int>(AsMessageBox(box).icon()), icon);
            QTest::mouseClick(AsMessageBox(box).button(static_cast<QMessageBox::StandardButton>(button)),
                              Qt::LeftButton);
        });
        QCOMPARE(dialogs.ShowMessage(nullptr, u"<b>Two\nlines"_s, buttons, u"The title"_s), answer);

        WhenShown([](QWidget& box) { QTest::keyClick(&box, Qt::Key_Escape); });
        QCOMPARE(dialogs.ShowMessage(nullptr, u"Text"_s, buttons, u"Title"_s), escape);
    }

    void ALongPathDoesNotMakeABoxWiderThanTheScreen() {
        Dialogs dialogs;
        WhenShown([](QWidget& box) {
            QVERIFY(box.width() <= box.screen()->availableGeometry().width());
            box.close();
        });
        dialogs.ShowMessage(nullptr, u"scanning: "_s + QString(2000, u'x'), kOkExclamation, u"Error!"_s);
    }

    void OrdinaryTextsGetNoExtraBreaks() {
        const QString text = u"An unexpected error occurred. The error was: \n\nError number 75"_s;
        QCOMPARE(WithBreaksInLongWords(text), text);
        QString broken = WithBreaksInLongWords(QString(100, u'x'));
        QCOMPARE(broken.remove(QChar(0x200B)), QString(100, u'x'));
    }

    void TheFolderChooserShowsItsPrompt() {
        const TestFolder folder;
        const std::string chosen = folder.Make("Music");
        Dialogs dialogs;
        WhenShown([&](QWidget& box) {
            QCOMPARE(box.windowTitle(), u"Select a Directory"_s);
            const QList<QLabel*> labels = box.findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly);
            QCOMPARE(labels.size(), 1);
            QCOMPARE(labels[0]->text(), u"The prompt, and click OK."_s);
            auto* field = box.findChild<QLineEdit*>(u"fileNameEdit"_s);
            QVERIFY(field != nullptr);
            field->setFocus();
            QTest::keyClicks(field, u"Music"_s);
            QTest::keyClick(field, Qt::Key_Return);
        });
        const auto answer = dialogs.ChooseFolder(nullptr, u"Select a Directory"_s,
                                                 u"The prompt, and click OK."_s, folder.Path());
        QVERIFY(answer.has_value());
        QCOMPARE(*answer, chosen);
    }

    void CancelChoosesNoFolder() {
        Dialogs dialogs;
        WhenShown([](QWidget& box) { QTest::keyClick(&box, Qt::Key_Escape); });
        QVERIFY(!dialogs.ChooseFolder(nullptr, u"T"_s, u"P"_s, "/no such folder").has_value());
    }

    void TheSelectedFilterSetsTheExtensionOfAFileToSave_data() {
        QTest::addColumn<QByteArray>("start");
        QTest::addColumn<int>("filter");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QByteArray>("expected");
        QTest::newRow("typed without an extension")
            << QByteArray() << 0 << u"list"_s << QByteArray("list.htm");
        QTest::newRow("the playlist filter") << QByteArray() << 2 << u"list"_s << QByteArray("list.m3u");
        QTest::newRow("the playlist filter with a page's name")
            << QByteArray("old.htm") << 2 << QString() << QByteArray("old.m3u");
        QTest::newRow("an unknown typed extension is kept")
            << QByteArray() << 0 << u"list.xml"_s << QByteArray("list.xml");
        QTest::newRow("the filter of the initial file")
            << QByteArray("old.txt") << -1 << u"new"_s << QByteArray("new.txt");
    }
    void TheSelectedFilterSetsTheExtensionOfAFileToSave() {
        QFETCH(QByteArray, start);
        QFETCH(int, filter);
        QFETCH(QString, typed);
        QFETCH(QByteArray, expected);
        const TestFolder folder;
        Dialogs dialogs;
        WhenShown([&](QWidget& box) {
            auto& dialog = *qobject_cast<QFileDialog*>(&box);
            QCOMPARE(dialog.windowTitle(), u"Save It"_s);
            QCOMPARE(dialog.acceptMode(), QFileDialog::AcceptSave);
            if (filter >= 0) {
                auto* kinds = dialog.findChild<QComboBox*>(u"fileTypeCombo"_s);
                QCOMPARE(kinds->count(), 3);
                kinds->setFocus();
                while (kinds->currentIndex() != filter) {
                    QTest::keyClick(kinds, kinds->currentIndex() < filter ? Qt::Key_Down : Qt::Key_Up);
                }
                emit kinds->textActivated(kinds->currentText());
            }
            auto* field = dialog.findChild<QLineEdit*>(u"fileNameEdit"_s);
            field->setFocus();
            if (!typed.isEmpty()) {
                field->selectAll();
                QTest::keyClicks(field, typed);
            }
            QTest::keyClick(field, Qt::Key_Return);
            if (dialog.isVisible()) {
                dialog.reject(); // so that a failing test ends
            }
        });
        const auto answer =
            dialogs.ChooseFile(nullptr, {u"Save It"_s, kOutput, folder.Path() + start.toStdString(), true});
        QVERIFY(answer.has_value());
        QCOMPARE(QByteArray::fromStdString(*answer), QByteArray::fromStdString(folder.Path()) + expected);
    }

    void OnlyAnExistingFileCanBeOpened() {
        const TestFolder folder;
        const std::string path = folder.Write("my.cfg", "");
        Dialogs dialogs;
        WhenShown([&](QWidget& box) {
            auto& dialog = *qobject_cast<QFileDialog*>(&box);
            QCOMPARE(dialog.acceptMode(), QFileDialog::AcceptOpen);
            QCOMPARE(dialog.fileMode(), QFileDialog::ExistingFile);
            auto* field = dialog.findChild<QLineEdit*>(u"fileNameEdit"_s);
            field->setFocus();
            QTest::keyClicks(field, u"my.cfg"_s);
            QTest::keyClick(field, Qt::Key_Return);
        });
        const auto answer =
            dialogs.ChooseFile(nullptr, {u"Open"_s, u"Settings Files (*.cfg)|*.cfg|All Files (*.*)|*.*"_s,
                                         folder.Path(), false});
        QVERIFY(answer.has_value());
        QCOMPARE(*answer, path);
    }

    void CancelChoosesNoFile() {
        Dialogs dialogs;
        WhenShown([](QWidget& box) { QTest::keyClick(&box, Qt::Key_Escape); });
        QVERIFY(!dialogs.ChooseFile(nullptr, {u"Open"_s, kOutput, "", false}).has_value());
    }
};

TUNEDEX_WINDOW_TEST(DialogsTest)
#include "DialogsTest.moc"
