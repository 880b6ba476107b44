// Between a font of the listing, a list of faces and a size from 1 to 7, and a font as the font chooser knows
// it.
#pragma once

#include <QFont>
#include <QString>

namespace tunedex {

struct ListingFont {
    QString faces; // as CSS writes them: "Tahoma, Arial, sans-serif"
    QString size;  // "1" to "7"
    bool bold = false;
    bool italic = false;
};

// What the chooser shows first.
QFont FontOf(const ListingFont& font);

// The listing's font after the user chose `chosen` in place of `font`: the family leads the list, the other
// faces stay behind it for readers who lack it, and the size is the nearest of the seven.
ListingFont WithChosenFont(const ListingFont& font, const QFont& chosen);

} // namespace tunedex
