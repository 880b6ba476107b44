#include "ListingFile.h"

#include <string_view>

namespace tunedex {

namespace {

StopTest AbortTest(RunMonitor& monitor) {
    return [&monitor] { return monitor.AbortRequested(); };
}

} // namespace

ListingFile::ListingFile(PageBuffer& text, const std::string& path, TextEncoding encoding,
                         RunMonitor& monitor, CleanedFolders* cleaned)
    : text_(text), file_(path, encoding, AbortTest(monitor), cleaned) {
    text_.SetSink(TextFile::kPieceBytes, [this](std::string_view piece) { file_.Write(piece); });
}

bool ListingFile::Close() {
    text_.HandOver();
    file_.Close();
    return !file_.Stopped();
}

} // namespace tunedex
