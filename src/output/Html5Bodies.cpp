#include "Html5Bodies.h"

#include <algorithm>
#include <string_view>

namespace tunedex {

namespace {

constexpr std::size_t kMostDrawnWhole = 3000; // tracks
constexpr std::string_view kVariousArtists = "Various artists";

class Albums {
  public:
    explicit Albums(const Listing& listing) : listing_(listing) {}

    // The last track of the album of `first`.
    std::size_t End(std::size_t first, std::size_t last) const {
        std::size_t end = first;
        while (end < last && SameAlbum(end, end + 1)) {
            ++end;
        }
        return end;
    }

    Html5Heading Heading(std::size_t first, std::size_t last) const {
        Html5Heading heading;
        heading.artist = ArtistOf(first, last);
        heading.album = Row(first).Album;
        heading.tracks = last - first + 1;
        for (std::size_t position = first; position <= last; ++position) {
            // The seconds of a track without a duration mean nothing.
            heading.seconds += Row(position).Duration.Empty() ? 0 : Row(position).Seconds;
        }
        return heading;
    }

    // Classic listings show the path as the artist of a file without a tag.
    std::string_view TaggedArtist(std::size_t position) const {
        const TrackRow& row = Row(position);
        return row.Artist.View() == row.FullPath.View() ? std::string_view() : row.Artist.View();
    }

  private:
    const TrackRow& Row(std::size_t position) const { return listing_.tracks.At(position); }
    std::string_view AlbumArtist(std::size_t position) const {
        return listing_.tracks.ExtrasAt(position).AlbumArtist;
    }
    std::string_view Folder(std::size_t position) const {
        return FolderPathOf(Row(position).FullPath, listing_.pathStyle);
    }

    bool SameAlbum(std::size_t one, std::size_t next) const {
        const std::string_view album = Row(one).Album;
        if (album != Row(next).Album.View() || AlbumArtist(one) != AlbumArtist(next)) {
            return false;
        }
        return !AlbumArtist(one).empty() || TaggedArtist(one) == TaggedArtist(next) ||
               (!album.empty() && Folder(one) == Folder(next));
    }

    std::string ArtistOf(std::size_t first, std::size_t last) const {
        if (!AlbumArtist(first).empty()) {
            return std::string(AlbumArtist(first));
        }
        for (std::size_t position = first + 1; position <= last; ++position) {
            if (TaggedArtist(position) != TaggedArtist(first)) {
                return std::string(kVariousArtists);
            }
        }
        return std::string(TaggedArtist(first));
    }

    const Listing& listing_;
};

void AddBodies(std::vector<Html5Body>& bodies, std::size_t first, std::size_t last) {
    for (; first <= last; first += kHtml5BodyTracks) {
        bodies.push_back({.first = first, .last = std::min(first + kHtml5BodyTracks - 1, last)});
    }
}

} // namespace

bool IsLongHtml5Page(const PageFiles& files) {
    const auto [first, last] = files.TracksOf(1);
    return last + 1 - first > kMostDrawnWhole;
}

std::vector<Html5Body> DivideIntoBodies(const Listing& listing, std::size_t first, std::size_t last) {
    std::vector<Html5Body> bodies;
    if (!listing.settings.GroupByAlbum) {
        AddBodies(bodies, first, last);
        return bodies;
    }
    const Albums albums(listing);
    while (first <= last) {
        const std::size_t end = albums.End(first, last);
        const std::size_t body = bodies.size();
        AddBodies(bodies, first, end);
        bodies[body].hasHeading = true;
        bodies[body].heading = albums.Heading(first, end);
        first = end + 1;
    }
    return bodies;
}

bool HeadingsNameEveryArtist(const Listing& listing, const std::vector<Html5Body>& bodies) {
    const Albums albums(listing);
    std::string_view artist;
    for (const Html5Body& body : bodies) {
        artist = body.hasHeading ? std::string_view(body.heading.artist) : artist;
        for (std::size_t position = body.first; position <= body.last; ++position) {
            // A file without a tag shows its path there, which no heading names.
            if (listing.tracks.At(position).Artist.View() != artist) {
                return false;
            }
        }
    }
    return true;
}

} // namespace tunedex
