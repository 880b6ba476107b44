// How the tracks of an HTML5 page are divided into table bodies.
#pragma once

#include "OutputList.h"
#include "PageFiles.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace tunedex {

// The heading of an album.
struct Html5Heading {
    std::string artist; // empty if the tracks have none
    std::string album;
    std::size_t tracks = 0;
    std::int64_t seconds = 0;
};

struct Html5Body {
    std::size_t first; // positions of tracks, from 1
    std::size_t last;
    bool hasHeading = false;
    Html5Heading heading = {};
};

inline std::size_t Html5BodyRows(const Html5Body& body) {
    return body.last - body.first + (body.hasHeading ? 2 : 1);
}

inline constexpr std::size_t kHtml5BodyTracks = 200;

// Whether browsers should lay out and draw the bodies of a page's table only where they are visible. Shorter
// pages are drawn whole, because what is not drawn is not in the tree for screen readers either.
bool IsLongHtml5Page(const PageFiles& files);

// The bodies of the tracks from `first` to `last`: as many tracks each as above or, if the settings group by
// album, a body with a heading for each album; albums with more tracks continue in bodies without. Tracks
// belong to one album if they follow each other, have the same album and the same album artist or, without
// one, the same artist or folder.
std::vector<Html5Body> DivideIntoBodies(const Listing& listing, std::size_t first, std::size_t last);

// Whether every track of the listing has the artist of its heading.
bool HeadingsNameEveryArtist(const Listing& listing, const std::vector<Html5Body>& bodies);

} // namespace tunedex
