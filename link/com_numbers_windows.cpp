// On Windows COMn is the system's own name of a device.
#include "link/com_numbers.h"

#include <windows.h>
#include <devguid.h>
#include <setupapi.h>

#include <algorithm>
#include <string>
#include <utility>

#include "core/state/utf8_path.h"
#include "core/state/whole_file.h"
#include "core/state/wide_path.h"

namespace wrenbit {
namespace {

// Without the byte order mark that an editor puts before it, and without blanks behind it.
std::string First_Line(std::string text) {
  if (text.starts_with("\uFEFF")) text.erase(0, 3);
  text.erase(std::min(text.find_first_of("\r\n"), text.size()));
  return text.substr(0, text.find_last_not_of(" \t") + 1);
}

// Empty where the driver says none.
std::string Property(HDEVINFO devices, SP_DEVINFO_DATA& device, DWORD which) {
  wchar_t text[256] = {};
  const BOOL told = SetupDiGetDeviceRegistryPropertyW(
      devices, &device, which, nullptr, reinterpret_cast<BYTE*>(text), sizeof text - sizeof *text, nullptr);
  return told ? Utf8(text) : std::string();
}

std::wstring Port_Name(HDEVINFO devices, SP_DEVINFO_DATA& device) {
  const HKEY key = SetupDiOpenDevRegKey(devices, &device, DICS_FLAG_GLOBAL, 0, DIREG_DEV, KEY_QUERY_VALUE);
  if (key == INVALID_HANDLE_VALUE) return {};
  wchar_t name[32] = {};
  DWORD size = sizeof name - sizeof *name;
  RegGetValueW(key, nullptr, L"PortName", RRF_RT_REG_SZ, nullptr, name, &size);
  RegCloseKey(key);
  return name;
}

// Maker and name, as the device manager shows them.
void Describe(const std::wstring& name, Serial_Device& port) {
  const HDEVINFO devices = SetupDiGetClassDevsW(&GUID_DEVCLASS_PORTS, nullptr, nullptr, DIGCF_PRESENT);
  if (devices == INVALID_HANDLE_VALUE) return;
  SP_DEVINFO_DATA device{};
  device.cbSize = sizeof device;
  for (DWORD i = 0; SetupDiEnumDeviceInfo(devices, i, &device); ++i) {
    if (Port_Name(devices, device) != name) continue;
    port.Maker = Property(devices, device, SPDRP_MFG);
    port.Product = Property(devices, device, SPDRP_FRIENDLYNAME);
    break;
  }
  SetupDiDestroyDeviceInfoList(devices);
}

}  // namespace

Com_Numbers::Com_Numbers(const std::filesystem::path& config_folder, std::filesystem::path system_folder)
    : ports(config_folder / "ports"), file(config_folder / "com-numbers"), system(std::move(system_folder)) {}

std::optional<Serial_Device> Com_Numbers::Device(int number) const {
  if (number < 1 || number > kComPorts) return std::nullopt;
  const std::string name = "COM" + std::to_string(number);
  // No file can be called COM3 there, nor COM3.txt.
  if (const auto named = Read_Whole_File(Utf8_Of(ports / ("port-" + name + ".txt"))))
    return Serial_Device{.Path = First_Line(*named)};
  wchar_t ignored[1024];
  if (!QueryDosDeviceW(Wide(name).c_str(), ignored, DWORD{std::size(ignored)})) return std::nullopt;
  Serial_Device device{.Path = name};
  Describe(Wide(name), device);
  return device;
}

void Com_Numbers::Give(int, const Serial_Device&) const {}

}  // namespace wrenbit
