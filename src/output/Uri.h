// Paths in URIs (RFC 3986, RFC 8089).
#pragma once

#include <string>
#include <string_view>

namespace tunedex {

// The bytes of a path as the path of a URI: all but unreserved characters (RFC 3986 section 2.3) and "/" as
// "%" and two upper-case hexadecimal digits.
std::string PercentEncoded(std::string_view path);

// The "file" URI of a path of this system. A relative path is resolved against the current folder, and stays
// relative when that cannot be read.
std::string FileUri(const std::string& path);

} // namespace tunedex
