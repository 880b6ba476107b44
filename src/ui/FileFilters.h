// Filter lists of file dialogs: pairs of description and patterns, separated by "|". A trailing "|" is
// allowed.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace tunedex {

struct FileFilter {
    QString description;  // "HTML File (*.htm,*.html)"
    QStringList patterns; // "*.htm", "*.html"

    bool operator==(const FileFilter&) const = default;
};

// A last description that has no patterns is dropped.
QList<FileFilter> ParseFilterList(const QString& list);

// The filter in QFileDialog's form: description (pattern pattern ...).
QString QtNameFilter(const FileFilter& filter);

// The extension of the first pattern without its full stop ("htm"); empty for "*.*".
QString ExtensionOf(const FileFilter& filter);

// The file name after a change of filter: an extension that belongs to any filter in `all` is replaced by the
// first one of `chosen`. A name with another extension, or none, is returned unchanged.
QString NameForFilter(const QString& name, const FileFilter& chosen, const QList<FileFilter>& all);

} // namespace tunedex
