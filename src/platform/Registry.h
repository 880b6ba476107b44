// The small persistent key-value store that outlives the program's folder: where the program is, which tips
// to show.
#pragma once

#include <string>
#include <string_view>

namespace tunedex {

class Registry {
  public:
    Registry() = default;
    Registry(const Registry&) = delete;
    Registry& operator=(const Registry&) = delete;
    virtual ~Registry() = default;

    // The value's text (UTF-8), or the empty text where there is none.
    virtual std::string Read(std::string_view name) const = 0;
    virtual void Write(std::string_view name, std::string_view text) = 0;
};

} // namespace tunedex
