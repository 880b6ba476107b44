// The registry as Qt keeps settings: on Linux the file "Corvale Works/Tunedex.conf" in the user's
// configuration folder, with the system-wide file of that name behind it; on Windows the registry itself.
#pragma once

#include "Registry.h"

#include <QSettings>

namespace tunedex {

class QSettingsRegistry final : public Registry {
  public:
    QSettingsRegistry();

    std::string Read(std::string_view name) const override;
    // Stored at once; a store that cannot be written keeps the value for this run only.
    void Write(std::string_view name, std::string_view text) override;

  private:
    QSettings settings_;
};

} // namespace tunedex
