// What another user may do, when the tests run as root, who may do everything.
#pragma once

#include <sys/fsuid.h>
#include <unistd.h>

namespace tunedex::test {

// For as long as it lives, this thread's access to files is judged like an ordinary user's. A test folder
// must be opened to everybody for it (OpenToEverybody) before.
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
