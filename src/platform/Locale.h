// Date, time and number formats of the user's locale (LC_ALL, LC_TIME, LC_NUMERIC, LANG).
#pragma once

#include <ctime>
#include <memory>
#include <string>
#include <string_view>

namespace tunedex {

class Locale {
  public:
    // Neutral formats: 2026-11-21, 14:05, "," for thousands and "." for decimals. Also used when the locale
    // is unset, C, POSIX, C.UTF-8 or not installed.
    Locale();
    static Locale FromEnvironment();

    // Date without time; hours and minutes on the locale's 12- or 24-hour clock. UTF-8.
    std::string ShortDate(const std::tm& time) const;
    std::string ShortTime(const std::tm& time) const;
    // Empty where the locale does not group digits; U+00A0 replaces a separator that Windows-1252 lacks.
    const std::string& ThousandsSeparator() const { return thousands_; }
    const std::string& DecimalPoint() const { return decimal_; }

  private:
    std::string Format(const std::tm& time, const char* format) const;

    std::shared_ptr<void> timeLocale_; // a locale_t; null for the neutral formats
    std::string timeCharset_;
    bool twelveHours_ = false;
    std::string thousands_ = ",";
    std::string decimal_ = ".";
};

// The name of the user's locale for a category such as "LC_TIME", by precedence: LC_ALL, the category, LANG.
// Empty when that is unset, C, POSIX or C.UTF-8. The locale need not be installed.
std::string LocaleNameFor(const char* category);

// Whether a strftime time format (a locale's %X) uses a 12-hour clock.
bool IsTwelveHourFormat(std::string_view format);

} // namespace tunedex
