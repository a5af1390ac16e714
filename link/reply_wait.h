// Waiting for the board. The window lives while it lasts, and no core is burnt.
#pragma once

#include <cstddef>

namespace wrenbit {

// Returns when so many bytes are waiting, when the port has gone, or when more than one second has passed.
// A reply that is there already costs no yield.
void Await_Bytes(std::size_t count);

// Await_Bytes(1): the wait behind every command that has a reply.
inline void ReplyWait() { Await_Bytes(1); }

}  // namespace wrenbit
