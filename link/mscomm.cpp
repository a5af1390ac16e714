#include "mscomm.h"

namespace wrenbit {

Port_Fault MSComm::Open() {
  Close();
  const Port_Fault fault = backend ? backend->Open(CommPort, RTSEnable, DTREnable) : Port_Fault::No_Such_Port;
  open = fault == Port_Fault::None;
  return fault;
}

void MSComm::Close() {
  if (!open) return;
  open = false;
  backend->Close();
}

std::optional<Serial_Device> MSComm::Device(int number) const {
  return backend ? backend->Device(number) : std::nullopt;
}

void MSComm::Clear_InBuffer() {
  if (open) backend->Drop();
}

std::vector<std::uint8_t> MSComm::Input() { return open ? backend->Take() : std::vector<std::uint8_t>(); }

void MSComm::Output(std::span<const std::uint8_t> bytes) {
  if (open) backend->Write(bytes);
}

}  // namespace wrenbit
