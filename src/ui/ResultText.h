// What the main window says about the latest list.
#pragma once

#include "Locale.h"
#include "RunOutcome.h"

#include <QString>

namespace tunedex {

// The name of the list's file; of a list of several pages without the page number: "list.htm". For display
// only: control characters, line breaks and direction marks are "?", stray bytes U+FFFD.
QString ListName(const RunOutcome& outcome);

// The sentences about a run that has ended, one a line; empty if it did not start. `name` is the name of the
// list, perhaps elided. If classic
// readers made it, the last line says how many files have tags that `modern` reads; once `modern` is set, it
// asks for another run.
QString ResultText(const RunOutcome& outcome, const QString& name, bool modern, const Locale& locale);

// Whether modern readers, which are off, would have read some tags otherwise.
bool OffersModern(const RunOutcome& outcome, bool modern);

// A text in a line of another direction: isolated if it contains right-to-left characters,
// or the windows are laid out from right to left.
QString Isolated(const QString& text);

} // namespace tunedex
