#include "OutputForecast.h"

#include "FileLookup.h"
#include "OutputList.h"
#include "PageFiles.h"

#include <limits>

namespace tunedex {

OutputForecast ForecastOutput(const Settings& settings) {
    OutputForecast forecast;
    const std::string& given = settings.OutputFile;
    if (given.empty()) {
        return forecast;
    }
    const ListingStyle style = StyleOf(settings);
    const OutputType type = OutputTypeOf(given, style);
    forecast.file = ListingPath(type, given, style);
    forecast.appendsExtension = forecast.file != given;
    forecast.modernExtension =
        forecast.appendsExtension &&
        ListingPath(OutputTypeOf(given, ListingStyle::Modern), given, ListingStyle::Modern) == given;
    if (type == kHtmlOutput && settings.Spanning > 0) {
        const PageFiles pages(forecast.file, settings.Spanning,
                              std::numeric_limits<std::int16_t>::max() * std::size_t{2});
        forecast.firstPage = pages.PathOf(1);
        forecast.perPage = settings.Spanning;
    }
    forecast.replaces =
        FileIsThere(forecast.file) || (!forecast.firstPage.empty() && FileIsThere(forecast.firstPage));
    return forecast;
}

} // namespace tunedex
