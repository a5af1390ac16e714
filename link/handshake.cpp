#include "link/handshake.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "core/state/code_page_932.h"
#include "core/state/number_text.h"
#include "core/state/platform.h"
#include "core/state/settings.h"
#include "core/state/state.h"
#include "link/accelerators.h"
#include "link/com_ports.h"
#include "link/failure.h"
#include "link/identity.h"
#include "link/mscomm.h"
#include "shell/controls/frm_main.h"

namespace wrenbit {
namespace {

constexpr const char* kLimits256 =
    "パフォーマンスの関係で、アクセスサイズを[AllRead]=２５６バイト,[AllWrite]=２５６バイトに制限しています。"
    "[ByteRead],[ByteWrite]は制限がありません。";
constexpr const char* kLimits4096 =
    "パフォーマンスの関係で、アクセスサイズを[AllRead]=４０９６バイト,[AllWrite]="
    "４０９６バイトに制限しています。"
    "[ByteRead],[ByteWrite]は制限がありません。";

std::string Reason(Port_Fault fault) {
  switch (fault) {
    case Port_Fault::None:
    case Port_Fault::Rights_Coming:
      break;
    case Port_Fault::No_Such_Port:
      return "ポートがありません。";
    case Port_Fault::No_Permission: {
      const std::string right = MSComm1.Missing_Right();
      return "使用権限なし" + (right.empty() ? "" : "(" + right + ")");
    }
    case Port_Fault::In_Use:
      return "ポートは使用中です。";
    case Port_Fault::Gone:
      return "ポートが切断されました。";
    case Port_Fault::Refused:
      return "ポートを開けません。";
  }
  return "";
}

// The number of the port as the user knows it; empty when the setting holds none.
struct Port_Choice {
  int Number = 0;
  std::string Text;
};

Port_Choice Chosen_Port() {
  const std::optional<std::int32_t> index = Whole_Number(GetSetting(key::kComNo, "0"));
  if (!index || *index < 0 || *index >= kComPorts) return {};
  return {*index + 1, std::to_string(*index + 1)};
}

void Show_No_Board(const std::string& port) {
  frmMain.sbStatusBar.Set_Panel(2, "COM" + port + " : ライター未接続");
}

// No board that is known: `why` goes behind the words that say so.
void Fail_Without_Board(const Port_Choice& port, const std::string& why) {
  Show_No_Board(port.Text);
  Fail("プログラマ接続確認エラー。" + why);
}

void Fail_Unanswered(const Port_Choice& port, Port_Fault fault) {
  Fail_Without_Board(port, "【" + port.Text + "】" + Reason(fault));
}

Port_Fault Open_Chosen(const Port_Choice& port) {
  MSComm1.Close();
  if (port.Number == 0) return Port_Fault::No_Such_Port;
  MSComm1.CommPort = port.Number;
  MSComm1.RTSEnable = Stored_RTS();
  MSComm1.DTREnable = Stored_DTR();
  return MSComm1.Open();
}

const char* Limits_Text() {
  if (ProgrammerVersion == 0) return "";
  return Has_Accelerators() ? kLimits4096 : kLimits256;
}

// Board and program share the code page. What cannot be shown is the dot.
std::string Shown(std::string_view bytes) {
  std::string shown;
  for (const char c : Utf8_From_Cp932(bytes))
    if (static_cast<unsigned char>(c) < 0x20 || c == 0x7F)
      shown += kCp932Dot;
    else
      shown += c;
  return shown;
}

}  // namespace

void Read_Version() {
  LinkError = 0;
  if (Handshake_Begins) Handshake_Begins();
  const Port_Choice port = Chosen_Port();
  if (const Port_Fault fault = Open_Chosen(port); fault != Port_Fault::None)
    return Fail_Unanswered(port, fault);
  const std::optional<std::string> identity = Ask_Identity();
  if (!identity) return Fail_Unanswered(port, MSComm1.Lost() ? Port_Fault::Gone : Port_Fault::None);
  if (!identity->starts_with(kIdentityWord))
    return Fail_Without_Board(port, "");  // An unknown board is not driven.

  MSComm1.Keep_Number();
  ProgrammerVersionText = Shown(*identity);
  frmMain.sbStatusBar.Set_Panel(2, "COM" + port.Text + " : " + ProgrammerVersionText);
  // No number counts as 0: port commands work with every board.
  ProgrammerVersion = static_cast<float>(Decimal_Number(identity->substr(kVersionAt)).value_or(0));
  frmMain.Lbl_memo.Set_Caption(Limits_Text());
}

void Tell_Port_Gone() {
  const std::string gone = Reason(Port_Fault::Gone);
  const std::string& told = frmMain.sbStatusBar.Panel(1);
  if (!told.ends_with(gone)) frmMain.sbStatusBar.Set_Panel(1, told + (told.empty() ? "" : " ") + gone);
  Show_No_Board(std::to_string(MSComm1.CommPort));
}

}  // namespace wrenbit
