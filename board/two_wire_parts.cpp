// Two-wire EEPROMs. The control byte, behind every start condition:
//
//                   7 6 5 4   3    2    1   0
//   24C00           1 0 1 0   x    x    x  R/W    x: don't care
//   24C01, 24C02    1 0 1 0   A2   A1   A0 R/W    A: compared with the chip's select pins,
//   24C04           1 0 1 0   A2   A1   a8 R/W       which the socket grounds
//   24C08           1 0 1 0   A2   a9   a8 R/W    a: an address bit
//   24C16           1 0 1 0   a10  a9   a8 R/W
//   24C32 to 24C512 1 0 1 0   A2   A1   A0 R/W
//   24C1024         1 0 1 0   0    A1  a16 R/W
//   24LC1026        1 0 1 0   A2   A1  a16 R/W    a sequential read goes round in each 64 KiB
//
// Parts without a maker's prefix stand for all makers: the smallest page on current parts of the number,
// Microchip's write time. The 24C1024 has the 24LC1026's page, the smallest at its size, and reads on across
// all its cells as the others do. Sources: data sheets of Atmel (AT24Cxx, AT24C1024), Microchip (24xx00,
// 24LC01B to 24LC512, 24LC1026), ST (M24Cxx), onsemi (CAT24Cxx) and Rohm (BR24Txx).
#include "board/two_wire_parts.h"

namespace board {

namespace {

constexpr double kMs = 1e-3;

// clang-format off
constexpr Two_Wire_Part kTwoWireParts[] = {
    // name        bytes  page  address  carries   wants  write    read
    //                          bytes    address   low    cycle    run
    {"24C00",         16,    1, 1,       0b0000, 0b0000,  4 * kMs},
    {"24C01",        128,    8, 1,       0b0000, 0b1110,  5 * kMs},
    {"24C02",        256,    8, 1,       0b0000, 0b1110,  5 * kMs},
    {"24C04",        512,    8, 1,       0b0010, 0b1100,  5 * kMs},
    {"24C08",       1024,   16, 1,       0b0110, 0b1000,  5 * kMs},
    {"24C16",       2048,   16, 1,       0b1110, 0b0000,  5 * kMs},
    {"24C32",       4096,   32, 2,       0b0000, 0b1110,  5 * kMs},
    {"24C64",       8192,   32, 2,       0b0000, 0b1110,  5 * kMs},
    {"24C128",     16384,   64, 2,       0b0000, 0b1110,  5 * kMs},
    {"24C256",     32768,   64, 2,       0b0000, 0b1110,  5 * kMs},
    {"24C512",     65536,  128, 2,       0b0000, 0b1110,  5 * kMs},
    {"24C1024",   131072,  128, 2,       0b0010, 0b1100,  5 * kMs},
    {"AT24C01A",     128,    8, 1,       0b0000, 0b1110, 10 * kMs},
    {"AT24C02",      256,    8, 1,       0b0000, 0b1110, 10 * kMs},
    {"AT24C02A",     256,    8, 1,       0b0000, 0b1110,  5 * kMs},
    {"AT24C04",      512,   16, 1,       0b0010, 0b1100, 10 * kMs},
    {"AT24C04A",     512,   16, 1,       0b0010, 0b1100,  5 * kMs},
    {"AT24C08",     1024,   16, 1,       0b0110, 0b1000, 10 * kMs},
    {"AT24C08A",    1024,   16, 1,       0b0110, 0b1000,  5 * kMs},
    {"AT24C16",     2048,   16, 1,       0b1110, 0b0000, 10 * kMs},
    {"AT24C16A",    2048,   16, 1,       0b1110, 0b0000,  5 * kMs},
    {"AT24C32",     4096,   32, 2,       0b0000, 0b1110, 10 * kMs},
    {"AT24C32A",    4096,   32, 2,       0b0000, 0b1110,  5 * kMs},
    {"AT24C64",     8192,   32, 2,       0b0000, 0b1110, 10 * kMs},
    {"AT24C64A",    8192,   32, 2,       0b0000, 0b1110,  5 * kMs},
    {"AT24C128",   16384,   64, 2,       0b0000, 0b1110, 10 * kMs},
    {"AT24C256",   32768,   64, 2,       0b0000, 0b1110, 10 * kMs},
    {"AT24C512",   65536,  128, 2,       0b0000, 0b1110, 10 * kMs},
    {"AT24C1024", 131072,  256, 2,       0b0010, 0b1100, 10 * kMs},
    {"24LC1026",  131072,  128, 2,       0b0010, 0b1100,  5 * kMs, 65536},
};
// clang-format on

}  // namespace

std::span<const Two_Wire_Part> Two_Wire_Parts() { return kTwoWireParts; }

}  // namespace board
