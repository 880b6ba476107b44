#include "TextLines.h"

#include "ByteSource.h"
#include "Text.h"

#include <cstdint>

namespace tunedex {

std::vector<std::string> SplitTextLines(std::string_view bytes, StrayBytes strayBytes) {
    if (bytes.starts_with(kByteOrderMark)) {
        bytes.remove_prefix(kByteOrderMark.size());
    }
    std::vector<std::string> lines;
    while (!bytes.empty()) {
        const std::size_t end = bytes.find_first_of("\r\n");
        lines.push_back(DecodeFileLine(bytes.substr(0, end), strayBytes));
        if (end == std::string_view::npos) {
            break;
        }
        const bool pair = bytes[end] == '\r' && end + 1 < bytes.size() && bytes[end + 1] == '\n';
        bytes.remove_prefix(end + (pair ? 2 : 1));
    }
    return lines;
}

std::vector<std::string> ReadTextLines(const std::string& path, StrayBytes strayBytes) {
    FileByteSource file(path);
    std::string bytes;
    constexpr std::size_t kBlock = 65536;
    while (true) {
        // Reads until the end instead of trusting Size(): the file may be growing.
        const std::size_t have = bytes.size();
        bytes.resize(have + kBlock);
        const std::size_t got =
            file.Read(have, {reinterpret_cast<std::uint8_t*>(bytes.data()) + have, kBlock});
        bytes.resize(have + got);
        if (got < kBlock) {
            return SplitTextLines(bytes, strayBytes);
        }
    }
}

} // namespace tunedex
