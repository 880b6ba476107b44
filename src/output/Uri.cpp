#include "Uri.h"

#include <filesystem>
#include <system_error>

namespace tunedex {

namespace {

constexpr bool IsUnreserved(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '-' ||
           c == '.' || c == '_' || c == '~';
}

} // namespace

std::string PercentEncoded(std::string_view path) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string encoded;
    encoded.reserve(path.size() + path.size() / 4);
    for (const char c : path) {
        if (IsUnreserved(c) || c == '/') {
            encoded += c;
            continue;
        }
        const auto byte = static_cast<unsigned char>(c);
        encoded += '%';
        encoded += kDigits[byte >> 4U];
        encoded += kDigits[byte & 0xFU];
    }
    return encoded;
}

std::string FileUri(const std::string& path) {
    std::error_code error;
    const std::filesystem::path absolute = std::filesystem::absolute(path, error);
    return "file://" + PercentEncoded(error ? path : absolute.string());
}

} // namespace tunedex
