#include "link/com_owners.h"

#include <cstdlib>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>
#include <system_error>

#include "core/state/utf8_path.h"
#include "core/state/whole_file.h"

namespace wrenbit {
namespace {

// A line a number, with tabs between: COMn, what its owner is known by, vendor:product:interface, serial
// number, place, maker, product.
constexpr const char* kFirstLine =
    "# 番号の持ち主。行を消すと番号が空く / Who owns a number. Delete a line to free it\n";
constexpr std::string_view kPrefix = "COM";
constexpr const char* kBySerial = "serial";
constexpr const char* kByPlace = "place";

std::string Line(int number, const Com_Owner& owner) {
  const Serial_Device& d = owner.Device;
  std::string line = std::string(kPrefix) + std::to_string(number);
  for (const std::string& field :
       {std::string(owner.BySerial ? kBySerial : kByPlace), d.Kind, d.Serial, d.Place, d.Maker, d.Product})
    line += '\t' + field;
  return line + '\n';
}

}  // namespace

Com_Owners Read_Com_Owners(const std::filesystem::path& file) {
  Com_Owners owners;
  std::istringstream lines(Read_Whole_File(Utf8_Of(file)).value_or(""));
  for (std::string line; std::getline(lines, line);) {
    std::istringstream fields(line);
    std::string com, known_by;
    Serial_Device device;
    for (std::string* field :
         {&com, &known_by, &device.Kind, &device.Serial, &device.Place, &device.Maker, &device.Product})
      std::getline(fields, *field, '\t');
    if (!com.starts_with(kPrefix)) continue;
    const int number = std::atoi(com.c_str() + kPrefix.size());
    if (number < 1 || number > kComPorts) continue;
    const bool whole = (known_by == kBySerial || known_by == kByPlace) && !device.Place.empty();
    owners.emplace(number, whole ? Com_Owner{known_by == kBySerial, device} : Com_Owner());
  }
  return owners;
}

void Write_Com_Owners(const std::filesystem::path& file, const Com_Owners& owners) {
  std::string text = kFirstLine;
  for (const auto& [number, owner] : owners) text += Line(number, owner);
  std::error_code ignored;
  const std::optional<std::string> before = Read_Whole_File(Utf8_Of(file));
  if (before ? *before != text : !std::filesystem::exists(file, ignored))
    Write_Whole_File(Utf8_Of(file), text);
}

}  // namespace wrenbit
