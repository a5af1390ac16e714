// Waiting for the board. The window lives while it lasts, and no core is burnt.
#pragma once

#include <cstddef>

namespace wrenbit {

inline constexpr double kPause = 0.020;  // Seconds. Longer than an adapter that bundles its bytes is silent.

// Returns when so many bytes are waiting, when the port has gone, or when more than one second has passed and
// no byte has come for `pause` seconds. A reply that is there already costs no yield.
void Await_Bytes(std::size_t count, double pause = 0);

// Await_Bytes(1): the wait behind every command that has a reply.
inline void ReplyWait() { Await_Bytes(1); }

// Waits for bytes that may still be on their way: returns when so many are waiting, or when none has come for
// `pause` seconds, one second and a pause later at the latest.
void Await_Rest(std::size_t count, double pause = kPause);

}  // namespace wrenbit
