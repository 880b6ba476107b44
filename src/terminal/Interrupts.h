// Signals that abort a run in the terminal, and waits that they interrupt.
#pragma once

#include <chrono>

namespace tunedex {

// Makes SIGINT, SIGTERM and SIGHUP abort the run like the Abort button; a second signal of the same kind ends
// the process. Signals that are ignored (by nohup or a shell's `&`) stay ignored.
void CatchInterrupts();

// Whether one of the signals has arrived.
bool Interrupted();

// The waits return when the descriptor can be read or written without blocking, at end of file, on an error
// (which the next read or write reports), or when a signal arrives in any thread.

// Returns false once a signal has arrived.
bool WaitForInput(int descriptor);
// Once a signal has arrived, returns at once whether the descriptor can be written without blocking.
bool WaitForOutput(int descriptor);
// Waits for the duration. Returns false once a signal has arrived.
bool PauseUnlessInterrupted(std::chrono::milliseconds duration);

} // namespace tunedex
