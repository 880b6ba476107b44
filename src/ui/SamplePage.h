// The page that the layout editor previews: a few sample tracks, written by the HTML writer.
#pragma once

#include "Application.h"
#include "EntityTable.h"

#include <string>

namespace tunedex {

// Writes the page to a file in `folder`, which must exist and end in a separator, and returns its text in
// UTF-8. All tracks are on one page; `settings.Spanning` is ignored. Raises the errors of the writers.
std::string WriteSamplePage(Settings settings, const Application& application, const EntityTable& entities,
                            const std::string& folder);

} // namespace tunedex
