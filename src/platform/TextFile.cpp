#include "TextFile.h"

#include "Text.h"

#include <utility>

namespace tunedex {

namespace {

constexpr std::size_t kBufferBytes = 65536;
constexpr std::size_t kDirectBytes = 16384;

// Whether the bytes of the file are those of the text.
bool NeedsNoEncoding(TextEncoding encoding, std::string_view text) {
    switch (encoding) {
    case TextEncoding::Utf8:
        return true;
    case TextEncoding::Latin1References:
        return IsDocumentAscii(text);
    default:
        return IsAscii(text);
    }
}

} // namespace

TextFile::TextFile(const std::string& path, TextEncoding encoding, StopTest stop, CleanedFolders* cleaned)
    : encoding_(encoding), stop_(std::move(stop)), file_(path, cleaned) {}

TextFile::TextFile(UniqueFd stream, TextEncoding encoding, StopTest stop)
    : encoding_(encoding), stop_(std::move(stop)), brokenPipe_(BrokenPipe::Stops), file_(std::move(stream)) {}

void TextFile::Write(std::string_view text) {
    // Pass a large piece that needs no encoding to write() without a copy.
    if (text.size() >= kDirectBytes && NeedsNoEncoding(encoding_, text)) {
        Flush();
        Send(text);
        return;
    }
    switch (encoding_) {
    case TextEncoding::Windows1252References:
        AppendWindows1252(buffer_, text, Substitute::DecimalReference);
        break;
    case TextEncoding::Latin1References:
        AppendLatin1References(buffer_, text);
        break;
    case TextEncoding::Windows1252Questions:
        AppendWindows1252(buffer_, text, Substitute::QuestionMark);
        break;
    case TextEncoding::Utf8:
        buffer_ += text;
        break;
    case TextEncoding::FileLine:
        buffer_ += EncodeFileLine(text);
        break;
    case TextEncoding::SettingsLine:
        buffer_ += EncodeFileLine(text, StrayBytes::Escaped);
        break;
    }
    FlushIfFull();
}

void TextFile::WriteLine(std::string_view text) {
    Write(text);
    WriteRaw("\r\n");
}

void TextFile::WriteRaw(std::string_view bytes) {
    buffer_ += bytes;
    FlushIfFull();
}

void TextFile::FlushIfFull() {
    if (buffer_.size() >= kBufferBytes) {
        Flush();
    }
}

void TextFile::Flush() {
    Send(buffer_);
    buffer_.clear();
}

void TextFile::Send(std::string_view bytes) {
    stopped_ = stopped_ || !WriteWhole(file_.Descriptor(), bytes, stop_, brokenPipe_);
}

void TextFile::Close() {
    Flush();
    file_.Commit();
}

} // namespace tunedex
