// Product and company names and contact addresses.
#pragma once

namespace tunedex {

inline constexpr const char* kProductTitle = "Tunedex";
inline constexpr const char* kCompanyName = "Corvale Works"; // the registry's folder
inline constexpr const char* kProgramName = "tunedex";       // program file, data folder
inline constexpr const char* kHomePage = "https://tunedex.example/";
inline constexpr const char* kEmail = "orvando@tunedex.example";

} // namespace tunedex
