// The number of the RunTimeError that a call raises.
#pragma once

#include "RunTimeError.h"

namespace tunedex::test {

// 0 if it raises none.
template <typename Call> int RaisedBy(Call&& call) {
    try {
        call();
    } catch (const RunTimeError& error) {
        return error.Number();
    }
    return 0;
}

} // namespace tunedex::test
