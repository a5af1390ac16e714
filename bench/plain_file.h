// Files as a program reads and writes them that cares for nothing. Throw std::runtime_error when it fails.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace bench {

std::string Plain_Read(const std::string& path);
std::vector<std::uint8_t> Plain_Bytes(const std::string& path);

enum class Durable { No, Yes };
// Over what is there. Durable: returns when it is on the disk.
void Plain_Write(const std::string& path, std::string_view text, Durable durable);

}  // namespace bench
