#include "ResultText.h"

#include "CoreText.h"
#include "OutputList.h"
#include "Path.h"
#include "QtText.h"
#include "TerminalText.h"
#include "Text.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QStringList>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace tunedex {
namespace {

class Sentences {
    Q_DECLARE_TR_FUNCTIONS(tunedex::ResultText)

  public:
    Sentences(const RunOutcome& outcome, const Locale& locale)
        : outcome_(outcome), separator_(ToQt(locale.ThousandsSeparator())) {}

    QString End(const QString& name) const;
    QString Unread() const;
    QString ModernTags(bool modern) const;

  private:
    QString Written(const QString& name) const;
    QString Number(std::size_t number) const;
    QString Tracks() const {
        return Counted(outcome_.tracks, tr("1 track"), tr("%1 tracks", nullptr, outcome_.tracks));
    }
    QString Pages() const {
        return Counted(outcome_.pages, tr("1 page"), tr("%1 pages", nullptr, outcome_.pages));
    }
    QString Folders() const {
        const int number = ForPlural(outcome_.unreadFolders);
        return Counted(outcome_.unreadFolders, tr("1 folder"), tr("%1 folders", nullptr, number));
    }
    QString Files() const {
        const int number = ForPlural(outcome_.unreadFiles);
        return Counted(outcome_.unreadFiles, tr("1 file"), tr("%1 files", nullptr, number));
    }

    static int ForPlural(std::size_t number) {
        return static_cast<int>(std::min<std::size_t>(number, std::numeric_limits<int>::max()));
    }
    template <typename Count> QString Counted(Count count, const QString& one, const QString& many) const {
        return count == 1 ? one : many.arg(Number(static_cast<std::size_t>(count)));
    }

    const RunOutcome& outcome_;
    QString separator_;
};

// With the separators of listings.
QString Sentences::Number(std::size_t number) const {
    QString digits = QString::number(number);
    for (qsizetype i = digits.size() - 3; i > 0; i -= 3) {
        digits.insert(i, separator_);
    }
    return digits;
}

QString Sentences::End(const QString& name) const {
    switch (outcome_.end) {
    case RunEnd::NotStarted:
        return {};
    case RunEnd::Written:
        return Written(name);
    case RunEnd::Aborted:
        return outcome_.partial ? tr("The run was aborted. %1 has the tracks that were written.").arg(name)
                                : tr("The run was aborted. No list was written.");
    case RunEnd::NothingFound:
        return tr("No MP3 files were found. No list was written.");
    case RunEnd::Failed:
        return tr("The run failed: %1. No complete list was written.").arg(ShownText(outcome_.failure));
    }
    return {};
}

QString Sentences::Written(const QString& name) const {
    const ListingStyle style = outcome_.modern ? ListingStyle::Modern : ListingStyle::Classic;
    const bool paged = OutputTypeOf(outcome_.file, style) == kHtmlOutput;
    return paged ? tr("Wrote %1: %2 on %3.").arg(name, Tracks(), Pages())
                 : tr("Wrote %1: %2.").arg(name, Tracks());
}

QString Sentences::Unread() const {
    if (outcome_.unreadFolders > 0 && outcome_.unreadFiles > 0) {
        return tr("%1 and %2 could not be read.").arg(Folders(), Files());
    }
    return tr("%1 could not be read.").arg(outcome_.unreadFolders > 0 ? Folders() : Files());
}

QString Sentences::ModernTags(bool modern) const {
    if (modern) {
        return tr("'Modern tags and lists' is on now: create the list again.");
    }
    return Counted(outcome_.modernTags,
                   tr("1 file has tags that 'Modern tags and lists' would read correctly."),
                   tr("%1 files have tags that 'Modern tags and lists' would read correctly.", nullptr,
                      outcome_.modernTags));
}

bool ReadsRightToLeft(QChar character) {
    return character.direction() == QChar::DirR || character.direction() == QChar::DirAL;
}

bool HasModernTags(const RunOutcome& outcome) {
    return outcome.Written() && !outcome.modern && outcome.modernTags > 0;
}

} // namespace

QString ListName(const RunOutcome& outcome) {
    std::string name(FileNameOf(outcome.file, PathStyle::Native()));
    if (outcome.pages > 1) { // list.001.htm
        const std::size_t extension = name.rfind('.');
        const std::size_t number = name.substr(0, extension).rfind('.');
        name.erase(std::min(number, name.size()), extension - number);
    }
    return ToQtDisplay(TerminalText(name));
}

QString ResultText(const RunOutcome& outcome, const QString& name, bool modern, const Locale& locale) {
    const Sentences sentences(outcome, locale);
    QStringList lines{sentences.End(Isolated(name))};
    if (outcome.end == RunEnd::NotStarted) {
        return {};
    }
    if (outcome.Incomplete()) {
        lines << sentences.Unread();
    }
    if (HasModernTags(outcome)) {
        lines << sentences.ModernTags(modern);
    }
    return lines.join(u'\n');
}

bool OffersModern(const RunOutcome& outcome, bool modern) {
    return HasModernTags(outcome) && !modern;
}

QString Isolated(const QString& text) {
    constexpr QChar kFirstStrongIsolate(u'\u2068');
    constexpr QChar kPopIsolate(u'\u2069');
    const bool ofOtherDirection =
        QGuiApplication::isRightToLeft() || std::any_of(text.begin(), text.end(), ReadsRightToLeft);
    return ofOtherDirection && !text.isEmpty() ? kFirstStrongIsolate + text + kPopIsolate : text;
}

} // namespace tunedex
