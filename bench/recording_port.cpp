#include "bench/recording_port.h"

#include "link/mscomm.h"
#include "shell/qt/program.h"

namespace bench {

Recording_Port::Recording_Port() : port(wrenbit::Config_Folder().toStdString()) {
  wrenbit::MSComm1.Attach(this);
}

Recording_Port::~Recording_Port() {
  wrenbit::MSComm1.Close();
  wrenbit::MSComm1.Attach(nullptr);
}

wrenbit::Port_Fault Recording_Port::Open(int number, bool rts, bool dtr) {
  conversation.clear();
  return port.Open(number, rts, dtr);
}

std::size_t Recording_Port::Waiting() { return waiting = port.Waiting(); }

std::vector<std::uint8_t> Recording_Port::Take() {
  std::vector<std::uint8_t> bytes = port.Take();
  Count(bytes.size());
  return bytes;
}

void Recording_Port::Drop() {
  Count(waiting);
  port.Drop();
}

bool Recording_Port::Write(std::span<const std::uint8_t> bytes) {
  conversation.push_back({{bytes.begin(), bytes.end()}, 0});
  return port.Write(bytes);
}

void Recording_Port::Count(std::size_t answered) {
  if (!conversation.empty()) conversation.back().Answered += answered;
}

}  // namespace bench
