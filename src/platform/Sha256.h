// The SHA-256 digest of a text (FIPS 180-4) and the base 64 encoding (RFC 4648 section 4).
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace tunedex {

using Sha256Digest = std::array<std::uint8_t, 32>;

Sha256Digest Sha256(std::string_view bytes);

// With padding.
std::string Base64(std::string_view bytes);

// The digest in base 64, as a content security policy names it.
std::string Sha256Base64(std::string_view bytes);

} // namespace tunedex
