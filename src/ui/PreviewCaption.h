// The text above the layout editor's preview.
#pragma once

#include "RichTextPage.h"
#include "Settings.h"

#include <QString>

namespace tunedex {

// What the preview shows: a layout, and the name of its theme if that is not loaded.
struct PreviewContent {
    Settings settings;
    QString theme;
};

// Says what is shown, and how it differs from what a browser shows. If the text of a table is hard to read
// because its colour is not written, names the boxes that write it. `theme` is elided by the caller.
QString PreviewCaption(const PreviewContent& content, const RichTextPage& page);

} // namespace tunedex
