#include "tests/support/test_bench.h"

#include <algorithm>

#include "core/state/app.h"
#include "shell/controls/windows.h"
#include "shell/windows/wiring.h"

namespace wrenbit {

void Reset_State() {
  ImageBuffer.clear();
  TxBytes.clear();
  RxBytes.clear();
  DeviceTable.clear();
  PortMirror = {};
  for (std::string* text : {&CatalogueVersionText, &DeviceStatusText, &ProgrammerVersionText, &HexFilePath,
                            &MainTitle, &AppFolder})
    text->clear();
  DeviceFamily = MemSize = PageSize = AddressMode = AddressBits = AccessSize = 0;
  ImageChecksum = LinkError = 0;
  ProgrammerVersion = 0;
  WaitStart = TransferStart = 0;
  TransferRunning = CloseWhenIdle = UpdatingControls = 0;
  for (Form* form : std::initializer_list<Form*>{&frmMain, &frmCom, &frmAbout, &frmSplash}) form->Reset_All();
  frmMain.dlgCommonDialog = {};
}

Test_Bench::Test_Bench() {
  ThePlatform = this;
  TheSettings = this;
  MSComm1.Attach(this);
  App = {};
  Reset_State();
  Wire_Windows();
}

Test_Bench::~Test_Bench() {
  MSComm1.Close();
  MSComm1.Attach(nullptr);
  ThePlatform = nullptr;
  TheSettings = nullptr;
}

void Test_Bench::Forget_Traffic() {
  Sent.clear();
  Commands.clear();
  Received = Waits = SilentSeconds = 0;
  LongestGap = 0;
}

void Test_Bench::Await_Event(double seconds) {
  ++Waits;
  EXPECT_GE(seconds, 0) << "the platform waits for ever";
  const auto next =
      std::find_if(arriving.begin(), arriving.end(), [&](const Arrival& a) { return a.At > now; });
  const double limit = now + std::max(seconds, 1e-6);
  now = next == arriving.end() ? limit : std::min(limit, next->At);
  DoEvents();
}

bool Test_Bench::MsgBox(const std::string& text, Message_Icon icon, Message_Buttons,
                        const std::string& title) {
  BoxIcon = icon;
  Boxes.push_back(title + " | " + text);
  return BoxAnswer;
}

Port_Fault Test_Bench::Open(int number, bool rts, bool dtr) {
  if (Refusal != Port_Fault::None) return Refusal;
  Opened.push_back("COM" + std::to_string(number) + (rts ? " RTS" : "") + (dtr ? " DTR" : ""));
  arriving.clear();
  open = true;
  gap_from = now;
  return Port_Fault::None;
}

void Test_Bench::Close() {
  End_Gap();
  open = false;
}

void Test_Bench::End_Gap() {
  const double gap = now - gap_from;
  LongestGap = std::max(LongestGap, gap);
  if (gap >= 1) ++SilentSeconds;
  gap_from = now;
}

std::optional<Serial_Device> Test_Bench::Device(int number) {
  const auto found = Devices.find(number);
  return found == Devices.end() ? std::nullopt : std::optional(found->second);
}

std::size_t Test_Bench::Waiting() {
  if (Lost()) return 0;
  return static_cast<std::size_t>(
      std::count_if(arriving.begin(), arriving.end(), [&](const Arrival& a) { return a.At <= now; }));
}

Bytes Test_Bench::Take() {
  Bytes taken;
  while (Waiting() > 0 && arriving.front().At <= now) {
    taken.push_back(arriving.front().Byte);
    arriving.pop_front();
  }
  Received += taken.size();
  return taken;
}

bool Test_Bench::Write(std::span<const std::uint8_t> bytes) {
  End_Gap();
  Commands.emplace_back(bytes.begin(), bytes.end());
  if (Lost()) return false;  // A port that goes at these bytes has taken them.
  const bool taken = !Takes || Takes(Commands.size());
  if (!taken) bytes = bytes.first(std::min(Partly, bytes.size() - 1));
  for (const std::uint8_t byte : bytes) {
    Sent.push_back(byte);
    out_free = std::max(out_free, now) + ByteTime;
    if (!Board) continue;
    const board::Answer answer = Board->Receive(byte);
    for (const std::uint8_t said : answer.Bytes) {
      back_free = std::max(back_free, out_free + answer.Late) + ByteTime;
      arriving.push_back({back_free, said});
    }
  }
  return taken;
}

board::Answer Scripted_Board::Receive(std::uint8_t) {
  ++received;
  if (Replies.empty() || received < Replies.front().After) return {};
  received = 0;
  const Reply reply = Replies.front();
  Replies.pop_front();
  return {reply.Says, reply.Late};
}

}  // namespace wrenbit
