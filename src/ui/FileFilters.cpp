#include "FileFilters.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace tunedex {
namespace {

bool HasExtension(const FileFilter& filter, const QString& extension) {
    return filter.patterns.contains(u"*."_s + extension, Qt::CaseInsensitive);
}

} // namespace

QList<FileFilter> ParseFilterList(const QString& list) {
    const QStringList pieces = list.split(u'|');
    QList<FileFilter> filters;
    for (qsizetype i = 0; i + 1 < pieces.size(); i += 2) {
        filters.append({pieces[i], pieces[i + 1].split(u';', Qt::SkipEmptyParts)});
    }
    return filters;
}

QString QtNameFilter(const FileFilter& filter) {
    // For Qt "*.*" requires a full stop in the name; it is meant as "any file".
    const QString patterns = filter.patterns.join(u' ').replace(u"*.*"_s, u"*"_s);
    return filter.description + u" ("_s + patterns + u')';
}

QString ExtensionOf(const FileFilter& filter) {
    const QString first = filter.patterns.value(0);
    return first.startsWith(u"*."_s) && first != u"*.*"_s ? first.mid(2) : QString();
}

QString NameForFilter(const QString& name, const FileFilter& chosen, const QList<FileFilter>& all) {
    const qsizetype fullStop = name.lastIndexOf(u'.');
    const QString wanted = ExtensionOf(chosen);
    if (fullStop <= 0 || wanted.isEmpty()) {
        return name;
    }
    const QString extension = name.mid(fullStop + 1);
    const bool ours =
        std::any_of(all.begin(), all.end(), [&](const FileFilter& f) { return HasExtension(f, extension); });
    return ours && !HasExtension(chosen, extension) ? name.left(fullStop + 1) + wanted : name;
}

} // namespace tunedex
