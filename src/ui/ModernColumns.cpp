#include "ModernColumns.h"

#include "Columns.h"
#include "Text.h"

#include <algorithm>
#include <vector>

namespace tunedex {
namespace {

constexpr std::string_view kListSeparator = "|";

bool IsModernName(std::string_view name) {
    return KindOf(ColumnKeyOf(name, ColumnSet::Modern)).IsModern();
}

bool Names(const std::string& list, ColumnKey key) {
    const std::vector<Column> columns = SplitColumns(list, ColumnSet::Modern);
    return std::any_of(columns.begin(), columns.end(),
                       [key](const Column& column) { return column.key == key; });
}

void Append(std::string& list, std::string_view name, bool first) {
    if (!first) {
        list += kListSeparator;
    }
    list += name;
}

void RemoveModernFrom(std::string& list) {
    std::string kept;
    bool first = true;
    for (const std::string& name : Split(list, kListSeparator)) {
        if (!IsModernName(name)) {
            Append(kept, name, first);
            first = false;
        }
    }
    list = kept;
}

} // namespace

void OfferModernColumns(Settings& settings) {
    for (const ColumnKind& kind : kColumns) {
        if (kind.IsModern() && !Names(settings.ActiveColumns, kind.key) &&
            !Names(settings.InactiveColumns, kind.key)) {
            Append(settings.InactiveColumns, kind.name, settings.InactiveColumns.empty());
        }
    }
}

void RemoveModernColumns(Settings& settings) {
    RemoveModernFrom(settings.ActiveColumns);
    RemoveModernFrom(settings.InactiveColumns);
}

} // namespace tunedex
