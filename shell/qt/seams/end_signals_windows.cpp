#include "shell/qt/seams/end_signals.h"

#include <windows.h>

#include <QAbstractNativeEventFilter>
#include <QCoreApplication>
#include <QObject>
#include <utility>

#include "core/state/state.h"

namespace wrenbit {
namespace {

// A log-out asks every window first, and any program may refuse. In the midst of a transfer that is us: the
// socket has its supply. The system then waits, says why, and goes on by itself when the process is gone.
class Session_End : public QObject, public QAbstractNativeEventFilter {
 public:
  Session_End(QObject* owner, std::function<void()> end) : QObject(owner), act(std::move(end)) {
    QCoreApplication::instance()->installNativeEventFilter(this);
  }

  bool nativeEventFilter(const QByteArray&, void* message, qintptr* result) override {
    const MSG& told = *static_cast<MSG*>(message);
    if (told.message == WM_QUERYENDSESSION) {
      *result = TransferRunning == 0;
      if (TransferRunning == 0) return true;
      ShutdownBlockReasonCreate(told.hwnd, L"チップとの転送を終えて、電源を切っています。");
      act();
      return true;
    }
    if (told.message != WM_ENDSESSION) return false;
    // When this returns, the process may be ended on the spot.
    if (told.wParam) act();
    *result = 0;
    return true;
  }

 private:
  const std::function<void()> act;
};

}  // namespace

void On_End_Signal(QObject* owner, std::function<void()> act) { new Session_End(owner, std::move(act)); }

}  // namespace wrenbit
