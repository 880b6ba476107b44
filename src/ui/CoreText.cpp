#include "CoreText.h"

#include "Columns.h"
#include "QtText.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace tunedex {
namespace {

constexpr const char* kContext = "tunedex::CoreText";
constexpr const char* kColumnContext = "tunedex::Columns";

struct CoreText {
    const char* pattern; // "%1" to "%3" stand for the parts that are not the same in each message
    int textPart = 0;    // the number of the part that is a text of this table, too; 0 if none is
};

// Line breaks as ToQtDisplay() leaves them.
constexpr std::array kCoreTexts = {
    CoreText{QT_TRANSLATE_NOOP("tunedex::CoreText", "Error!")},
    CoreText{QT_TRANSLATE_NOOP("tunedex::CoreText", "Error")},
    CoreText{QT_TRANSLATE_NOOP("tunedex::CoreText", "Settings")},
    CoreText{QT_TRANSLATE_NOOP("tunedex::CoreText", "Tunedex (Automatic Mode)")},
    CoreText{QT_TRANSLATE_NOOP("tunedex::CoreText", "Tunedex Error! (Automatic Mode)")},
    CoreText{QT_TRANSLATE_NOOP("tunedex::CoreText", "The specified directory does not exist!")},
    CoreText{QT_TRANSLATE_NOOP("tunedex::CoreText", "No input directory specified!")},
    CoreText{QT_TRANSLATE_NOOP("tunedex::CoreText", "No input directories specified!")},
    CoreText{QT_TRANSLATE_NOOP("tunedex::CoreText", "No output file specified!")},
    CoreText{QT_TRANSLATE_NOOP("tunedex::CoreText",
                               "The output directory does not exist!\n\nDo you want to create it?")},
    CoreText{QT_TRANSLATE_NOOP("tunedex::CoreText", "No MP3 files!")},
    CoreText{QT_TRANSLATE_NOOP("tunedex::CoreText", "No MP3 files were found\nin the directory specified.")},
    CoreText{
        QT_TRANSLATE_NOOP("tunedex::CoreText", "No MP3 files were found\nin the directories specified.")},
    CoreText{QT_TRANSLATE_NOOP("tunedex::CoreText", "An error occurred verifying your input directory.\n\n"
                                                    "This could be because you do not have permission\n"
                                                    "to access the directory, or you may be attempting\n"
                                                    "to use a non-existent network share.")},
    CoreText{QT_TRANSLATE_NOOP("tunedex::CoreText",
                               "An unexpected error occurred. The error was: \n\nError number %1 - %2"),
             2},
    CoreText{
        QT_TRANSLATE_NOOP("tunedex::CoreText", "An error occurred scanning the directory: \n\n%1\n\n%2: %3"),
        3},
    CoreText{QT_TRANSLATE_NOOP("tunedex::CoreText", "An error occurred decoding the headers of: \n\n%1")},
    CoreText{QT_TRANSLATE_NOOP("tunedex::CoreText", "A settings file cannot hold a line break.\n"
                                                    "These settings were not saved:\n\n%1")},
    CoreText{QT_TRANSLATE_NOOP("tunedex::CoreText", "Invalid procedure call or argument")},
    CoreText{QT_TRANSLATE_NOOP("tunedex::CoreText", "Overflow")},
    CoreText{QT_TRANSLATE_NOOP("tunedex::CoreText", "Out of memory")},
    CoreText{QT_TRANSLATE_NOOP("tunedex::CoreText", "Subscript out of range")},
    CoreText{QT_TRANSLATE_NOOP("tunedex::CoreText", "Division by zero")},
    CoreText{QT_TRANSLATE_NOOP("tunedex::CoreText", "Type mismatch")},
    CoreText{QT_TRANSLATE_NOOP("tunedex::CoreText", "Bad file name or number")},
    CoreText{QT_TRANSLATE_NOOP("tunedex::CoreText", "File not found")},
    CoreText{QT_TRANSLATE_NOOP("tunedex::CoreText", "Device I/O error")},
    CoreText{QT_TRANSLATE_NOOP("tunedex::CoreText", "Disk full")},
    CoreText{QT_TRANSLATE_NOOP("tunedex::CoreText", "Input past end of file")},
    CoreText{QT_TRANSLATE_NOOP("tunedex::CoreText", "Too many files")},
    CoreText{QT_TRANSLATE_NOOP("tunedex::CoreText", "Path/File access error")},
    CoreText{QT_TRANSLATE_NOOP("tunedex::CoreText", "Path not found")},
};

constexpr std::array kStatusTexts = {
    QT_TRANSLATE_NOOP("tunedex::CoreText", "Searching for MP3 files..."),
    QT_TRANSLATE_NOOP("tunedex::CoreText", "Retrieving MPEG/ID3 information..."),
    QT_TRANSLATE_NOOP("tunedex::CoreText", "Sorting information..."),
    QT_TRANSLATE_NOOP("tunedex::CoreText", "Writing information..."),
    QT_TRANSLATE_NOOP("tunedex::CoreText", "Operation complete!"),
};
constexpr std::array kCountedStatusTexts = {
    QT_TRANSLATE_NOOP("tunedex::CoreText", "Retrieving MPEG/ID3 information (%1/%2)..."),
    QT_TRANSLATE_NOOP("tunedex::CoreText", "Writing entry for file %1/%2..."),
    QT_TRANSLATE_NOOP("tunedex::CoreText", "Writing index entry for file %1/%2..."),
};

// The columns that users choose, for lupdate.
[[maybe_unused]] constexpr std::array kColumnNames = {
    QT_TRANSLATE_NOOP("tunedex::Columns", "Number"),    QT_TRANSLATE_NOOP("tunedex::Columns", "Artist"),
    QT_TRANSLATE_NOOP("tunedex::Columns", "Album"),     QT_TRANSLATE_NOOP("tunedex::Columns", "Title"),
    QT_TRANSLATE_NOOP("tunedex::Columns", "Duration"),  QT_TRANSLATE_NOOP("tunedex::Columns", "Bitrate"),
    QT_TRANSLATE_NOOP("tunedex::Columns", "File Size"), QT_TRANSLATE_NOOP("tunedex::Columns", "Frequency"),
    QT_TRANSLATE_NOOP("tunedex::Columns", "Genre"),     QT_TRANSLATE_NOOP("tunedex::Columns", "Mode"),
    QT_TRANSLATE_NOOP("tunedex::Columns", "MPEG Type"), QT_TRANSLATE_NOOP("tunedex::Columns", "Year"),
    QT_TRANSLATE_NOOP("tunedex::Columns", "Filename"),  QT_TRANSLATE_NOOP("tunedex::Columns", "Folder Path"),
    QT_TRANSLATE_NOOP("tunedex::Columns", "Full Path"), QT_TRANSLATE_NOOP("tunedex::Columns", "Track"),
    QT_TRANSLATE_NOOP("tunedex::Columns", "Disc"),      QT_TRANSLATE_NOOP("tunedex::Columns", "Album Artist"),
    QT_TRANSLATE_NOOP("tunedex::Columns", "Composer"),  QT_TRANSLATE_NOOP("tunedex::Columns", "Comment"),
};
static_assert(kColumnNames.size() == static_cast<std::size_t>(ColumnKey::ArtistTitle),
              "each column that users choose has a name to be translated");

QString TranslatedOf(const char* text) {
    return QCoreApplication::translate(kContext, text);
}

// Matches the whole of a message that the pattern describes, with a group for each part. A group takes as
// much as it can: a path can contain what follows it in the pattern.
QRegularExpression ExpressionOf(const QString& pattern) {
    static const QRegularExpression part(u"%\\d"_s);
    QStringList literals = pattern.split(part);
    for (QString& literal : literals) {
        literal = QRegularExpression::escape(literal);
    }
    return QRegularExpression(QRegularExpression::anchoredPattern(literals.join(u"(.*)"_s)),
                              QRegularExpression::DotMatchesEverythingOption);
}

// All parts at once: a part can contain "%2".
QString WithParts(const QString& text, const QStringList& parts) {
    switch (parts.size()) {
    case 1:
        return text.arg(parts[0]);
    case 2:
        return text.arg(parts[0], parts[1]);
    default:
        return text.arg(parts[0], parts[1], parts[2]);
    }
}

QString ExactText(const QString& text) {
    const QByteArray source = text.toUtf8();
    return TranslatedOf(source.constData());
}

// The message in the words of the translation; empty if it is not one of this pattern.
QString Reworded(const QString& text, const CoreText& known) {
    const QRegularExpressionMatch match = ExpressionOf(QString::fromLatin1(known.pattern)).match(text);
    if (!match.hasMatch()) {
        return {};
    }
    QStringList parts = match.capturedTexts().sliced(1);
    if (known.textPart > 0) {
        QString& part = parts[known.textPart - 1];
        part = ExactText(part);
    }
    return WithParts(TranslatedOf(known.pattern), parts);
}

QString CountedText(const char* pattern, std::int32_t count, std::int32_t total) {
    return TranslatedOf(pattern).arg(QString::number(count), QString::number(total));
}

} // namespace

