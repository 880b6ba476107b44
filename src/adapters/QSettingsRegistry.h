// The registry in QSettings: on Linux "Corvale Works/Tunedex.conf" in the user's configuration folder,
// falling back to the system-wide file of that name; on Windows the registry.
#pragma once

#include "Registry.h"

#include <QSettings>

namespace tunedex {

class QSettingsRegistry final : public Registry {
  public:
    QSettingsRegistry();

    std::string Read(std::string_view name) const override;
    // Writes through. If the store is not writable, the value lasts for this run only.
    void Write(std::string_view name, std::string_view text) override;

  private:
    QSettings settings_;
};

} // namespace tunedex
