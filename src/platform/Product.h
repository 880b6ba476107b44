// Product name and contact addresses.
#pragma once

namespace tunedex {

inline constexpr const char* kProductTitle = "Tunedex";
inline constexpr const char* kHomePage = "https://tunedex.example/";
inline constexpr const char* kEmail = "orvando@tunedex.example";

} // namespace tunedex
