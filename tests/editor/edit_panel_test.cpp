// Editing a byte in each of its four ways.
#include "edit_panel.h"

#include <gtest/gtest.h>

#include "cell_selection.h"
#include "frm_main.h"
#include "hex_grid.h"
#include "image_buffer.h"
#include "state.h"
#include "test_bench.h"

namespace wrenbit {
namespace {

enum class In { Hex, Dec, Asc, Bit };

struct Edit_Panel : testing::Test {
  Test_Bench bench;
  void SetUp() override {
    frmMain.Show();
    MemSize = 7;
    Buffer_Init();
  }
  // The byte at 17, selected.
  static void Select(std::uint8_t byte) {
    ImageBuffer[17] = byte;
    frmMain.MSFGrid1.Set_Row(2);
    frmMain.MSFGrid1.Set_Col(2);
    MSFGrid1_Click();
  }
  static void Enter(In box, const std::string& text) {
    if (box == In::Hex) frmMain.Text_modify_hex.Edit(text);
    if (box == In::Dec) frmMain.Text_modify_dec.Edit(text);
    if (box == In::Asc) frmMain.Text_modify_asc.Edit(text);
    if (box == In::Bit) {
      CheckBox& bit = frmMain.ChkBin[static_cast<std::size_t>(text[0] - '0')];
      bit.Set_Value(1 - bit.Value());
    }
  }
  // What the panel shows.
  static std::string Boxes() {
    std::string shown = frmMain.Text_modify_hex.Text() + " " + frmMain.Text_modify_dec.Text() + " " +
                        frmMain.Text_modify_asc.Text() + " ";
    for (auto bit = frmMain.ChkBin.rbegin(); bit != frmMain.ChkBin.rend(); ++bit)
      shown += std::to_string(bit->Value());
    return shown;
  }
  static std::string Row_Text() { return std::string(frmMain.MSFGrid1.Cell(2, 17)); }
};

TEST_F(Edit_Panel, EveryInputComesOutAsItsBoxesByteAndCell) {
  const struct {
    std::uint8_t Before;
    In Box;
    std::vector<const char*> Entered;  // The box's text after each key.
    std::uint8_t After;
    const char* Boxes;
    const char* Character;  // In the row.
  } cases[] = {
      {0xFF, In::Hex, {"4"}, 0x04, "4 4 ･ 00000100", "･"},
      {0xFF, In::Hex, {"4", "41"}, 0x41, "41 65 A 01000001", "A"},
      {0xFF, In::Hex, {"b", "b1"}, 0xB1, "b1 177 ｱ 10110001", "ｱ"},
      {0x12, In::Hex, {""}, 0x00, " 0 ･ 00000000", "･"},
      {0x12, In::Hex, {"G5"}, 0x05, "G5 5 ･ 00000101", "･"},
      {0x12, In::Hex, {"あ2"}, 0x02, "あ2 2 ･ 00000010", "･"},
      {0x00, In::Dec, {"3", "30"}, 0x1E, "1E 30 ･ 00011110", "･"},
      {0x00, In::Dec, {"3", "30", "300"}, 0xFF, "FF 255 ･ 11111111", "･"},
      {0x07, In::Dec, {""}, 0xFF, "FF 255 ･ 11111111", "･"},
      {0x07, In::Dec, {"-"}, 0xFF, "FF 255 ･ 11111111", "･"},
      {0x07, In::Dec, {"."}, 0xFF, "FF 255 ･ 11111111", "･"},
      {0x07, In::Dec, {"1e2"}, 0xFF, "FF 255 ･ 11111111", "･"},
      {0x07, In::Dec, {" 1"}, 0xFF, "FF 255 ･ 11111111", "･"},
      {0x07, In::Dec, {"１"}, 0xFF, "FF 255 ･ 11111111", "･"},
      {0x41, In::Dec, {"-1"}, 0x41, "41 -1 A 01000001", "A"},
      {0x41, In::Dec, {"-.5"}, 0x00, "00 -.5 ･ 00000000", "･"},
      {0x41, In::Dec, {"+66"}, 0x42, "42 +66 B 01000010", "B"},
      {0x41, In::Dec, {"1.5"}, 0x02, "02 1.5 ･ 00000010", "･"},
      {0x41, In::Dec, {"2.5"}, 0x02, "02 2.5 ･ 00000010", "･"},
      {0x41, In::Dec, {"5."}, 0x05, "05 5. ･ 00000101", "･"},
      {0x00, In::Asc, {"A"}, 0x41, "41 65 A 01000001", "A"},
      {0x00, In::Asc, {" "}, 0x20, "20 32   00100000", " "},
      {0x00, In::Asc, {","}, 0x2C, "2C 44 , 00101100", ","},
      {0x00, In::Asc, {"ｱ"}, 0xB1, "B1 177 ｱ 10110001", "ｱ"},
      {0x00, In::Asc, {"･"}, 0xA5, "A5 165 ･ 10100101", "･"},
      {0x41, In::Asc, {""}, 0x41, "41 65  01000001", "A"},
      {0x41, In::Asc, {"あ"}, 0x41, "41 65 あ 01000001", "A"},
      {0x41, In::Asc, {"é"}, 0x41, "41 65 é 01000001", "A"},
      {0x41, In::Asc, {"¥"}, 0x41, "41 65 ¥ 01000001", "A"},
      {0x00, In::Bit, {"7"}, 0x80, "80 128 ･ 10000000", "･"},
      {0xFF, In::Bit, {"7"}, 0x7F, "7F 127 \x7F 01111111", "\x7F"},
      {0x00, In::Bit, {"0", "6"}, 0x41, "41 65 A 01000001", "A"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.Boxes);
    Select(c.Before);
    for (const char* text : c.Entered) Enter(c.Box, text);
    EXPECT_EQ(ImageBuffer[17], c.After);
    EXPECT_EQ(Boxes(), c.Boxes);
    EXPECT_EQ(std::stoi(std::string(frmMain.MSFGrid1.Cell(2, 2)), nullptr, 16), c.After);
    EXPECT_EQ(Row_Text(), std::string("･") + c.Character + "･･････････････");
    EXPECT_EQ(frmMain.LblCheckSUM.Caption(), CheckSum_Text());
    EXPECT_EQ(UpdatingControls, 0);
  }
}

TEST_F(Edit_Panel, ARefillReadsSomeCharactersOtherwise) {
  Select(0xFF);
  Enter(In::Asc, ",");
  ImageBuffer[18] = '"';
  ImageBuffer[19] = ' ';
  ImageBuffer[20] = 0x7F;
  Enter(In::Hex, "2C");
  EXPECT_EQ(Row_Text(), "･,\" \x7F･･･････････");
  Grid_Refill();
  EXPECT_EQ(Row_Text(), "････\x7F･･･････････");
}

// The arrow keys move the current cell and tell the panel nothing.
TEST_F(Edit_Panel, AnEditGoesToTheCellThatIsCurrentNow) {
  Select(0x41);
  frmMain.MSFGrid1.Set_Col(3);
  Enter(In::Asc, "A");
  EXPECT_EQ(ImageBuffer[18], 0x41) << "though the box showed an A already";
  EXPECT_EQ(frmMain.MSFGrid1.Col(), 3);

  frmMain.MSFGrid1.Set_Col(17);
  const auto before = ImageBuffer;
  for (const In box : {In::Hex, In::Dec, In::Asc, In::Bit}) Enter(box, "0");
  EXPECT_EQ(ImageBuffer, before);
  EXPECT_EQ(Boxes(), "0 0 0 01000000") << "the bit was clicked, the boxes keep what was typed";
}

TEST_F(Edit_Panel, TheHexBoxTakesHexDigitsAndTheBackspace) {
  const struct {
    std::int16_t Key, Passed;
  } cases[] = {
      {'0', '0'}, {'9', '9'}, {':', 0},    {'/', 0}, {'a', 'A'}, {'F', 'F'}, {'g', 0}, {'G', 0},
      {8, 8},     {'\r', 0},  {'\x1B', 0}, {' ', 0}, {'@', 0},   {'`', 0},   {-191, 0} /* A full-width A. */};
  for (const auto& c : cases) {
    std::int16_t key = c.Key;
    frmMain.Text_modify_hex.KeyPress(key);
    EXPECT_EQ(key, c.Passed) << c.Key;
  }
}

TEST_F(Edit_Panel, AnImageOfNoSizeHasNothingToEdit) {
  MemSize = 0;
  Buffer_Init();
  for (const In box : {In::Hex, In::Dec, In::Asc, In::Bit}) Enter(box, "1");
  EXPECT_EQ(UpdatingControls, 0);
}

}  // namespace
}  // namespace wrenbit
