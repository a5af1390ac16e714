// Selecting a byte in the hex grid, and editing it in each of its four ways.
#include "editor/edit_panel.h"

#include <algorithm>
#include <tuple>

#include "editor/cell_selection.h"
#include "editor/hex_grid.h"
#include "image/image_buffer.h"
#include "tests/support/test_bench.h"

namespace wrenbit {
namespace {

enum In { Hex, Dec, Asc, Bit };
TextBox* const kBoxes[] = {&frmMain.Text_modify_hex, &frmMain.Text_modify_dec, &frmMain.Text_modify_asc};

class Edit_Panel : public testing::Test {
 protected:
  Test_Bench bench;
  void SetUp() override {
    frmMain.Show();
    MemSize = 7;
    Buffer_Init();
  }
  // Gives what the status bar tells then.
  static std::string Click(int row, int col) {
    frmMain.MSFGrid1.Set_Row(row);
    frmMain.MSFGrid1.Set_Col(col);
    MSFGrid1_Click();
    return frmMain.sbStatusBar.Panel(3);
  }
  static void Select(std::uint8_t byte) {
    ImageBuffer[17] = byte;
    EXPECT_EQ(Click(2, 2), "アドレス:17");
  }
  static void Enter(In way, const std::string& text) {
    if (way != Bit) return kBoxes[way]->Edit(text);
    CheckBox& bit = frmMain.ChkBin.at(static_cast<std::size_t>(std::stoi(text)));
    bit.Set_Value(1 - bit.Value());
  }
  // What the panel shows.
  static std::string Boxes() {
    std::string shown;
    for (const TextBox* box : kBoxes) shown += box->Text() + " ";
    for (auto bit = frmMain.ChkBin.rbegin(); bit != frmMain.ChkBin.rend(); ++bit)
      shown += std::to_string(bit->Value());
    return shown;
  }
};

TEST_F(Edit_Panel, ASelectedByteIsShownInAllFourWays) {
  for (const char* boxes :
       {"FF 255 ･ 11111111", "00 0 ･ 00000000", "1F 31 ･ 00011111", "20 32   00100000", "7E 126 ~ 01111110",
        "7F 127 ･ 01111111", "22 34 \" 00100010", "B1 177 ･ 10110001"}) {
    const auto byte = static_cast<std::uint8_t>(std::stoi(boxes, nullptr, 16));
    Select(byte);
    EXPECT_EQ(Boxes(), boxes);
    EXPECT_EQ(frmMain.ActiveControl(), &frmMain.Text_modify_hex);
    EXPECT_EQ(frmMain.Text_modify_hex.SelLength(), 2);
    EXPECT_EQ(ImageBuffer[17], byte) << "selecting changes nothing";
  }
}

TEST_F(Edit_Panel, TheAsciiColumnStandsForTheLastByteAndAHeaderOrAnEmptyGridForNone) {
  EXPECT_EQ(Click(1, 17), "アドレス:15");
  EXPECT_EQ(frmMain.MSFGrid1.Col(), 16);
  EXPECT_EQ(Click(0, 5), "アドレス:15");

  UpdatingControls = -1;  // Code writes.
  EXPECT_EQ(Click(3, 17), "アドレス:15");
  EXPECT_EQ(frmMain.MSFGrid1.Col(), 16);
  UpdatingControls = 0;

  MemSize = 0;
  Buffer_Init();
  EXPECT_EQ(Click(1, 1), "アドレス:15");
  for (const In box : {Hex, Dec, Asc, Bit}) Enter(box, "1");
  EXPECT_EQ(UpdatingControls, 0);
}

TEST_F(Edit_Panel, EveryInputComesOutAsItsBoxesByteAndCell) {
  using Texts = std::vector<const char*>;  // Of the box, after each key.
  const std::tuple<std::uint8_t, In, Texts, std::uint8_t, const char*> cases[] = {
      {0xFF, Hex, {"4"}, 0x04, "4 4 ･ 00000100"},
      {0xFF, Hex, {"4", "41"}, 0x41, "41 65 A 01000001"},
      {0xFF, Hex, {"b", "b1"}, 0xB1, "b1 177 ｱ 10110001"},
      {0x12, Hex, {""}, 0x00, " 0 ･ 00000000"},
      {0x12, Hex, {"あ2"}, 0x02, "あ2 2 ･ 00000010"},
      {0x00, Dec, {"2", "25", "256"}, 0xFF, "FF 255 ･ 11111111"},
      {0x07, Dec, {""}, 0xFF, "FF 255 ･ 11111111"},
      {0x07, Dec, {"1e2"}, 0xFF, "FF 255 ･ 11111111"},
      {0x07, Dec, {" 1"}, 0xFF, "FF 255 ･ 11111111"},
      {0x07, Dec, {"１"}, 0xFF, "FF 255 ･ 11111111"},
      {0x41, Dec, {"-1"}, 0x41, "41 -1 A 01000001"},
      {0x41, Dec, {"-.5"}, 0x00, "00 -.5 ･ 00000000"},
      {0x41, Dec, {"+66"}, 0x42, "42 +66 B 01000010"},
      {0x41, Dec, {"1.5"}, 0x02, "02 1.5 ･ 00000010"},
      {0x41, Dec, {"2.5"}, 0x02, "02 2.5 ･ 00000010"},
      {0x00, Asc, {" "}, 0x20, "20 32   00100000"},
      {0x00, Asc, {"ｱ"}, 0xB1, "B1 177 ｱ 10110001"},
      {0x00, Asc, {"･"}, 0xA5, "A5 165 ･ 10100101"},
      {0x41, Asc, {""}, 0x41, "41 65  01000001"},
      {0x41, Asc, {"あ"}, 0x41, "41 65 あ 01000001"},
      {0x41, Asc, {"¥"}, 0x41, "41 65 ¥ 01000001"},
      {0xFF, Bit, {"7"}, 0x7F, "7F 127 \x7F 01111111"},
      {0x00, Bit, {"0", "6"}, 0x41, "41 65 A 01000001"},
  };
  for (const auto& [before, way, texts, after, boxes] : cases) {
    SCOPED_TRACE(boxes);
    Select(before);
    for (const char* text : texts) Enter(way, text);
    EXPECT_EQ(ImageBuffer[17], after);
    EXPECT_EQ(Boxes(), boxes);
    EXPECT_EQ(std::stoi(std::string(frmMain.MSFGrid1.Cell(2, 2)), nullptr, 16), after);
    EXPECT_EQ(frmMain.LblCheckSUM.Caption(), CheckSum_Text());
  }
}

TEST_F(Edit_Panel, AnEditShowsItsWholeRowByItsOwnRule) {
  std::ranges::copy(Bytes{'"', ' ', ',', 0x7F, 0x1F, 0xA0, 0xDF, 0xE0}, ImageBuffer.begin() + 18);
  Grid_Refill();
  EXPECT_EQ(frmMain.MSFGrid1.Cell(2, 17), "･････\x7F･\u00A0ﾟ･･･････");
  Select(0xFF);
  Enter(Hex, "2C");
  EXPECT_EQ(frmMain.MSFGrid1.Cell(2, 17), "･,\" ,\x7F･\u00A0ﾟ･･･････");
}

TEST_F(Edit_Panel, AfterAReadThatFailedAnEditBringsBoxesBitsAndChecksumUpToDateAndNotTheGrid) {
  Grid_Out_Of_Date();
  EXPECT_FALSE(frmMain.ChkBin[0].OutOfDate().empty());
  Enter(Hex, "2C");
  EXPECT_EQ(frmMain.ChkBin[0].OutOfDate() + frmMain.LblCheckSUM.OutOfDate(), "");
  EXPECT_FALSE(frmMain.MSFGrid1.OutOfDate().empty());
  EXPECT_TRUE(frmMain.MSFGrid1.Weak(3, 1));
}

// The arrow keys move the current cell and tell the panel nothing.
TEST_F(Edit_Panel, AnEditGoesToTheCellThatIsCurrentNow) {
  Select(0x41);
  frmMain.MSFGrid1.Set_Col(3);
  Enter(Asc, "A");
  EXPECT_EQ(ImageBuffer[18], 0x41) << "though the box showed an A already";
  EXPECT_EQ(frmMain.MSFGrid1.Col(), 3);

  frmMain.MSFGrid1.Set_Col(17);
  const auto before = ImageBuffer;
  for (const In box : {Hex, Dec, Asc, Bit}) Enter(box, "0");
  EXPECT_EQ(ImageBuffer, before);
  EXPECT_EQ(Boxes(), "0 0 0 01000000") << "the bit was clicked, the boxes keep what was typed";
}

TEST_F(Edit_Panel, TheHexBoxTakesHexDigitsAndTheBackspace) {
  std::string passed;
  for (const char16_t typed : std::u16string(u"09:/afFgG@`\b\r\u001B ａ")) {
    auto key = static_cast<std::int16_t>(typed);
    frmMain.Text_modify_hex.KeyPress(key);
    if (key) passed += static_cast<char>(key);
  }
  EXPECT_EQ(passed, "09AFF\b");
}

}  // namespace
}  // namespace wrenbit
