// Three-wire EEPROMs with pin ORG grounded. Sources: Atmel's data sheets of AT93C46, AT93C66 and AT93C86.
// Their write cycle takes 3 ms as a rule, and 10 ms at most.
#include "board/three_wire_parts.h"

namespace board {

namespace {

constexpr double kMs = 1e-3;

// clang-format off
constexpr Three_Wire_Part kThreeWireParts[] = {
    // name     bytes  address  write
    //                    bits  cycle
    {"AT93C46",   128,       7, 3 * kMs},
    {"AT93C66",   512,       9, 3 * kMs},
    {"AT93C86",  2048,      11, 3 * kMs},
};
// clang-format on

}  // namespace

std::span<const Three_Wire_Part> Three_Wire_Parts() { return kThreeWireParts; }

}  // namespace board
