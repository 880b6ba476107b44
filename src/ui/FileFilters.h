// Filter lists of file dialogs: pairs of description and patterns, all separated by "|"; a bar at the end is
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

// A description without patterns at the end of the list is dropped.
QList<FileFilter> ParseFilterList(const QString& list);

// The form that Qt's file dialog takes: the description, then the patterns in brackets of their own.
QString QtNameFilter(const FileFilter& filter);

// The extension that a file of this filter gets, without its full stop: "htm"; empty for "*.*".
QString ExtensionOf(const FileFilter& filter);

// The file name after the user has gone over to another filter: an extension that belongs to one of the
// filters is replaced by the first of the chosen one; a name with a foreign extension, or with none, stays as
// it is.
QString NameForFilter(const QString& name, const FileFilter& chosen, const QList<FileFilter>& all);

} // namespace tunedex
