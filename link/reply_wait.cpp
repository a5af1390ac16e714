#include "reply_wait.h"

#include <algorithm>

#include "mscomm.h"
#include "platform.h"
#include "state.h"

namespace wrenbit {
namespace {

constexpr double kReplyLimit = 1.0;  // Seconds.
constexpr double kPause = 0.020;     // Seconds. Longer than an adapter that bundles its bytes is silent.

}  // namespace

void Await_Bytes(std::size_t count) {
  WaitStart = Timer();
  while (MSComm1.InBufferCount() < count && !MSComm1.Lost()) {
    const double left = WaitStart + kReplyLimit - Timer();
    if (left < 0) return;
    ThePlatform->Await_Event(left);
  }
}

void Await_Rest(std::size_t count) {
  const double limit = Timer() + kReplyLimit;
  double heard = Timer();
  for (std::size_t seen = 0; seen < count;) {
    const double left = std::min(heard + kPause, limit) - Timer();
    if (left <= 0) return;
    ThePlatform->Await_Event(left);
    const std::size_t now = MSComm1.InBufferCount();
    if (now != seen) heard = Timer();
    seen = now;
  }
}

}  // namespace wrenbit
