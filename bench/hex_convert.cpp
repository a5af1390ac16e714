// hex-convert IN OUT [SIZE]: between Intel HEX and binary, with what the program loads and saves by. SIZE in
// bytes stands for a chip that is loaded from Intel HEX; without it a binary file is saved as Intel HEX.
#include <exception>
#include <iostream>
#include <stdexcept>
#include <string>

#include "core/state/state.h"
#include "core/state/whole_file.h"
#include "image/intel_hex.h"

int main(int argc, char** argv) try {
  if (argc < 3) return 2;
  const auto in = wrenbit::Read_Whole_File(argv[1]);
  if (!in) return 1;
  std::string out;
  if (argc > 3) {
    wrenbit::ImageBuffer.assign(std::stoul(argv[3]), 0xFF);
    wrenbit::Intel_Hex_Load(*in);
    out.assign(wrenbit::ImageBuffer.begin(), wrenbit::ImageBuffer.end());
  } else {
    if (in->size() % 16 != 0) throw std::runtime_error("the program's images consist of rows of 16 bytes");
    wrenbit::ImageBuffer.assign(in->begin(), in->end());
    out = wrenbit::Intel_Hex_Text();
  }
  return wrenbit::Write_Whole_File(argv[2], out) ? 1 : 0;
} catch (const std::exception& error) {
  std::cerr << error.what() << '\n';
  return 1;
}
