// Runs one target under libFuzzer; the build defines which.
#include "Fuzzing.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const tunedex::fuzz::Target& target = tunedex::fuzz::FindTarget(TUNEDEX_FUZZ_TARGET);
    target.run({data, size});
    return 0;
}
