#include "Locale.h"

#include "Fakes.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <locale.h> // NOLINT(modernize-deprecated-headers): newlocale is POSIX, not C++
#include <map>
#include <string>

namespace tunedex {
namespace {

const char* const kVariables[] = {"LC_ALL", "LC_TIME", "LC_NUMERIC", "LANG"};

// Restores the environment after each test.
class LocaleTest : public testing::Test {
  public:
    LocaleTest() {
        for (const char* variable : kVariables) {
            const char* value = std::getenv(variable);
            if (value != nullptr) {
                before_[variable] = value;
            }
            unsetenv(variable);
        }
    }
    ~LocaleTest() override {
        for (const char* variable : kVariables) {
            unsetenv(variable);
        }
        for (const auto& [variable, value] : before_) {
            setenv(variable.c_str(), value.c_str(), 1);
        }
    }

  protected:
    static Locale With(const std::map<std::string, std::string>& variables) {
        for (const char* variable : kVariables) {
            unsetenv(variable);
        }
        for (const auto& [variable, value] : variables) {
            setenv(variable.c_str(), value.c_str(), 1);
        }
        return Locale::FromEnvironment();
    }
    static bool Installed(const char* name) {
        const locale_t opened = newlocale(LC_ALL_MASK, name, nullptr);
        if (opened == nullptr) {
            return false;
        }
        freelocale(opened);
        return true;
    }

    const std::tm now_ = test::FakeClock().LocalTime();

  private:
    std::map<std::string, std::string> before_;
};

#define NEEDS_LOCALE(name)                                                                                   \
    if (!Installed(name)) {                                                                                  \
        GTEST_SKIP() << "the locale " << (name) << " is not installed";                                      \
    }

struct Formats {
    std::string date;
    std::string time;
    std::string thousands;
    std::string decimal;
    bool operator==(const Formats&) const = default;
    friend void PrintTo(const Formats& formats, std::ostream* out) {
        *out << formats.date << ' ' << formats.time << " [" << formats.thousands << "] [" << formats.decimal
             << ']';
    }
};

Formats FormatsOf(const Locale& locale, const std::tm& time) {
    return {locale.ShortDate(time), locale.ShortTime(time), locale.ThousandsSeparator(),
            locale.DecimalPoint()};
}

const Formats kDefault = {"2026-11-21", "14:05", ",", "."};

TEST_F(LocaleTest, UsesNeutralFormatsWhenNoVariableIsSet) {
    EXPECT_EQ(FormatsOf(Locale(), now_), kDefault);
    EXPECT_EQ(FormatsOf(With({}), now_), kDefault);
    EXPECT_EQ(FormatsOf(With({{"LC_ALL", ""}, {"LANG", ""}}), now_), kDefault);
}

TEST_F(LocaleTest, UsesNeutralFormatsForTheCLocales) {
    for (const char* name : {"C", "POSIX", "C.UTF-8", "C.utf8", "C.UTF8", "C.utf-8"}) {
        EXPECT_EQ(FormatsOf(With({{"LC_ALL", name}}), now_), kDefault) << name;
        EXPECT_EQ(FormatsOf(With({{"LANG", name}}), now_), kDefault) << name;
    }
}

TEST_F(LocaleTest, UsesNeutralFormatsForALocaleThatIsNotInstalled) {
    EXPECT_EQ(FormatsOf(With({{"LC_ALL", "tlh_QO.UTF-8"}}), now_), kDefault);
    EXPECT_EQ(FormatsOf(With({{"LC_ALL", "tlh_QO.UTF-8"}, {"LANG", "de_DE.UTF-8"}}), now_), kDefault);
}

TEST_F(LocaleTest, UsesGermanDatesAndSeparators) {
    NEEDS_LOCALE("de_DE.UTF-8");
    EXPECT_EQ(FormatsOf(With({{"LC_ALL", "de_DE.UTF-8"}}), now_), (Formats{"21.11.2026", "14:05", ".", ","}));
    EXPECT_EQ(FormatsOf(With({{"LANG", "de_DE.UTF-8"}}), now_), (Formats{"21.11.2026", "14:05", ".", ","}));
}

TEST_F(LocaleTest, UsesATwelveHourClockWhereTheLocaleDoes) {
    NEEDS_LOCALE("en_US.UTF-8");
    EXPECT_EQ(FormatsOf(With({{"LC_ALL", "en_US.UTF-8"}}), now_),
              (Formats{"11/21/2026", "02:05 PM", ",", "."}));
}

TEST_F(LocaleTest, ReplacesASeparatorThatWindows1252LacksByTheNoBreakSpace) {
    NEEDS_LOCALE("fr_FR.UTF-8");
    EXPECT_EQ(FormatsOf(With({{"LC_ALL", "fr_FR.UTF-8"}}), now_),
              (Formats{"21/11/2026", "14:05", "\u00A0", ","}));
}

TEST_F(LocaleTest, ReadsTimeAndNumberFormatsFromSeparateVariables) {
    NEEDS_LOCALE("de_DE.UTF-8");
    NEEDS_LOCALE("en_US.UTF-8");
    EXPECT_EQ(FormatsOf(With({{"LC_TIME", "en_US.UTF-8"}, {"LANG", "de_DE.UTF-8"}}), now_),
              (Formats{"11/21/2026", "02:05 PM", ".", ","}));
    EXPECT_EQ(FormatsOf(With({{"LC_NUMERIC", "de_DE.UTF-8"}, {"LANG", "en_US.UTF-8"}}), now_),
              (Formats{"11/21/2026", "02:05 PM", ".", ","}));
    EXPECT_EQ(FormatsOf(With({{"LC_NUMERIC", "de_DE.UTF-8"}}), now_),
              (Formats{"2026-11-21", "14:05", ".", ","}));
    EXPECT_EQ(
        FormatsOf(With({{"LC_ALL", "C"}, {"LC_TIME", "de_DE.UTF-8"}, {"LC_NUMERIC", "de_DE.UTF-8"}}), now_),
        kDefault);
}

TEST_F(LocaleTest, CopiesOutliveTheirOriginal) {
    NEEDS_LOCALE("de_DE.UTF-8");
    Locale copy;
    {
        const Locale original = With({{"LC_ALL", "de_DE.UTF-8"}});
        copy = original;
    }
    EXPECT_EQ(copy.ShortDate(now_), "21.11.2026");
}

TEST(IsTwelveHourFormat, RecognisesTheConversionsOfATwelveHourClock) {
    for (const char* format : {"%r", "%I:%M:%S %p", "%l.%M", "%-I:%M", "%OI", "%P", "at %T %p"}) {
        EXPECT_TRUE(IsTwelveHourFormat(format)) << format;
    }
    for (const char* format : {"%T", "%H:%M:%S", "%k Uhr", "", "%", "%%r", "%%I", "Ilrp", "%-"}) {
        EXPECT_FALSE(IsTwelveHourFormat(format)) << format;
    }
}

} // namespace
} // namespace tunedex
