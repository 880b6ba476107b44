// The signals that abort a run without windows, and waits that they end.
#pragma once

#include <chrono>

namespace tunedex {

// Lets SIGINT, SIGTERM and SIGHUP abort the run as the Abort button does; a second one of the same kind ends
// the program. A signal that is ignored stays ignored: nohup and a shell's `&` start a program that way.
void CatchInterrupts();

// Whether one of the signals has arrived.
bool Interrupted();

// Wait until the descriptor can be read or written without blocking; at its end or on an error, too, which
// the next read or write then reports. A signal ends them whichever thread it is delivered to.

// Returns false once a signal has arrived.
bool WaitForInput(int descriptor);
// Once a signal has arrived, returns at once: whether the descriptor takes output now.
bool WaitForOutput(int descriptor);
// Waits that long. Returns false once a signal has arrived.
bool PauseUnlessInterrupted(std::chrono::milliseconds duration);

} // namespace tunedex
