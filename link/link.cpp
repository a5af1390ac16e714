#include "link/link.h"

#include <cstddef>
#include <initializer_list>

#include "core/state/platform.h"
#include "core/state/state.h"
#include "link/mscomm.h"
#include "link/reply_wait.h"

namespace wrenbit {
namespace {

// False, with LinkError set, when it did not go out.
bool Send(std::initializer_list<std::uint8_t> bytes) {
  MSComm1.Await_Room(bytes.size());
  TxBytes = bytes;
  MSComm1.Clear_InBuffer();
  if (MSComm1.Output(TxBytes)) return true;
  LinkError = 1;
  return false;
}

constexpr std::size_t kAny = static_cast<std::size_t>(-1);

// Sends and gives the reply's first byte. LinkError and 0 when none came, or more bytes than the operation
// allows.
std::uint8_t Ask(std::initializer_list<std::uint8_t> bytes, std::size_t at_most = kAny) {
  RxBytes = {0};
  if (!Send(bytes)) return 0;
  ReplyWait();
  const std::size_t waiting = MSComm1.InBufferCount();
  if (waiting == 0 || waiting > at_most) {
    LinkError = 1;
    return 0;
  }
  RxBytes = MSComm1.Input();
  MSComm1.Count_Unasked(RxBytes.size() - 1);
  return RxBytes.front();
}

void Write_Port(std::uint8_t port, std::uint8_t value) {
  DoEvents();
  Send({'m', 'w', port, value});
}

void Set_Dir(std::uint8_t port, std::uint8_t value) { Send({'m', 't', port, value}); }

std::uint8_t Read_Port(std::uint8_t port) {
  return Ask({'m', 'r', port}, 1);  // Two could be the late answer to an earlier command and this one's.
}

}  // namespace

void Link_SendBit1() { Send({'1'}); }
void Link_SendBit0() { Send({'2'}); }

std::int32_t Link_ReadBit() { return Ask({'3'}) == 1 ? 1 : 0; }
void Link_SendByte24(std::uint8_t data) { Ask({'9', data}); }
std::uint8_t Link_ReadByte24() { return Ask({'7'}); }
std::uint8_t Link_ReadByte93() { return Ask({'8'}); }
void Link_SendBits93(std::uint8_t count, std::uint8_t high, std::uint8_t low) {
  Ask({'0', count, high, low});
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
