#include "shell/controls/frm_com.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>

#include "core/state/app.h"
#include "core/state/platform.h"
#include "core/state/settings.h"
#include "core/state/state.h"
#include "link/com_ports.h"
#include "link/handshake.h"
#include "link/mscomm.h"
#include "shell/controls/frm_main.h"
#include "shell/windows/window_events.h"

namespace wrenbit {
namespace {

void Save_Line(const char* key, const CheckBox& box) { SaveSetting(key, box.Value() == 0 ? "0" : "1"); }

// The devices that the tips have named since the window was opened, by entry.
std::array<std::optional<Serial_Device>, kComPorts> Named;

// "/dev/ttyUSB0  FTDI  FT232R USB UART"
std::string Device_Text(int entry) {
  const std::optional<Serial_Device> device = MSComm1.Device(entry + 1);
  Named.at(static_cast<std::size_t>(entry)) = device;
  if (!device) return "この番号のシリアルポートはありません。";
  std::string text = device->Path;
  const auto add = [&](const std::string& name) {
    if (!name.empty()) text += (text.empty() ? "" : "  ") + name;
  };
  add(device->Maker);
  add(device->Product);
  if (device->Path.empty()) {
    add(device->Serial.empty() ? device->Place : device->Serial);
    add("接続されていません。");
  }
  if (device->ReceiveTrigger > 1)
    text += "  受信を" + std::to_string(device->ReceiveTrigger) + "バイトまとめるので応答が遅れます。";
  return text;
}

// Selecting the stored port opens it, as a pick of the user's does.
void Form_Load() {
  MSComm1.Close();
  Named = {};
  frmCom.Cmb_com.Clear();
  for (int number = 1; number <= kComPorts; ++number) frmCom.Cmb_com.AddItem(std::to_string(number));
  frmCom.Cmb_com.Set_ListIndex(static_cast<int>(Get_Number_Setting(key::kComNo, 0)));
  frmCom.CheckRTS.Set_Value(Stored_RTS());
  frmCom.CheckDTR.Set_Value(Stored_DTR());
}

void Form_Unload() {
  MSComm1.Close();
  Save_Line(key::kRts, frmCom.CheckRTS);
  Save_Line(key::kDtr, frmCom.CheckDTR);
}

// The open only tries the port. The pick stays stored when it fails: the next transfer tries that port.
void Cmb_com_Click() {
  if (TransferRunning) return;  // The port is the transfer's.
  MSComm1.Close();
  SaveSetting(key::kComNo, std::to_string(frmCom.Cmb_com.ListIndex()));
  MSComm1.CommPort = frmCom.Cmb_com.ListIndex() + 1;
  const bool picked =
      frmCom.Visible();  // By the user, who may close the window while the rights are awaited.
  const Port_Fault fault = MSComm1.Open();
  if (picked && !frmCom.Visible()) return;
  // The number goes to the device that was named, not to one that was plugged in since.
  const auto& named = Named.at(static_cast<std::size_t>(frmCom.Cmb_com.ListIndex()));
  if (picked && (!named || named == MSComm1.Device(MSComm1.CommPort))) MSComm1.Keep_Number();
  if (fault != Port_Fault::None)
    MsgBox("指定した通信ポートは使用できませんでした。", Message_Icon::Critical, Message_Buttons::Ok,
           App.Title);
}

// Between transfers, the port is open while this window is up.
void Port_Gone() {
  if (TransferRunning) return;  // Its end tells.
  frmMain.sbStatusBar.Set_Panel(1, "");
  Tell_Port_Gone();
}

void Cmd_Close_Click() {
  MSComm1.Close();
  frmCom.Unload();
}

}  // namespace

void Wire_frmCom() {
  frmCom.Form_Load = Form_Load;
  frmCom.Form_Unload = Form_Unload;
  frmCom.Cmb_com.Click = Cmb_com_Click;
  frmCom.Cmb_com.Tip = Device_Text;
  frmCom.Cmd_Close.Click = Cmd_Close_Click;
  MSComm1.On_Lost = Port_Gone;
  // Unseen: the user's next look at the window opens no port then.
  Handshake_Begins = [] { frmCom.Ensure_Loaded(); };
  frmCom.CheckRTS.Click = [] {
    DoEvents();
    Save_Line(key::kRts, frmCom.CheckRTS);
  };
  frmCom.CheckDTR.Click = [] {
    DoEvents();
    Save_Line(key::kDtr, frmCom.CheckDTR);
  };
}

}  // namespace wrenbit
