#include "CodePageBox.h"

#include "CodePages.h"
#include "QtText.h"
#include "Text.h"

using namespace Qt::StringLiterals;

namespace tunedex {
namespace {

// For lupdate: the labels of kCodePages, which are translated when the list is filled.
[[maybe_unused]] constexpr std::array kLabels = {
    QT_TRANSLATE_NOOP("tunedex::CodePageBox", "Western"),
    QT_TRANSLATE_NOOP("tunedex::CodePageBox", "Central European"),
    QT_TRANSLATE_NOOP("tunedex::CodePageBox", "Cyrillic"),
    QT_TRANSLATE_NOOP("tunedex::CodePageBox", "Cyrillic (KOI8-R)"),
    QT_TRANSLATE_NOOP("tunedex::CodePageBox", "Greek"),
    QT_TRANSLATE_NOOP("tunedex::CodePageBox", "Turkish"),
    QT_TRANSLATE_NOOP("tunedex::CodePageBox", "Hebrew"),
    QT_TRANSLATE_NOOP("tunedex::CodePageBox", "Arabic"),
    QT_TRANSLATE_NOOP("tunedex::CodePageBox", "Baltic"),
    QT_TRANSLATE_NOOP("tunedex::CodePageBox", "Vietnamese"),
    QT_TRANSLATE_NOOP("tunedex::CodePageBox", "Thai"),
    QT_TRANSLATE_NOOP("tunedex::CodePageBox", "Japanese"),
    QT_TRANSLATE_NOOP("tunedex::CodePageBox", "Simplified Chinese"),
    QT_TRANSLATE_NOOP("tunedex::CodePageBox", "Traditional Chinese"),
    QT_TRANSLATE_NOOP("tunedex::CodePageBox", "Korean"),
    QT_TRANSLATE_NOOP("tunedex::CodePageBox", "UTF-8"),
};
static_assert(kLabels.size() == kCodePages.size());

// "Western (windows-1252)", "UTF-8"
QString RowText(const QString& label, const QString& name) {
    return label.contains(name) ? label : CodePageBox::tr("%1 (%2)").arg(label, name);
}

} // namespace

CodePageBox::CodePageBox(QWidget* parent) : QComboBox(parent) {
    Select({});
}

void CodePageBox::Select(const std::string& name) {
    clear();
    int selected = name.empty() ? 0 : -1; // the default code page is the first
    for (const CodePageName& page : kCodePages) {
        const bool named = UpperCase(page.name) == UpperCase(name);
        const std::string stored = page.name == std::string_view(kDefaultCodePage) ? "" : page.name;
        addItem(RowText(tr(page.label), ToQt(page.name)), ToQt(named ? name : stored));
        selected = named ? count() - 1 : selected;
    }
    if (selected < 0) {
        addItem(ToQt(name), ToQt(name));
        selected = count() - 1;
    }
    setCurrentIndex(selected);
}

std::string CodePageBox::Name() const {
    return FromQt(currentData().toString());
}

} // namespace tunedex
