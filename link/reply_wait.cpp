#include "link/reply_wait.h"

#include <algorithm>

#include "core/state/platform.h"
#include "core/state/state.h"
#include "link/mscomm.h"

namespace wrenbit {
namespace {

constexpr double kReplyLimit = 1.0;  // Seconds.

}  // namespace

void Await_Bytes(std::size_t count, double pause) {
  WaitStart = Timer();
  double limit = WaitStart + kReplyLimit;
  for (std::size_t seen = 0, now; (now = MSComm1.InBufferCount()) < count && !MSComm1.Lost(); seen = now) {
    if (now != seen) limit = std::max(limit, Timer() + pause);
    const double left = limit - Timer();
    if (left < 0) return;
    ThePlatform->Await_Event(left);
  }
}

void Await_Rest(std::size_t count, double pause) {
  const double limit = Timer() + kReplyLimit + pause;
  double heard = Timer();
  for (std::size_t seen = 0; seen < count;) {
    const double left = std::min(heard + pause, limit) - Timer();
    if (left <= 0) return;
    ThePlatform->Await_Event(left);
    const std::size_t now = MSComm1.InBufferCount();
    if (now != seen) heard = Timer();
    seen = now;
  }
}

}  // namespace wrenbit
