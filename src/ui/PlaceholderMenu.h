// The descriptions in the Placeholders menu, in the order of kTitlePlaceholders. Translated by frmMain.
#pragma once

#include "Placeholders.h"

#include <QtGlobal>

#include <array>

namespace tunedex {

inline constexpr std::array<const char*, kTitlePlaceholders.size()> kPlaceholderMeanings = {
    QT_TRANSLATE_NOOP("tunedex::frmMain", "Current date"),
    QT_TRANSLATE_NOOP("tunedex::frmMain", "Current time"),
    QT_TRANSLATE_NOOP("tunedex::frmMain", "Number of files"),
    QT_TRANSLATE_NOOP("tunedex::frmMain", "Number of non-tagged files"),
    QT_TRANSLATE_NOOP("tunedex::frmMain", "Total size of all files"),
    QT_TRANSLATE_NOOP("tunedex::frmMain", "Total play-time of all files"),
    QT_TRANSLATE_NOOP("tunedex::frmMain", "Percent sign"),
    QT_TRANSLATE_NOOP("tunedex::frmMain", "Line break"),
};

} // namespace tunedex
