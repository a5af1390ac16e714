// The main window as plain data: its controls, where each one lies, and its menus.
#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "shell/controls/common_dialog.h"
#include "shell/controls/flex_grid.h"
#include "shell/controls/form.h"
#include "shell/controls/lists_and_boxes.h"
#include "shell/controls/plain_controls.h"
#include "shell/controls/status_bar.h"

namespace wrenbit {

inline constexpr Font kFixed9{.Face = Typeface::FixedPitch, .Points = 9};
inline constexpr Font kFixed9_75{.Face = Typeface::FixedPitch, .Points = 9.75};
inline constexpr Font kFixed11_25{.Face = Typeface::FixedPitch, .Points = 11.25};
inline constexpr Font kToolRow{.Points = 8.25};

struct Frm_Main : Form {
  Frm_Main() : Form(10275, 7035) {
    Lbl_memo.Set_Visible(false);
    Combo_device.AccessibleName = "デバイス";
    CmbSize.AccessibleName = "ブロックサイズ (Byte)";
    Text_modify_hex.AccessibleName = "データ Hex";
    Text_modify_dec.AccessibleName = "データ Dec";
    Text_modify_asc.AccessibleName = "データ Ascii";
    for (std::size_t bit = 0; bit < ChkBin.size(); ++bit)
      ChkBin[bit].AccessibleName = "ビット" + std::to_string(bit);
    MSFGrid1.AccessibleName = "バッファ";
    sbStatusBar.AccessibleName = "ステータスバー";
    sbStatusBar.UsualLink = "COM1 : TOLVEX Ver.5.00";
    sbStatusBar.PanelNames = {"メッセージ", "接続", "アドレスと進み具合", "デバイス"};
    Cmd_Open.Set_ToolTipText("Intel HEX ファイルをバッファに読み込みます。");
    Cmd_SaveAs.Set_ToolTipText("バッファ全体を Intel HEX ファイルに保存します。");
    Cmd_Port.Set_ToolTipText("通信ポートを設定します。");
  }

  CommandButton Cmd_Open{*this, {135, 135, 915, 780}, "開く", kToolRow, Picture::Open};
  CommandButton Cmd_SaveAs{*this, {1035, 135, 915, 780}, "保存", kToolRow, Picture::Save};
  CommandButton Cmd_Port{*this, {1935, 135, 915, 780}, "通信ポート", kToolRow, Picture::Port};
  ComboBox Combo_device{*this, {135, 990, 2715, 345}, kFixed11_25};

  Frame Frame3{*this, {3015, 90, 2445, 1455}, "バイト アクセス"};
  Label Label4{Frame3, {90, 270, 2265, 240}, "１Byteのリードとライト"};
  CommandButton Cmd_READ_single{Frame3, {90, 585, 1140, 780}, "Byte Read", {}, Picture::Byte_Read};
  CommandButton Cmd_WRITE_single{Frame3, {1215, 585, 1140, 780}, "Byte Write", {}, Picture::Byte_Write};

  Frame Frame2{*this, {5490, 90, 2445, 1455}, "ブロック アクセス"};
  Label Label3{Frame2, {180, 270, 1095, 240}, "サイズ(Byte)"};
  ComboBox CmbSize{Frame2, {1215, 225, 1005, 300}, kFixed9};
  CommandButton Cmd_READ_all{Frame2, {90, 585, 1140, 780}, "Block Read", {}, Picture::Block_Read};
  CommandButton Cmd_WRITE_all{Frame2, {1215, 585, 1140, 780}, "Block Write", {}, Picture::Block_Write};

  Frame Frame1{*this, {8100, 90, 2040, 1455}, "データ変更"};
  std::array<Label, 4> Label2{{{Frame1, {90, 270, 480, 195}, "Hex"},
                               {Frame1, {90, 540, 480, 195}, "Dec"},
                               {Frame1, {90, 1125, 300, 195}, "Bin"},
                               {Frame1, {90, 810, 480, 195}, "Ascii"}}};
  TextBox Text_modify_hex{Frame1, {585, 225, 1365, 240}, 2, kFixed9_75};
  TextBox Text_modify_dec{Frame1, {585, 495, 1365, 240}, 3, kFixed9_75};
  TextBox Text_modify_asc{Frame1, {585, 765, 1365, 240}, 1, kFixed9_75};
  // The index is the bit number: bit 7 stands leftmost.
  std::array<CheckBox, 8> ChkBin{{{Frame1, {1755, 1125, 195, 195}, ""},
                                  {Frame1, {1575, 1125, 195, 195}, ""},
                                  {Frame1, {1395, 1125, 195, 195}, ""},
                                  {Frame1, {1215, 1125, 195, 195}, ""},
                                  {Frame1, {945, 1125, 195, 195}, ""},
                                  {Frame1, {765, 1125, 195, 195}, ""},
                                  {Frame1, {585, 1125, 195, 195}, ""},
                                  {Frame1, {405, 1125, 195, 195}, ""}}};

  // A sunken rule under the menu bar.
  Line Line1{*this, {0, 0, 10275, 15}, 0x808080};
  Line Line2{*this, {0, 20, 10275, 15}, 0xFFFFFF};

  Label Lbl_PageSize{*this, {180, 1395, 2805, 465}, "", kFixed9};
  Label LblCheckSUM{*this, {8820, 1620, 1275, 195}, "CheckSum:xxxx", kFixed9, Alignment::Right};
  // Lies behind the grid and shows only while a refill hides it.
  Label Label1{
      *this, {1080, 3060, 7530, 645}, "しばらくお待ちください。", {.Points = 26.25}, Alignment::Centre};
  FlexGrid MSFGrid1{*this, {135, 1800, 10005, 4560}, kFixed9};
  Label Label_wrenbitini{*this, {135, 6480, 1995, 240}, ""};
  Label Lbl_Spec{*this, {1980, 6480, 8115, 240}, "", kFixed9, Alignment::Right};
  // Keeps what the board's version means for the block size. Never shown.
  Label Lbl_memo{*this, {3960, 6390, 1140, 195}, ""};
  StatusBar sbStatusBar{*this, {0, 6735, 10275, 300}, {4950, 1995, 1500, 1500}};

  Menu mnuFile{*this, "ファイル(&F)"};
  Menu mnuFileOpen{mnuFile, "ファイルをロード(&O)..."};
  Menu mnuFileSaveAs{mnuFile, "名前を付けて保存(&A)..."};
  Menu mnuFileBar1{mnuFile, "-"};
  Menu mnuFileExit{mnuFile, "終了(&X)"};
  Menu mnuTools{*this, "オプション(&T)"};
  Menu mnuBufferClear{mnuTools, "バッファをクリア(&B)"};
  Menu mnuO1{mnuTools, "-"};
  Menu mnuToolsOptions{mnuTools, "COMポート設定(&O)..."};
  Menu mnuHelp{*this, "ヘルプﾟ(&H)"};
  Menu mnuHelpContents{mnuHelp, "目次(&C)"};
  Menu mnuHelpBar0{mnuHelp, "-"};
  Menu mnuHelpAbout{mnuHelp, "ﾊﾞｰｼﾞｮﾝ情報(&A)"};

  CommonDialog dlgCommonDialog;
};

inline Frm_Main frmMain;

}  // namespace wrenbit