QString ShownText(std::string_view text) {
    QString english = ToQtDisplay(text);
    if (QString exact = ExactText(english); exact != english) {
        return exact;
    }
    for (const CoreText& known : kCoreTexts) {
        const bool hasParts = std::string_view(known.pattern).find('%') != std::string_view::npos;
        QString reworded = hasParts ? Reworded(english, known) : QString();
        if (!reworded.isEmpty()) {
            return reworded;
        }
    }
    return english;
}

QString ShownStatus(std::string_view before, std::int32_t count, std::int32_t total, std::string_view after) {
    QByteArray pattern;
    pattern.append(before.data(), static_cast<qsizetype>(before.size())).append("%1/%2");
    pattern.append(after.data(), static_cast<qsizetype>(after.size()));
    return CountedText(pattern.constData(), count, total);
}

QStringList StatusTexts() {
    constexpr std::int32_t kLongest = 8'888'888;
    QStringList texts;
    for (const char* text : kStatusTexts) {
        texts << TranslatedOf(text);
    }
    for (const char* pattern : kCountedStatusTexts) {
        texts << CountedText(pattern, kLongest, kLongest);
    }
    return texts;
}

QString ShownColumn(std::string_view name) {
    const ColumnKey key = ColumnKeyOf(name, ColumnSet::Modern);
    if (!IsChoosable(key, ColumnSet::Modern)) {
        return ToQt(name);
    }
    const QString english = ToQt(KindOf(key).name);
    const QString shown = QCoreApplication::translate(kColumnContext, english.toLatin1().constData());
    return shown == english ? ToQt(name) : shown; // English keeps the spelling of the settings
}

} // namespace tunedex
