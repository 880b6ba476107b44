// A small persistent key-value store outside the program folder: where that folder is, which tips to show.
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

    // The value (UTF-8); empty when there is none.
    virtual std::string Read(std::string_view name) const = 0;
    virtual void Write(std::string_view name, std::string_view text) = 0;
};

} // namespace tunedex
