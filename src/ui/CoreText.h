// Texts of the floors below in the language of the windows. Those floors write English, as the terminal, the
// log and the files need it.
#pragma once

#include <QString>
#include <QStringList>

#include <cstdint>
#include <string_view>

namespace tunedex {

// A message, a title, a status or the description of an error, for display: as ToQtDisplay() converts it, and
// translated if it is one of those that the table in CoreText.cpp lists. In English the text as it is.
QString ShownText(std::string_view text);

// The counted status of RunMonitor: `before` + `count` + "/" + `total` + `after`.
QString ShownStatus(std::string_view before, std::int32_t count, std::int32_t total, std::string_view after);

// Every status that a run can show, with numbers of seven digits.
QStringList StatusTexts();

// The name of a column. A name that is no column's is returned as it is.
QString ShownColumn(std::string_view name);

} // namespace tunedex
