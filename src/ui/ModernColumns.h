// The columns that are on offer only while modern tags and lists are switched on.
#pragma once

#include "Settings.h"

#include <string>
#include <string_view>

namespace tunedex {

// Appends those that neither list names to the hidden columns.
void OfferModernColumns(Settings& settings);

// Removes them from both lists: a classic listing would give each a header without cells.
void RemoveModernColumns(Settings& settings);

} // namespace tunedex
