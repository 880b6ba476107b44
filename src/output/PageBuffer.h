// Collects the many short texts of a listing and passes them on in large pieces. With a sink its memory is
// bounded, however long the listing and each text of it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace tunedex {

class PageBuffer {
  public:
    // Receives the text of a full buffer. No call splits a character, if each text that is put is whole.
    using Sink = std::function<void(std::string_view)>;

    // From now on the buffer holds at most `pieceBytes` bytes and passes them to `sink` when it is full. An
    // exception of the sink leaves the call that filled the buffer.
    void SetSink(std::size_t pieceBytes, Sink sink);
    // Passes the content to the sink, which must be set.
    void HandOver();

    void Put(std::string_view text) {
        if (text_.size() + text.size() > pieceBytes_) {
            PutInPieces(text);
            return;
        }
        text_ += text;
    }
    // Appends a number in decimal digits.
    void PutNumber(std::int64_t value);

    std::string_view View() const { return text_; }
    std::size_t Size() const { return text_.size(); }
    // Drops what was appended after the first `size` bytes. With a sink, only the latest text is certain to
    // be in the buffer still.
    void CutTo(std::size_t size) { text_.resize(size); }
    // Keeps the memory.
    void Clear() { text_.clear(); }

  private:
    void PutInPieces(std::string_view text);

    Sink sink_;
    std::size_t pieceBytes_ = std::string::npos; // without a sink: no limit
    std::string text_;
};

} // namespace tunedex
