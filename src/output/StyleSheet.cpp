#include "StyleSheet.h"

#include "HTMLBits.h"

#include <array>

namespace tunedex {

namespace {

void AddProperty(std::string& rule, std::string_view name, std::string_view value) {
    rule += name;
    rule += ": ";
    rule += value;
    rule += "; ";
}

void AddColours(std::string& rule, const std::string& text, const std::string& background) {
    AddProperty(rule, "color", "#" + text);
    AddProperty(rule, "background-color", "#" + background);
}

void AddFont(std::string& rule, const FontSetting& font) {
    AddProperty(rule, "font-family", font.face);
    AddProperty(rule, "font-size", CssSizeName(font.size));
}

void AddStrength(std::string& rule, const FontSetting& font) {
    if (font.bold) {
        AddProperty(rule, "font-weight", "bold");
    }
    if (font.italic) {
        AddProperty(rule, "font-style", "italic");
    }
}

// Required: the closing brace replaces the last character, the blank after the last property. A rule without
// properties loses its opening brace: "td }". Do not "fix".
std::string Finished(std::string rule) {
    rule.back() = '}';
    return rule;
}

// What hides the rules from a reader of the document type that takes them for markup.
struct Marks {
    std::string_view start;
    std::string_view end;
};

Marks MarksOf(std::string_view documentType, const PagePolicy& policy) {
    if (documentType == "HTML") {
        return {"<!--", "//-->"};
    }
    return documentType == "XHTML" ? Marks{policy.cdataStart, policy.cdataEnd} : Marks{};
}

} // namespace

std::string_view CssSizeName(std::string_view size) {
    constexpr std::array<std::string_view, 7> kNames = {"xx-small", "x-small", "small",   "medium",
                                                        "large",    "x-large", "xx-large"};
    if (size.size() == 1 && size[0] >= '1' && size[0] <= '7') {
        return kNames.at(static_cast<std::size_t>(size[0] - '1'));
    }
    return "small";
}

void WriteStyleBlock(std::string& page, const Settings& settings, const PagePolicy& policy) {
    if (!settings.FontCSS && !settings.ColourCSS) {
        return;
    }
    const std::string indent = Indent(3);
    std::string body = indent + "body {";
    std::string tr = indent + "tr {";
    std::string alternate = indent + "tr.r2 {";
    std::string th = indent + "th {";
    std::string td = indent + "td {";
    std::string a = indent + "a {";
    const auto& colour = settings.Colour;
    if (settings.ColourCSS) {
        AddColours(body, colour[kPageText], colour[kPageBackground]);
        AddColours(tr, colour[kCellText], colour[kCellBackground]);
        AddColours(alternate, colour[kAlternateText], colour[kAlternateBackground]);
        AddColours(th, colour[kHeaderText], colour[kHeaderBackground]);
        AddProperty(a, "color", "#" + colour[kLinkText]);
    }
    if (settings.FontCSS) {
        const FontSetting& cell = settings.Font[kCellFont];
        AddFont(body, settings.Font[kPageFont]);
        AddStrength(body, settings.Font[kPageFont]);
        AddFont(th, settings.Font[kHeaderFont]);
        AddStrength(th, settings.Font[kHeaderFont]);
        AddFont(td, cell);
        AddProperty(td, "font-weight", cell.bold ? "bold" : "normal");
        AddProperty(td, "font-style", cell.italic ? "italic" : "normal");
    }
    const Marks marks = MarksOf(settings.DocumentType, policy);
    page += Indent(2) + "<style type=\"text/css\">\r\n";
    page += Indent(2).append(marks.start) + "\r\n";
    for (const std::string* rule : {&body, &tr, &alternate, &th, &td}) {
        page += Finished(*rule) + "\r\n";
    }
    if (settings.ColourCSS) {
        page += Finished(a) + "\r\n";
    }
    page += Indent(2).append(marks.end) + "\r\n";
    page += Indent(2) + "</style>\r\n";
}

} // namespace tunedex
