#include "Locale.h"

#include "Text.h"

#include <array>
#include <cstdlib>
#include <iconv.h>
#include <langinfo.h>
#include <locale.h> // NOLINT(modernize-deprecated-headers): newlocale and the like are POSIX, not C++

namespace tunedex {

namespace {

std::shared_ptr<void> OpenLocale(int mask, const std::string& name) {
    if (name.empty()) {
        return nullptr;
    }
    const locale_t opened = newlocale(mask, name.c_str(), nullptr);
    if (opened == nullptr) {
        return nullptr;
    }
    return {opened, [](void* closing) { freelocale(static_cast<locale_t>(closing)); }};
}

// Converts text of the locale to UTF-8; unchanged where iconv cannot convert it.
std::string ToUtf8(std::string text, const std::string& charset) {
    const iconv_t converter = iconv_open("UTF-8", charset.c_str());
    if (converter ==
        reinterpret_cast<iconv_t>(-1)) { // NOLINT(performance-no-int-to-ptr): the value POSIX prescribes
        return text;
    }
    std::string result(text.size() * 4 + 16, '\0');
    char* in = text.data();
    char* out = result.data();
    std::size_t inLeft = text.size();
    std::size_t outLeft = result.size();
    const std::size_t outcome = iconv(converter, &in, &inLeft, &out, &outLeft);
    iconv_close(converter);
    if (outcome == static_cast<std::size_t>(-1)) {
        return text;
    }
    result.resize(result.size() - outLeft);
    return result;
}

// Required: every listing, whatever its encoding, uses U+00A0 for a separator that Windows-1252 lacks, such
// as the narrow no-break space of French locales.
std::string InWindows1252(std::string separator) {
    constexpr std::string_view kNoBreakSpace = "\u00A0";
    for (std::size_t i = 0; i < separator.size(); i += StepAt(separator, i).length) {
        const TextStep step = StepAt(separator, i);
        if (step.stray || !ToWindows1252(step.character)) {
            return std::string(kNoBreakSpace);
        }
    }
    return separator;
}

} // namespace

std::string LocaleNameFor(const char* category) {
    for (const char* variable : {"LC_ALL", category, "LANG"}) {
        const char* value = std::getenv(variable);
        if (value != nullptr && *value != '\0') {
            const std::string_view name(value);
            // "C.UTF-8" in any spelling: "C.utf8", "C.UTF8" and so on.
            if (name == "C" || name == "POSIX" || name.starts_with("C.")) {
                return {};
            }
            return std::string(name);
        }
    }
    return {};
}

bool IsTwelveHourFormat(std::string_view format) {
    for (std::size_t i = 0; i + 1 < format.size(); ++i) {
        if (format[i] != '%') {
            continue;
        }
        ++i;
        while (i < format.size() && std::string_view("_-0^#EO").find(format[i]) != std::string_view::npos) {
            ++i;
        }
        if (i < format.size() && std::string_view("IlrpP").find(format[i]) != std::string_view::npos) {
            return true;
        }
    }
    return false;
}

Locale::Locale() = default;

Locale Locale::FromEnvironment() {
    Locale formats;
    formats.timeLocale_ = OpenLocale(LC_TIME_MASK | LC_CTYPE_MASK, LocaleNameFor("LC_TIME"));
    if (formats.timeLocale_) {
        auto* const opened = static_cast<locale_t>(formats.timeLocale_.get());
        formats.timeCharset_ = nl_langinfo_l(CODESET, opened);
        formats.twelveHours_ = IsTwelveHourFormat(nl_langinfo_l(T_FMT, opened));
    }
    if (const auto numbers = OpenLocale(LC_NUMERIC_MASK | LC_CTYPE_MASK, LocaleNameFor("LC_NUMERIC"))) {
        auto* const opened = static_cast<locale_t>(numbers.get());
        const std::string charset = nl_langinfo_l(CODESET, opened);
        formats.thousands_ = InWindows1252(ToUtf8(nl_langinfo_l(THOUSEP, opened), charset));
        formats.decimal_ = ToUtf8(nl_langinfo_l(RADIXCHAR, opened), charset);
    }
    return formats;
}

std::string Locale::Format(const std::tm& time, const char* format) const {
    std::array<char, 256> text{};
    const std::size_t length =
        strftime_l(text.data(), text.size(), format, &time, static_cast<locale_t>(timeLocale_.get()));
    return ToUtf8(std::string(text.data(), length), timeCharset_);
}

std::string Locale::ShortDate(const std::tm& time) const {
    if (timeLocale_) {
        return Format(time, "%x");
    }
    std::array<char, 32> text{};
    return {text.data(), std::strftime(text.data(), text.size(), "%Y-%m-%d", &time)};
}

std::string Locale::ShortTime(const std::tm& time) const {
    if (timeLocale_) {
        return Format(time, twelveHours_ ? "%I:%M %p" : "%H:%M");
    }
    std::array<char, 32> text{};
    return {text.data(), std::strftime(text.data(), text.size(), "%H:%M", &time)};
}

} // namespace tunedex
