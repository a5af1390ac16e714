#include "reply_wait.h"

#include "mscomm.h"
#include "platform.h"
#include "state.h"

namespace wrenbit {
namespace {

constexpr double kReplyLimit = 1.0;  // Seconds.

}  // namespace

void Await_Bytes(std::size_t count) {
  WaitStart = Timer();
  while (MSComm1.InBufferCount() < count && !MSComm1.Lost()) {
    const double left = WaitStart + kReplyLimit - Timer();
    if (left < 0) return;
    ThePlatform->Await_Event(left);
  }
}

}  // namespace wrenbit
