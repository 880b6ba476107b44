// Converts between a font of the listing (a list of faces and a size from 1 to 7) and a QFont.
#pragma once

#include <QFont>
#include <QString>

namespace tunedex {

struct ListingFont {
    QString faces; // a CSS font-family value: "Tahoma, Arial, sans-serif"
    QString size;  // "1" to "7"
    bool bold = false;
    bool italic = false;
};

// The font that the chooser starts with.
QFont FontOf(const ListingFont& font);

// `font` with the chosen family first, the other faces as fallbacks, and the nearest of the seven sizes.
ListingFont WithChosenFont(const ListingFont& font, const QFont& chosen);

} // namespace tunedex
