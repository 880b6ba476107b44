#include "CodePageBox.h"

#include "CodePages.h"
#include "QtText.h"
#include "Text.h"

using namespace Qt::StringLiterals;

namespace tunedex {
namespace {

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
