#include "QtCollation.h"

#include <QtTest>

#include <cstdint>
#include <string>
#include <vector>

using namespace tunedex;

namespace {

std::vector<std::uint32_t> Ranks(const char* language, const std::vector<std::string_view>& texts) {
    return QtCollation(language).Ranks(texts, [] {});
}

} // namespace

class QtCollationTest : public QObject {
    Q_OBJECT

  private slots:
    // QTEST_APPLESS_MAIN: an unattended run without a display has no application object, either.
    static void SortsLettersFirstThenAccentsThenCase() {
        for (const char* const language : {"", "en_US", "xx_YY"}) {
            QCOMPARE(Ranks(language, {"Zebra", "\u00C9tude", "etude", "eta", "Etude", "\u00E9tude", "F"}),
                     (std::vector<std::uint32_t>{6, 4, 1, 0, 2, 3, 5}));
        }
    }
    static void FollowsTheLanguage() {
        const std::vector<std::string_view> texts = {"zoo", "\u00E4pple", "apa"};
        QCOMPARE(Ranks("sv_SE", texts), (std::vector<std::uint32_t>{1, 2, 0}));
        QCOMPARE(Ranks("de_DE", texts), (std::vector<std::uint32_t>{2, 1, 0}));
    }
    static void GivesEqualTextsOneRank() {
        QCOMPARE(Ranks("", {"a", "b", "a"}), (std::vector<std::uint32_t>{0, 1, 0}));
        QVERIFY(Ranks("", {}).empty());
    }
    static void RanksTextsThatAreNotUtf8() {
        QCOMPARE(Ranks("", {"b\xFF", "a\xFF"}), (std::vector<std::uint32_t>{1, 0}));
    }
};

QTEST_APPLESS_MAIN(QtCollationTest)

#include "QtCollationTest.moc"
