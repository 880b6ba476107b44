#include "Html5Style.h"

#include "ColourScheme.h"
#include "Html5Text.h"
#include "Numbers.h"
#include "Text.h"

#include <algorithm>
#include <array>

namespace tunedex {

namespace {

constexpr std::array<std::string_view, kColourCount> kColourNames = {
    "page-text", "page", "header-text", "header", "cell-text", "cell", "alt-text", "alt", "link", "border"};
constexpr std::array<std::string_view, kFontCount> kFontNames = {"page", "header", "cell"};

void AddDeclaration(std::string& style, std::string_view name, std::string_view value) {
    style += "--";
    style += name;
    style += ':';
    style += value;
    style += ";\n";
}

bool IsLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

// CSS 2.1 section 15.3: a sequence of identifiers need not be quoted. Generic families must not be.
bool IsIdentifiers(std::string_view name) {
    bool first = true; // of an identifier
    for (const char c : name) {
        const bool inside = !first && ((c >= '0' && c <= '9') || c == '-' || c == ' ');
        if (!IsLetter(c) && !inside) {
            return false;
        }
        first = c == ' ';
    }
    return !name.empty() && !first;
}

std::string_view WithoutQuotes(std::string_view name) {
    const bool quoted = name.size() >= 2 && (name[0] == '"' || name[0] == '\'') && name.back() == name[0];
    return quoted ? name.substr(1, name.size() - 2) : name;
}

void WriteFont(std::string& style, const FontSetting& font, std::string_view name) {
    const std::string prefix = std::string(name) + "-";
    if (const std::string families = Html5FontFamilies(font.face); !families.empty()) {
        AddDeclaration(style, prefix + "font", families);
    }
    const int hundredths = static_cast<int>(Html5FontSize(font.size) * 100);
    AddDeclaration(style, prefix + "size",
                   std::to_string(hundredths / 100) + "." + PadNumber(hundredths % 100, 2) + "rem");
    AddDeclaration(style, prefix + "weight", font.bold ? "700" : "400");
    AddDeclaration(style, prefix + "style", font.italic ? "italic" : "normal");
}

void WriteColours(std::string& style, const Settings& settings) {
    const ColourScheme own = OwnColours(settings);
    const ColourScheme counterpart = Counterpart(settings);
    const ColourScheme& light = IsDark(settings) ? counterpart : own;
    const ColourScheme& dark = IsDark(settings) ? own : counterpart;
    for (std::size_t i = 0; i < kColourCount; ++i) {
        // Without alternate rows these have the colours of the others.
        std::size_t shown = i;
        if (!settings.AltRows && i == kAlternateText) {
            shown = kCellText;
        } else if (!settings.AltRows && i == kAlternateBackground) {
            shown = kCellBackground;
        }
        AddDeclaration(style, kColourNames[i],
                       "light-dark(#" + light.colours[shown] + ",#" + dark.colours[shown] + ")");
    }
}

std::string Pixels(std::int16_t count) {
    return std::to_string(std::max<std::int16_t>(count, 0)) + "px";
}

} // namespace

int Html5CellPixels(const Settings& settings) {
    return 2 * std::max<int>(settings.TablePadding, 0) + std::max<int>(settings.TableBorder, 0);
}

double Html5FontSize(std::string_view size) {
    constexpr std::array kSizes = {0.75, 0.82, 1.0, 1.12, 1.5, 2.0, 3.0};
    const bool known = size.size() == 1 && size[0] >= '1' && size[0] <= '7';
    return kSizes.at(known ? static_cast<std::size_t>(size[0] - '1') : 2);
}

std::string CssString(std::string_view text) {
    std::string result = "\"";
    for (const char c : Html5Markup(text)) {
        if (c == '"' || c == '\\') {
            result += '\\';
        }
        if (c == '<') {
            result += R"(\3c )";
        } else {
            result += c == '\t' || c == '\n' || c == '\f' || c == '\r' ? ' ' : c;
        }
    }
    return result + '"';
}

std::string Html5FontFamilies(std::string_view faces) {
    std::string families;
    for (const std::string& piece : Split(faces, ",")) {
        const std::string_view trimmed = TrimBlanks(piece);
        const std::string_view name = WithoutQuotes(trimmed);
        if (name.empty()) {
            continue;
        }
        families += families.empty() ? "" : ",";
        families += IsIdentifiers(trimmed) ? std::string(name) : CssString(name);
    }
    return families;
}

void WriteHtml5Theme(std::string& style, const Settings& settings) {
    style += ":root{\n";
    WriteColours(style, settings);
    if (settings.FontCSS || settings.FontHTML) {
        for (std::size_t i = 0; i < kFontCount; ++i) {
            WriteFont(style, settings.Font[i], kFontNames[i]);
        }
    }
    AddDeclaration(style, "line", Pixels(settings.TableBorder));
    AddDeclaration(style, "padding", Pixels(settings.TablePadding));
    AddDeclaration(style, "row", "calc(1.3em + " + std::to_string(Html5CellPixels(settings)) + "px)");
    AddDeclaration(style, "width",
                   std::to_string(std::max<std::int16_t>(settings.TableWidth, 0)) +
                       (settings.TableWidthUnit == 1 ? "%" : "px"));
    style += "}\n";
}

} // namespace tunedex
