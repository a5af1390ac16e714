#include "engines/power_sequence.h"

#include "core/state/state.h"
#include "link/link.h"
#include "link/mscomm.h"
#include "shell/controls/frm_main.h"

namespace wrenbit {
namespace {

constexpr int kTries = 5;

// Latches first: a pin that turns into an output already has its level.
void Drive(const Power_Sequence& to) {
  Link_WritePortA(PortMirror.OutA = to.Out.A);
  Link_WritePortB(PortMirror.OutB = to.Out.B);
  Link_WritePortC(PortMirror.OutC = to.Out.C);
  Link_SetDirA(PortMirror.DirA = to.Dir.A);
  Link_SetDirB(PortMirror.DirB = to.Dir.B);
  Link_SetDirC(PortMirror.DirC = to.Dir.C);
}

}  // namespace

void Run_Power_Sequence(const Power_Sequence& to, const std::string& family) {
  // No socket stays powered because the system would not take a command.
  for (int tries = 0; tries < kTries; ++tries) {
    MSComm1.Resume();
    Drive(to);
    if (!MSComm1.Refused()) break;
  }

  const auto good = [&](std::uint8_t pins, std::uint8_t watched, std::uint8_t expected, const char* port) {
    if ((pins & watched) == expected && !LinkError) return true;
    frmMain.sbStatusBar.Set_Panel(1, family + " Power on " + port + " error");
    return false;
  };
  PortMirror.InA = Link_ReadPortA();
  if (!good(PortMirror.InA, to.Watched.A, to.Expected.A, "PortA")) return;
  PortMirror.InB = Link_ReadPortB();
  if (!good(PortMirror.InB, to.Watched.B, to.Expected.B, "PortB")) return;
  PortMirror.InC = Link_ReadPortC();
  good(PortMirror.InC, to.Watched.C, to.Expected.C, "PortC");
}

}  // namespace wrenbit
