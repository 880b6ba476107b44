#include "TagGenres.h"

#include "Genres.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>

namespace tunedex {

namespace {

constexpr unsigned kFirstExtended = 148;
constexpr std::array<std::string_view, 44> kExtendedGenres = {"Abstract",      "Art Rock",
                                                              "Baroque",       "Bhangra",
                                                              "Big Beat",      "Breakbeat",
                                                              "Chillout",      "Downtempo",
                                                              "Dub",           "EBM",
                                                              "Eclectic",      "Electro",
                                                              "Electroclash",  "Emo",
                                                              "Experimental",  "Garage",
                                                              "Global",        "IDM",
                                                              "Illbient",      "Industro-Goth",
                                                              "Jam Band",      "Krautrock",
                                                              "Leftfield",     "Lounge",
                                                              "Math Rock",     "New Romantic",
                                                              "Nu-Breakz",     "Post-Punk",
                                                              "Post-Rock",     "Psytrance",
                                                              "Shoegaze",      "Space Rock",
                                                              "Trop Rock",     "World Music",
                                                              "Neoclassical",  "Audiobook",
                                                              "Audio Theatre", "Neue Deutsche Welle",
                                                              "Podcast",       "Indie Rock",
                                                              "G-Funk",        "Dubstep",
                                                              "Garage Rock",   "Psybient"};

// The published names of the genres that GenreName() spells in another way. Taggers write them behind the
// number: "(27)Trip-Hop" is one genre.
struct PublishedGenre {
    unsigned number;
    std::string_view name;
};
constexpr std::array<PublishedGenre, 12> kPublishedGenres = {{{27, "Trip-Hop"},
                                                              {62, "Pop/Funk"},
                                                              {81, "Folk-Rock"},
                                                              {85, "Bebop"},
                                                              {89, "Bluegrass"},
                                                              {90, "Avantgarde"},
                                                              {116, "Ballad"},
                                                              {117, "Power Ballad"},
                                                              {128, "Club-House"},
                                                              {133, "Afro-Punk"},
                                                              {136, "Christian Gangsta Rap"},
                                                              {140, "Contemporary Christian"}}};

constexpr std::string_view kUnknownGenre = "Unknown";
constexpr std::string_view kDigits = "0123456789";

bool IsNumber(std::string_view text) {
    return !text.empty() && text.find_first_not_of(kDigits) == std::string_view::npos;
}

// The number that all of the text is, if it is below 256, as in an ID3v1 tag.
std::optional<unsigned> GenreNumber(std::string_view text) {
    unsigned number = 0;
    if (!IsNumber(text) ||
        std::from_chars(text.data(), text.data() + text.size(), number).ec != std::errc() || number > 255) {
        return std::nullopt;
    }
    return number;
}

std::string_view NameOrUnknown(unsigned number) {
    const std::string_view name = ExtendedGenreName(number);
    return name.empty() ? kUnknownGenre : name;
}

// The name for "RX" and "CR"; empty for any other text.
std::string_view NameOfLetters(std::string_view text) {
    return text == "RX" ? "Remix" : text == "CR" ? "Cover" : std::string_view();
}

// Removes a reference from the front of a text and returns what is in its parentheses.
std::optional<std::string_view> TakeReference(std::string_view& text) {
    const std::size_t end = text.starts_with('(') ? text.find(')') : std::string_view::npos;
    if (end == std::string_view::npos) {
        return std::nullopt;
    }
    const std::string_view reference = text.substr(1, end - 1);
    if (!IsNumber(reference) && NameOfLetters(reference).empty()) {
        return std::nullopt;
    }
    text.remove_prefix(end + 1);
    return reference;
}

std::string_view NameOfReference(std::string_view reference) {
    if (const std::string_view name = NameOfLetters(reference); !name.empty()) {
        return name;
    }
    const auto number = GenreNumber(reference);
    return number ? NameOrUnknown(*number) : kUnknownGenre;
}

// Whether `text` repeats the name of a reference in front of it.
bool Repeats(std::string_view text, std::string_view reference) {
    if (text == NameOfReference(reference)) {
        return true;
    }
    const auto number = GenreNumber(reference);
    return number && std::any_of(kPublishedGenres.begin(), kPublishedGenres.end(), [&](const auto& genre) {
               return genre.number == number && genre.name == text;
           });
}

} // namespace

std::string_view ExtendedGenreName(unsigned number) {
    if (number < kFirstExtended) {
        return GenreName(number);
    }
    const unsigned index = number - kFirstExtended;
    return index < kExtendedGenres.size() ? kExtendedGenres.at(index) : std::string_view();
}

std::vector<std::string_view> GenresOf(std::string_view value) {
    if (const auto number = GenreNumber(value)) {
        return {NameOrUnknown(*number)};
    }
    if (const std::string_view name = NameOfLetters(value); !name.empty()) {
        return {name};
    }
    std::vector<std::string_view> genres;
    std::string_view text = value;
    while (const auto reference = TakeReference(text)) {
        genres.push_back(NameOfReference(*reference));
    }
    if (text.starts_with("((")) {
        text.remove_prefix(1);
    }
    bool repeated = text.empty();
    for (std::string_view rest = value;
         const auto reference = repeated ? std::nullopt : TakeReference(rest);) {
        repeated = Repeats(text, *reference);
    }
    if (!repeated) {
        genres.push_back(text);
    }
    return genres;
}

} // namespace tunedex
