#include "Columns.h"

#include "RunTimeError.h"
#include "Text.h"

#include <algorithm>

namespace tunedex {

namespace {

std::u32string ReplaceEach(std::u32string_view list, std::u32string_view from, std::u32string_view to) {
    std::u32string result;
    std::size_t start = 0;
    for (std::size_t hit = list.find(from); hit != std::u32string_view::npos; hit = list.find(from, start)) {
        result.append(list, start, hit - start).append(to);
        start = hit + from.size();
    }
    return result.append(list, start);
}

std::u32string Remove(std::u32string_view list, std::u32string_view name) {
    return ReplaceEach(ReplaceEach(list, name, U""), U"||", U"|");
}

// "Album Artist" contains the names of two columns that a merge removes. While columns are merged, private
// characters replace its own, one for one, so that positions stay the same.
constexpr char32_t kFirstHidden = 0xF0000;
constexpr char32_t kLastHidden = kFirstHidden + 0x7F;

std::string HiddenAlbumArtist(const std::string& columnList) {
    std::string list;
    std::string_view separator;
    for (const std::string& name : Split(columnList, "|")) {
        list += separator;
        separator = "|";
        if (ColumnKeyOf(name, ColumnSet::Modern) != ColumnKey::AlbumArtist) {
            list += name;
            continue;
        }
        for (const char character : name) {
            AppendUtf8(list, kFirstHidden + static_cast<unsigned char>(character));
        }
    }
    return list;
}

std::string ShownAlbumArtist(const std::string& columnList) {
    std::u32string list = Characters(columnList);
    for (char32_t& character : list) {
        character -= character >= kFirstHidden && character <= kLastHidden ? kFirstHidden : 0;
    }
    return FromCharacters(list);
}

std::u32string MergedName(std::int16_t merge) {
    if (merge == 1) {
        return Characters(KindOf(ColumnKey::ArtistTitle).name);
    }
    return merge == 2 ? Characters(KindOf(ColumnKey::ArtistAlbumTitle).name) : std::u32string();
}

std::string MergedList(const std::string& activeColumns, std::int16_t merge) {
    // Positions and lengths count characters, a stray byte as one.
    const std::u32string active = Characters(activeColumns);
    const std::u32string upper = Characters(UpperCase(activeColumns));
    const std::size_t artist = upper.find(U"ARTIST");
    const std::size_t title = upper.find(U"TITLE");
    if (merge <= 0 || artist == std::u32string::npos || title == std::u32string::npos) {
        return activeColumns;
    }
    // Required: positions are measured before names are removed, so the list is cut in the wrong place when
    // Album comes first. Do not 'fix'.
    const std::size_t start = std::min(artist, title);
    const std::size_t bar = upper.find(U'|', start); // npos: keep the whole list as the tail
    std::u32string list = Remove(active, artist < title ? U"Title" : U"Artist");
    if (merge == 2) {
        list = Remove(list, U"Album");
    }
    const std::size_t barPosition = bar == std::u32string::npos ? 0 : bar + 1;
    if (list.size() + 1 < barPosition) {
        throw RunTimeError(ErrorNumber::InvalidProcedureCall);
    }
    const std::size_t endLength = std::min(list.size() + 1 - barPosition, list.size());
    std::u32string merged = list.substr(0, start) + MergedName(merge) + list.substr(list.size() - endLength);
    if (merged.ends_with(U'|')) {
        merged.pop_back();
    }
    if (merged.starts_with(U'|')) {
        merged.erase(0, 1);
    }
    return FromCharacters(merged);
}

} // namespace

ColumnKey ColumnKeyOf(std::string_view name, ColumnSet set) {
    const std::string key = UpperCase(name);
    const auto* const found = std::find_if(kColumns.begin(), kColumns.end() - 1, [&](const ColumnKind& kind) {
        return IsIn(set, kind.key) && UpperCase(kind.name) == key;
    });
    return found->key; // the last row is Unknown
}

std::string MergeColumns(const std::string& activeColumns, std::int16_t merge, ColumnSet set) {
    if (set == ColumnSet::Modern) {
        return ShownAlbumArtist(MergedList(HiddenAlbumArtist(activeColumns), merge));
    }
    return MergedList(activeColumns, merge);
}

std::vector<Column> SplitColumns(const std::string& columnList, ColumnSet set) {
    std::vector<Column> columns;
    for (const std::string& name : Split(columnList, "|")) {
        columns.push_back({name, ColumnKeyOf(name, set)});
    }
    return columns;
}

std::string HeaderText(const Column& column) {
    const std::string_view header = KindOf(column.key).header;
    return header.empty() ? column.name : std::string(header);
}

} // namespace tunedex
