// The user's formats for dates, times and numbers, from the environment (LC_ALL, LC_TIME, LC_NUMERIC, LANG).
#pragma once

#include <ctime>
#include <memory>
#include <string>
#include <string_view>

namespace tunedex {

class Locale {
  public:
    // The formats of no country: 2026-11-21, 14:05, "," between thousands and "." before decimals. They also
    // stand in for a locale that is unset, C, POSIX, C.UTF-8 or not installed.
    Locale();
    static Locale FromEnvironment();

    // The locale's date without time, and hours and minutes on its 12- or 24-hour clock; UTF-8.
    std::string ShortDate(const std::tm& time) const;
    std::string ShortTime(const std::tm& time) const;
    // Empty where the locale does not group digits; U+00A0 for a separator that Windows-1252 lacks.
    const std::string& ThousandsSeparator() const { return thousands_; }
    const std::string& DecimalPoint() const { return decimal_; }

  private:
    std::string Format(const std::tm& time, const char* format) const;

    std::shared_ptr<void> timeLocale_; // a locale_t; none for the default formats
    std::string timeCharset_;
    bool twelveHours_ = false;
    std::string thousands_ = ",";
    std::string decimal_ = ".";
};

// Whether a strftime format of the time of day (a locale's %X) shows a 12-hour clock.
bool IsTwelveHourFormat(std::string_view format);

} // namespace tunedex
