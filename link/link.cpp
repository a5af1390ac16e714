#include "link.h"

#include <initializer_list>

#include "mscomm.h"
#include "platform.h"
#include "reply_wait.h"
#include "state.h"

namespace wrenbit {
namespace {

void Send(std::initializer_list<std::uint8_t> bytes) {
  MSComm1.Await_Room(bytes.size());
  TxBytes = bytes;
  MSComm1.Clear_InBuffer();
  MSComm1.Output(TxBytes);
}

// The reply's first byte. LinkError and 0 when none came, or more bytes than the operation allows.
std::uint8_t Take_Reply(std::size_t at_most) {
  ReplyWait();
  RxBytes = {0};
  const std::size_t waiting = MSComm1.InBufferCount();
  if (waiting == 0 || waiting > at_most) {
    LinkError = 1;
    return 0;
  }
  RxBytes = MSComm1.Input();
  return RxBytes.front();
}

constexpr std::size_t kAny = static_cast<std::size_t>(-1);

void Write_Port(std::uint8_t port, std::uint8_t value) {
  DoEvents();
  Send({'m', 'w', port, value});
}

void Set_Dir(std::uint8_t port, std::uint8_t value) { Send({'m', 't', port, value}); }

std::uint8_t Read_Port(std::uint8_t port) {
  Send({'m', 'r', port});
  return Take_Reply(1);  // Two could be the late answer to an earlier command and this one's.
}

}  // namespace

void Link_SendBit1() { Send({'1'}); }
void Link_SendBit0() { Send({'2'}); }

std::int32_t Link_ReadBit() {
  Send({'3'});
  return Take_Reply(kAny) == 1 ? 1 : 0;
}

void Link_SendByte24(std::uint8_t data) {
  Send({'9', data});
  Take_Reply(kAny);
}

std::uint8_t Link_ReadByte24() {
  Send({'7'});
  return Take_Reply(kAny);
}

std::uint8_t Link_ReadByte93() {
  Send({'8'});
  return Take_Reply(kAny);
}

void Link_SendBits93(std::uint8_t count, std::uint8_t high, std::uint8_t low) {
  Send({'0', count, high, low});
  Take_Reply(kAny);
}

void Link_WritePortA(std::uint8_t value) { Write_Port('a', value); }
void Link_WritePortB(std::uint8_t value) { Write_Port('b', value); }
void Link_WritePortC(std::uint8_t value) { Write_Port('c', value); }

void Link_SetDirA(std::uint8_t value) { Set_Dir('a', value); }
void Link_SetDirB(std::uint8_t value) { Set_Dir('b', value); }
void Link_SetDirC(std::uint8_t value) { Set_Dir('c', value); }

std::uint8_t Link_ReadPortA() { return Read_Port('a'); }
std::uint8_t Link_ReadPortB() { return Read_Port('b'); }
std::uint8_t Link_ReadPortC() { return Read_Port('c'); }

}  // namespace wrenbit
