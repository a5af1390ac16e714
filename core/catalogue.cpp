#include "core/catalogue.h"

#include <cstddef>
#include <optional>
#include <utility>

#include "core/catalogue_text.h"
#include "core/state/code_page_932.h"
#include "core/state/settings.h"
#include "core/state/state.h"
#include "core/state/utf8_text.h"
#include "core/state/whole_file.h"
#include "shell/controls/windows.h"

namespace wrenbit {
namespace {

constexpr std::string_view kByteOrderMark = "\uFEFF";
constexpr std::size_t kNameWidth = 9;  // Fixed-pitch characters before the second word.

void Show_Version() {
  const std::string text = "WRENBIT.INI  " + CatalogueVersionText;
  frmAbout.Label_wrenbit_rev.Set_Caption(text);
  frmMain.Ensure_Loaded();
  frmMain.Label_wrenbitini.Set_Caption(text);
}

void List_Devices() {
  UpdatingControls = -1;
  frmMain.Combo_device.Clear();
  for (const Device_Row& row : DeviceTable) {
    const std::size_t width = Characters(row[Column_Name]);
    const std::string gap(width < kNameWidth ? kNameWidth - width : 0, ' ');
    frmMain.Combo_device.AddItem(row[Column_Name] + gap + row[Column_Name_Tail]);
  }
  const long stored = Get_Number_Setting(key::kDut, 0);
  if (!frmMain.Combo_device.Set_ListIndex(static_cast<int>(stored))) frmMain.Combo_device.Set_ListIndex(0);
  UpdatingControls = 0;
}

}  // namespace

std::string Catalogue_Text(std::string_view bytes) {
  bytes = bytes.substr(0, bytes.find('\x1A'));
  if (bytes.starts_with(kByteOrderMark)) return std::string(bytes.substr(kByteOrderMark.size()));
  return Utf8_From_Cp932(bytes);
}

bool Load_Catalogue(std::vector<std::string>& problems) {
  const std::optional<std::string> file = Read_Whole_File(AppFolder + kCatalogueName);
  if (!file) return false;
  Catalogue catalogue = Read_Catalogue(Catalogue_Text(*file));
  if (catalogue.Rows.empty()) return false;
  DeviceTable = std::move(catalogue.Rows);
  CatalogueVersionText = std::move(catalogue.Version);
  problems = std::move(catalogue.Problems);
  Show_Version();
  List_Devices();
  return true;
}

}  // namespace wrenbit
