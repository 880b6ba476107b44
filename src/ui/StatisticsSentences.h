// What the About window says about the past runs.
#pragma once

#include "Statistics.h"

#include <QString>

namespace tunedex {

// In English the text of StatisticsText(), without line break at the end.
QString StatisticsSentences(const Statistics& statistics);

} // namespace tunedex
