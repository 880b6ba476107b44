// The line below the output file that says what a run will write.
#pragma once

#include "Settings.h"

#include <QFontMetrics>
#include <QString>

namespace tunedex {

// For these settings, in two lines: the file, and what is special about it. Without an output file, what the
// extensions mean. Long names are elided.
QString OutputHint(const Settings& settings, const QFontMetrics& metrics);

// The longest line of the hints without names.
QString LongestOutputHint();

} // namespace tunedex
