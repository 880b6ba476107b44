#include "Controls.h"
#include "WindowTest.h"

#include <QLabel>
#include <QLineEdit>

using namespace Qt::StringLiterals;
using namespace tunedex;
using namespace tunedex::test;

class ControlsTest : public QObject {
    Q_OBJECT

  private slots:
    void AControlHasItsNameAndDescription() {
        const QScopedPointer<QLineEdit> field(MakeTextField(u"txtField"_s, u"Field"_s, u"For texts"_s));
        QCOMPARE(field->objectName(), u"txtField"_s);
        QCOMPARE(field->accessibleName(), u"Field"_s);
        QCOMPARE(field->accessibleDescription(), u"For texts"_s);
        QCOMPARE(field->toolTip(), u"For texts"_s);
    }

    void ALabelsMnemonicMovesTheFocusToItsField() {
        QWidget window;
        auto* other = new QLineEdit(&window);
        auto* field = MakeTextField(u"txtField"_s, u"Field"_s, QString());
        field->setParent(&window);
        MakeLabelFor(*field, u"&Field:"_s)->setParent(&window);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        other->setFocus();
        QTest::keyClick(&window, Qt::Key_F, Qt::AltModifier);
        QVERIFY(field->hasFocus());
    }
};

TUNEDEX_WINDOW_TEST(ControlsTest)
#include "ControlsTest.moc"
