// The paths that the user has used last, kept in the registry.
#pragma once

#include "Registry.h"

#include <string>
#include <string_view>
#include <vector>

namespace tunedex {

inline constexpr std::string_view kRecentFoldersValue = "RecentFolders";
inline constexpr std::string_view kRecentOutputsValue = "RecentOutputFiles";

class RecentPaths {
  public:
    static constexpr std::size_t kMost = 10;

    RecentPaths(Registry& registry, std::string_view valueName) : registry_(registry), value_(valueName) {}

    // The latest first.
    std::vector<std::string> Paths() const;
    // Puts a path first; forgets the oldest one if there are more than kMost. Ignores an empty path.
    void Add(const std::string& path);
    void Clear();

  private:
    void Store(const std::vector<std::string>& paths);

    Registry& registry_;
    std::string_view value_;
};

} // namespace tunedex
