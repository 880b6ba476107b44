#include "MarkupText.h"

#include "Text.h"

namespace tunedex {

namespace {

std::string WithReferences(std::string_view text, std::string_view replaced) {
    std::string result;
    for (std::size_t hit = text.find_first_of(replaced); hit != std::string_view::npos;
         hit = text.find_first_of(replaced)) {
        result += text.substr(0, hit);
        result += ReferenceOf(text[hit]);
        text.remove_prefix(hit + 1);
    }
    return result.append(text);
}

} // namespace

std::string ElementText(std::string_view text) {
    return WithReferences(text, "&<>");
}

std::string AttributeText(std::string_view text) {
    return WithReferences(text, "&<>\"");
}

std::string CssText(std::string_view text) {
    return ReplaceAll(ReplaceAll(text, "<", R"(\3c )"), ">", R"(\3e )");
}

} // namespace tunedex
