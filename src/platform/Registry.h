// A small persistent key-value store outside the program folder: where that folder is, which tips to show.
#pragma once

#include <string>
#include <string_view>

namespace tunedex {

// The names of the values.
inline constexpr std::string_view kInstallationPathValue = "InstallationPath"; // the program folder
inline constexpr std::string_view kHelpFilePathValue = "HelpFilePath";
inline constexpr std::string_view kTipsFileValue = "TipsFile";
inline constexpr std::string_view kTipsOnStartupValue = "TipsOnStartup"; // "1" or "0"

class Registry {
  public:
    Registry() = default;
    Registry(const Registry&) = delete;
    Registry& operator=(const Registry&) = delete;
    virtual ~Registry() = default;

    // The value (UTF-8); empty when there is none.
    virtual std::string Read(std::string_view name) const = 0;
    virtual void Write(std::string_view name, std::string_view text) = 0;
};

} // namespace tunedex
