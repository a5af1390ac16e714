#include "core/start.h"

#include <cstddef>
#include <filesystem>
#include <string>
#include <system_error>
#include <vector>

#include "core/catalogue.h"
#include "core/state/app.h"
#include "core/state/platform.h"
#include "core/state/state.h"
#include "core/state/utf8_path.h"
#include "core/state/whole_file.h"
#include "editor/cell_selection.h"
#include "shell/controls/windows.h"

namespace wrenbit {
namespace {

constexpr const char* kMessageTitle = "ＷＲＥＮＢＩＴプログラマー メッセージ";
constexpr const char* kStartGivenUp = "\r\nＷＲＥＮＢＩＴプログラマーの起動を中止しました。";
constexpr std::size_t kProblemsTold = 15;  // More would not fit a small screen.

// Makes the program's folder the current one. Gives it with a closing separator.
std::string Get_AppFolder() {
  const std::filesystem::path folder = Path_Of(App.Path);
  std::error_code ignored;
  std::filesystem::current_path(folder, ignored);
  return Utf8_Of(folder / "");
}

void Set_AboutCaptions() {
  frmAbout.Ensure_Loaded();
  frmAbout.lblVersion.Set_Caption("Ver " + App_Version());
  frmAbout.lblTitle.Set_Caption(App_Title_Upper());
  frmAbout.lblDescription.Set_Caption(App.FileDescription);
  frmAbout.lblDisclaimer.Set_Caption(App.Comments);
}

bool Give_Up(const std::string& why) {
  MsgBox(why + kStartGivenUp, Message_Icon::Critical, Message_Buttons::Ok, kMessageTitle);
  return false;
}

void Tell_Problems(const std::vector<std::string>& problems) {
  if (problems.empty()) return;
  std::string text = AppFolder + kCatalogueName + "に問題があります。\r\n";
  for (std::size_t i = 0; i < problems.size() && i < kProblemsTold; ++i) text += "\r\n" + problems[i];
  if (problems.size() > kProblemsTold)
    text += "\r\nほか" + std::to_string(problems.size() - kProblemsTold) + "件";
  MsgBox(text, Message_Icon::Warning, Message_Buttons::Ok, kMessageTitle);
}

}  // namespace

bool Main() {
  frmSplash.Show();
  if (App.PrevInstance) return false;
  Set_AboutCaptions();
  AppFolder = Get_AppFolder();
  DoEvents();
  frmAbout.lblDisclaimer.Set_Caption(std::string("ｻﾎﾟｰﾄﾍﾟｰｼﾞ : ") + kSupportPage);
  if (!File_Exists(AppFolder + kCatalogueName))
    return Give_Up(AppFolder + "内に wrenbit.iniファイルがありませんので         ");
  std::vector<std::string> problems;
  if (!Load_Catalogue(problems))
    return Give_Up(AppFolder + "内の wrenbit.iniファイルにデバイスの行がありませんので         ");
  Tell_Problems(problems);
  DoEvents();
  MainTitle = "Wrenbit Programmer " + frmAbout.lblVersion.Caption() + "  ";
  frmMain.Set_Caption(MainTitle);
  frmMain.Show();
  MSFGrid1_Click();
  frmSplash.Hide();
  DoEvents();
  return true;
}

}  // namespace wrenbit
