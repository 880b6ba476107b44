// The sample listing of the layout editor: a few tracks, written by the HTML writers.
#pragma once

#include "Application.h"
#include "EntityTable.h"

#include <string>

namespace tunedex {

// Writes the listing to `path`, which must end in ".htm", all tracks on one page; `settings.Spanning` is
// ignored. Raises the errors of the writers.
void WriteSampleFile(Settings settings, const Application& application, const EntityTable& entities,
                     const std::string& path);

// The page that the preview shows, in UTF-8. It is written to a file in `folder`, which must exist and end in
// a separator. An HTML5 page, whose style sheet rich text does not support, is shown by an HTML 4.01 page
// with the same colours, fonts and borders. Raises the errors of the writers.
std::string WriteSamplePage(const Settings& settings, const Application& application,
                            const EntityTable& entities, const std::string& folder);

} // namespace tunedex
