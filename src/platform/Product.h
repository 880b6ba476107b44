// What the product is called and where it can be reached.
#pragma once

namespace tunedex {

inline constexpr const char* kProductTitle = "Tunedex";
inline constexpr const char* kHomePage = "https://tunedex.example/";
inline constexpr const char* kEmail = "orvando@tunedex.example";

} // namespace tunedex
