#include "Fakes.h"

#include "Startup.h"

namespace tunedex::test {

void FakeUserInterface::TakeControls(Settings& settings) {
    TakeMainFields(settings, fields);
    TakeLayoutControls(settings);
}

} // namespace tunedex::test
