// The least that a program can do to talk to a port.
#pragma once

#include <cstdint>
#include <string>

namespace bench {

// Seconds for so many round trips: one byte out, one byte back, by poll(2). Throws std::runtime_error when
// the other side falls silent.
double Bare_Round_Trips(const std::string& device, std::uint8_t command, int trips);

}  // namespace bench
