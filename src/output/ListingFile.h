// A listing file being written. Its text passes through a PageBuffer of bounded size.
#pragma once

#include "OutputList.h"
#include "PageBuffer.h"
#include "RunMonitor.h"
#include "TextFile.h"

#include <string>

namespace tunedex {

struct ListingTarget {
    std::string path;
    int stream = kNoStream; // the descriptor of an open stream to write to instead; it stays open
};

class ListingFile {
  public:
    // From now on what is put into `text` goes to the file, a full buffer at a time. `text` and `monitor`
    // must outlive this. Raises errors as TextFile does.
    ListingFile(PageBuffer& text, const ListingTarget& target, TextEncoding encoding, RunMonitor& monitor,
                CleanedFolders* cleaned = nullptr);

    // Writes the rest of the buffer and closes the file. Returns false when an abort ended a wait for the
    // reader of a stream, or that reader has gone; the file is then incomplete.
    bool Close();

  private:
    PageBuffer& text_;
    TextFile file_;
};

} // namespace tunedex
