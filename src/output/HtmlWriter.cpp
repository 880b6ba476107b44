#include "HtmlWriter.h"

#include "HTMLBits.h"
#include "ListingFile.h"
#include "PageBuffer.h"
#include "PageFiles.h"
#include "Placeholders.h"
#include "StyleSheet.h"

#include <string>
#include <string_view>

namespace tunedex {

namespace {

class HtmlPages {
  public:
    HtmlPages(Listing& listing, const PagePolicy& policy)
        : listing_(listing), policy_(policy), settings_(listing.settings),
          files_(settings_.OutputFile, settings_.Spanning, listing.tracks.Count()) {}

    bool Write() {
        ExpandTitlePlaceholders(listing_, LineBreak(settings_));
        std::string styleBlock;
        WriteStyleBlock(styleBlock, policy_.forStyleSheet(settings_), policy_);
        policy_.forMarkup(listing_);
        WriteHeadStart(headStart_, settings_);
        WriteHeadRest(headRest_, settings_, styleBlock);
        WriteTableHead(tableHead_, settings_, listing_.columns);
        WriteTableFoot(tableFoot_, settings_, listing_.columns.size());
        WriteEnd(end_, settings_);
        const TrackRowWriter rows(listing_, policy_);
        for (std::int32_t number = 1; number <= files_.Count(); ++number) {
            // Required: an abort after the last page counts too.
            if (!WritePage(number, rows) || listing_.monitor.AbortRequested()) {
                return true;
            }
        }
        return false;
    }

  private:
    // Returns false when the user aborted.
    bool WritePage(std::int32_t number, const TrackRowWriter& rows) {
        ListingFile file(page_, {files_.PathOf(number), listing_.stream}, policy_.encoding, listing_.monitor,
                         &cleaned_);
        std::string navigation;
        std::string heading;
        page_.Put(headStart_);
        // Required: the window title is not escaped.
        page_.Put(settings_.WindowTitle);
        if (files_.Count() > 1) {
            page_.Put(" - Page ");
            page_.PutNumber(number);
            page_.Put(" of ");
            page_.PutNumber(files_.Count());
            WriteNavigation(navigation, number, files_, listing_.pathStyle, policy_);
        }
        page_.Put(headRest_);
        page_.Put(navigation);
        WritePageHeading(heading, settings_, number, files_.Count());
        page_.Put(heading);
        page_.Put(tableHead_);
        const bool whole = WriteRows(number, rows);
        if (whole) {
            page_.Put(tableFoot_);
            page_.Put(navigation);
            page_.Put(end_);
        }
        const bool closed = file.Close();
        return whole && closed;
    }

    bool WriteRows(std::int32_t number, const TrackRowWriter& rows) {
        const auto [first, last] = files_.TracksOf(number);
        for (std::size_t position = first; position <= last; ++position) {
            const bool alternate = settings_.AltRows && (position - first) % 2 == 1;
            rows.WriteTrackRow(page_, alternate, position);
            if (listing_.monitor.AbortRequested()) {
                return false;
            }
        }
        return true;
    }

    Listing& listing_;
    const PagePolicy& policy_;
    Settings& settings_;
    PageFiles files_;
    // Identical on every page.
    std::string headStart_;
    std::string headRest_;
    std::string tableHead_;
    std::string tableFoot_;
    std::string end_;
    PageBuffer page_;
    CleanedFolders cleaned_;
};

} // namespace

bool WriteHtmlListing(Listing& listing, const PagePolicy& policy) {
    std::string& path = listing.settings.OutputFile;
    path = ListingPath(kHtmlOutput, path, StyleOf(listing.settings));
    return HtmlPages(listing, policy).Write();
}

} // namespace tunedex
