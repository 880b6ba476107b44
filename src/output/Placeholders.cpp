#include "Placeholders.h"

#include "Numbers.h"
#include "SizeText.h"
#include "Text.h"

#include <cstdint>
#include <ctime>

namespace tunedex {

std::string PlayTimeText(double totalSeconds) {
    const auto seconds = static_cast<std::int64_t>(RoundHalfToEven(totalSeconds));
    const std::int64_t minutes = seconds / 60;
    std::string text = minutes > 59 ? std::to_string(minutes / 60) + ":" + PadNumber(minutes % 60, 2)
                                    : std::to_string(minutes);
    return text + ":" + PadNumber(seconds % 60, 2);
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
