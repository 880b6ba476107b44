#include "QtCollation.h"

#include <QCollator>
#include <QLocale>
#include <QString>

namespace tunedex {
namespace {

// QCollator has no root order: for the C locale it compares code units. English has the root order
// untailored.
QLocale LocaleFor(const std::string& language) {
    const QLocale locale(QString::fromStdString(language));
    return locale.language() == QLocale::C ? QLocale(QLocale::English, QLocale::UnitedStates) : locale;
}

} // namespace

std::vector<std::uint32_t> QtCollation::Ranks(const std::vector<std::string_view>& texts,
                                              const Step& step) const {
    const QCollator collator(LocaleFor(language_));
    std::vector<QCollatorSortKey> keys;
    keys.reserve(texts.size());
    for (const std::string_view text : texts) {
        step();
        keys.push_back(collator.sortKey(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()))));
    }
    return RanksOf(keys.size(), [&](std::uint32_t a, std::uint32_t b) {
        step();
        return keys[a].compare(keys[b]);
    });
}

} // namespace tunedex
