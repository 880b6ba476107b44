// A page of a few sample tracks, made by the listing's own writer: what the layout editor previews.
#pragma once

#include "Application.h"
#include "EntityTable.h"

#include <string>

namespace tunedex {

// Writes the page to a file in `folder`, which must exist and end in a separator, and returns its text
// (UTF-8). All tracks are on one page, whatever `settings` says. Raises what the writers raise.
std::string WriteSamplePage(Settings settings, const Application& application, const EntityTable& entities,
                            const std::string& folder);

} // namespace tunedex
