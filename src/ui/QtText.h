// Conversion between the program's UTF-8 texts and QString.
#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace tunedex {

// Convert UTF-8 to QString and back without loss: a byte b that is not part of valid UTF-8 (as in old file
// names) becomes the lone surrogate U+DC00 + b, so a path survives a text field.
QString ToQt(std::string_view text);
std::string FromQt(const QString& text);

// Converts for display only: invalid bytes become U+FFFD, CR LF becomes LF.
QString ToQtDisplay(std::string_view text);

} // namespace tunedex
