#include "link/mscomm.h"

#include <algorithm>

#include "core/state/platform.h"

namespace wrenbit {
namespace {

// Seconds. A new device has its rights some tens of milliseconds after it has appeared.
constexpr double kRightsLimit = 0.5;
constexpr double kRightsStep = 0.02;

}  // namespace

void MSComm::Attach(Serial_Backend* port) {
  backend = port;
  if (!port) return;
  port->On_Lost = [this] {
    if (open && On_Lost) On_Lost();
  };
}

Port_Fault MSComm::Open() {
  Close();
  if (!backend) return Port_Fault::No_Such_Port;
  const unsigned turn = turns;
  const double limit = Timer() + kRightsLimit;
  Port_Fault fault;
  while ((fault = backend->Open(CommPort, RTSEnable, DTREnable)) == Port_Fault::Rights_Coming) {
    if (Timer() > limit) return Port_Fault::No_Permission;
    ThePlatform->Await_Event(kRightsStep);
    if (turn != turns) return open ? Port_Fault::None : Port_Fault::No_Permission;
  }
  open = fault == Port_Fault::None;
  byte_time = kByteTime;
  wire_free = 0;
  refused = false;
  return fault;
}

void MSComm::Close() {
  ++turns;
  if (!open) return;
  open = false;
  backend->Close();
}

std::optional<Serial_Device> MSComm::Device(int number) const {
  return backend ? backend->Device(number) : std::nullopt;
}

void MSComm::Keep_Number() {
  if (backend) backend->Keep_Number();
}

void MSComm::Clear_InBuffer() {
  if (!open) return;
  const std::size_t waiting = backend->Waiting();
  if (waiting == 0) return;
  unasked += waiting;
  backend->Drop();
}

std::vector<std::uint8_t> MSComm::Input() { return open ? backend->Take() : std::vector<std::uint8_t>(); }

bool MSComm::Output(std::span<const std::uint8_t> bytes) {
  if (!open || refused) return false;
  wire_free = std::max(wire_free, Timer()) + static_cast<double>(bytes.size()) * byte_time;
  refused = !backend->Write(bytes);
  return !refused;
}

void MSComm::Learn_Pace(std::size_t bytes, double seconds) {
  const double seen = seconds / static_cast<double>(bytes);
  if (seen < kByteTime / 2) byte_time = seen;
}

void MSComm::Await_Room(std::size_t bytes) {
  const double room = (static_cast<double>(kOutBufferSize) - static_cast<double>(bytes)) * byte_time;
  while (true) {
    const double ahead =
        wire_free - room - Timer();  // Read once: a wait must not be told a time that is over.
    if (ahead <= 0 || !open || Lost()) return;
    ThePlatform->Await_Event(ahead);
  }
}

}  // namespace wrenbit
