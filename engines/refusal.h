// Transfers that cannot run, refused before the port is touched.
#pragma once

namespace wrenbit {

inline constexpr const char* kWrongSize = "デバイスのメモリサイズが正しくありません。";

// Tells why in panel 1 and sets LinkError.
void Refuse_Transfer(const char* why);

}  // namespace wrenbit
