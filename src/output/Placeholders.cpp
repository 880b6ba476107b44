#include "Placeholders.h"

#include "Numbers.h"
#include "PlayTime.h"
#include "SizeText.h"
#include "Text.h"

#include <cstdint>
#include <ctime>

namespace tunedex {

std::string PlayTimeText(double totalSeconds) {
    return HoursMinutesAndSeconds(static_cast<std::int64_t>(RoundHalfToEven(totalSeconds)));
}

void ExpandTitlePlaceholders(Listing& listing, std::string_view lineBreak) {
    const RunTotals& totals = listing.totals;
    const std::string size =
        SizeText(static_cast<std::int64_t>(totals.TotalBytes), listing.settings.SizeType, listing.locale);
    const std::string playTime = PlayTimeText(totals.TotalSeconds);
    const auto expand = [&](std::string& text, std::string_view lineBreakText) {
        // Required: the clock is read again for each text.
        const std::tm now = listing.clock.LocalTime();
        // Required: in this order, each on the result of the previous one, so "%%L" becomes a line break.
        text = ReplaceAll(text, "%D", listing.locale.ShortDate(now));
        text = ReplaceAll(text, "%T", listing.locale.ShortTime(now));
        text = ReplaceAll(text, "%C", std::to_string(listing.tracks.Count()));
        text = ReplaceAll(text, "%N", std::to_string(totals.UntaggedCount));
        text = ReplaceAll(text, "%S", size);
        text = ReplaceAll(text, "%P", playTime);
        text = ReplaceAll(text, "%%", "%");
        text = ReplaceAll(text, "%L", lineBreakText);
    };
    expand(listing.settings.WindowTitle, " - ");
    expand(listing.settings.PageTitle, lineBreak);
    expand(listing.settings.PageFooter, lineBreak);
}

} // namespace tunedex
