// Switches file access rights for tests that run as root.
#pragma once

#include <sys/fsuid.h>
#include <unistd.h>

namespace tunedex::test {

// During its lifetime, the kernel checks this thread's file access as an ordinary user's. Call
// OpenToEverybody() on the test folder first.
class OrdinaryRights {
  public:
    OrdinaryRights() {
        if (geteuid() == 0) {
            setfsuid(kNobody);
        }
    }
    OrdinaryRights(const OrdinaryRights&) = delete;
    OrdinaryRights& operator=(const OrdinaryRights&) = delete;
    ~OrdinaryRights() { setfsuid(geteuid()); }

  private:
    static constexpr unsigned kNobody = 65534;
};

} // namespace tunedex::test
