#include "WindowGeometry.h"
#include "WindowTest.h"

#include <QDialog>

using namespace Qt::StringLiterals;
using namespace tunedex;
using namespace tunedex::test;

class WindowGeometryTest : public QObject {
    Q_OBJECT

  private slots:
    void AWindowRemembersItsSizeUnderItsName() {
        QDialog first;
        first.setObjectName(u"frmFirst"_s);
        first.resize(321, 234);
        SaveWindowGeometry(first);

        QDialog again;
        again.setObjectName(u"frmFirst"_s);
        RestoreWindowGeometry(again);
        QCOMPARE(again.size(), QSize(321, 234));

        QDialog other;
        other.setObjectName(u"frmOther"_s);
        other.resize(111, 112);
        RestoreWindowGeometry(other);
        QCOMPARE(other.size(), QSize(111, 112));
    }
};

TUNEDEX_WINDOW_TEST(WindowGeometryTest)
#include "WindowGeometryTest.moc"
