// The handshake: what counts as a good reply, what each failure shows, and what survives it.
#include "handshake.h"

#include <gtest/gtest.h>

#include "frm_main.h"
#include "link.h"
#include "state.h"
#include "test_bench.h"

namespace wrenbit {
namespace {

struct Handshake_Test : testing::Test {
  Test_Bench bench;
  Scripted_Board board;
  void SetUp() override {
    bench.Board = &board;
    TransferRunning = -1;  // As behind the command lock.
  }

  void Answer(const std::string& text) {
    const Bytes bytes(text.begin(), text.end());
    board.Replies = {{1, bytes}, {1, bytes}};
  }
  static const std::string& Panel(int number) { return frmMain.sbStatusBar.Panel(number); }
};

TEST_F(Handshake_Test, AGoodReplyTellsPortAndVersion) {
  Answer("TOLVEX fw. 5.00\r\n");
  frmMain.sbStatusBar.Set_Panel(1, "kept");
  Read_Version();
  EXPECT_EQ(LinkError, 0);
  EXPECT_EQ(bench.Sent, (Bytes{'?', '?'}));
  EXPECT_EQ(Panel(1), "kept");
  EXPECT_EQ(Panel(2), "COM1 : TOLVEX fw. 5.00");
  EXPECT_FLOAT_EQ(ProgrammerVersion, 5.0F);
  EXPECT_TRUE(bench.Is_Open());

  Answer("TOLVEX\xB1\x01xyz5.00\r\n");
  Read_Version();
  EXPECT_EQ(Panel(2), "COM1 : TOLVEXｱ･xyz5.00");
}

TEST_F(Handshake_Test, CostsItsPauseAndTheWireAndNothingElse) {
  Answer("TOLVEX fw. 5.00\r\n");
  const double before = bench.Now();
  Read_Version();
  // 50 ms of pause, one byte out and 17 back; nothing else.
  EXPECT_NEAR(bench.Now() - before, 0.05 + 18 * 10.0 / 9600, 0.002);
}

TEST_F(Handshake_Test, APortThatGoesDuringThePauseIsNoticedBeforeItIsOver) {
  struct Leaving : board::Wire_End {
    explicit Leaving(const Test_Bench& at) : bench(at) {}
    board::Answer Receive(std::uint8_t) override { return {}; }
    bool Gone() const override { return bench.Now() > from + 0.012; }
    const Test_Bench& bench;
    const double from = bench.Now();
  } leaving(bench);
  bench.Board = &leaving;
  Read_Version();
  EXPECT_LT(bench.Now() - leaving.from, 0.030);
  EXPECT_EQ(Panel(1), "プログラマ接続確認エラー。【1】ポートが切断されました。");
}

TEST_F(Handshake_Test, NoPartOfALongAnswerIsTakenForTheNextReply) {
  for (const std::size_t length : {17U, 18U, 20U, 45U})
    for (const bool twice : {true, false}) {
      SCOPED_TRACE(std::to_string(length) + (twice ? "" : ", the first query unheard"));
      std::string text = "TOLVEX fw. 5.00";
      text.resize(length, '*');
      const Bytes answer(text.begin(), text.end());
      board.Replies = {{1, twice ? answer : Bytes{}}, {1, answer}, {3, {0x42}}};
      const double before = bench.Now();
      Read_Version();
      const double pause = twice ? 0 : 0.020;
      EXPECT_NEAR(bench.Now() - before, 0.05 + static_cast<double>(1 + length) * 10 / 9600 + pause, 0.002);
      EXPECT_EQ(Link_ReadPortA(), 0x42);
      EXPECT_EQ(LinkError, 0);
    }
}

TEST_F(Handshake_Test, APortThatGoesBehindAGoodAnswerEndsQuietly) {
  struct : Scripted_Board {
    bool Pulled = false;
    bool Gone() const override { return Pulled; }
  } pulled;
  const std::string text = "TOLVEX fw. 5.00\r\nand more of it";
  const Bytes answer(text.begin(), text.end());
  pulled.Replies = {{1, answer}, {1, answer}};
  bench.Board = &pulled;
  double asked = 0;
  bench.On_Yield = [&] {
    if (bench.Sent.size() == 2 && asked == 0) asked = bench.Now();
    if (asked > 0 && bench.Now() > asked + 20 * bench.ByteTime) pulled.Pulled = true;
  };
  Read_Version();
  EXPECT_TRUE(pulled.Pulled);
  EXPECT_EQ(Panel(2), "COM1 : TOLVEX fw. 5.00");
  Link_ReadPortA();
  EXPECT_EQ(LinkError, 1);
}

TEST_F(Handshake_Test, TellsAVirtualPortFromAWireByItsSecondAnswerAlone) {
  const struct {
    const char* Name;
    double FirstIsLate;
    bool HoldsBack;
  } cases[] = {{"at once", 0, false}, {"the first one late", 0.052, true}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.Name);
    const std::string text = "TOLVEX fw. 5.00\r\n";
    const Bytes answer(text.begin(), text.end());
    bench.ByteTime = 1e-5;
    board.Replies = {{1, answer, c.FirstIsLate}, {1, answer}};
    Read_Version();
    ASSERT_EQ(LinkError, 0);
    const double before = bench.Now();
    for (int i = 0; i < 1000; ++i) Link_WritePortB(0x40);
    EXPECT_EQ(bench.Now() - before > 3, c.HoldsBack);
  }
}

TEST_F(Handshake_Test, RepliesThatAreNoneEndTheTransfer) {
  const struct {
    const char* Name;
    std::string Says;
    std::string Panel1;
    double Seconds;
  } cases[] = {
      {"nothing", "", "プログラマ接続確認エラー。【1】", 1.05},
      {"16 bytes", "TOLVEX fw. 5.00\r", "プログラマ接続確認エラー。【1】", 1.05},
      {"lower case", "tolvex fw. 5.00\r\n", "プログラマ接続確認エラー。", 0.07},
      {"another board", "HELLO, I AM A MODEM", "プログラマ接続確認エラー。", 0.07},
  };
  ProgrammerVersion = 5.0F;
  for (const auto& c : cases) {
    SCOPED_TRACE(c.Name);
    Answer(c.Says);
    const double before = bench.Now();
    Read_Version();
    EXPECT_EQ(LinkError, 1);
    EXPECT_EQ(Panel(1), c.Panel1);
    EXPECT_EQ(Panel(2), "COM1 : ライター未接続");
    EXPECT_FLOAT_EQ(ProgrammerVersion, 5.0F) << "keeps the last good value";
    EXPECT_NEAR(bench.Now() - before, c.Seconds, 0.03);
  }
}

TEST_F(Handshake_Test, TheReplyToTheFirstQueryDoesNotCount) {
  const std::string text = "TOLVEX fw. 5.00\r\n";
  board.Replies = {{1, Bytes(text.begin(), text.end())}};
  Read_Version();
  EXPECT_EQ(LinkError, 1);
}

TEST_F(Handshake_Test, TheVersionDecidesByItsNumber) {
  const std::string kLimit256 = "[AllRead]=２５６バイト";
  const std::string kLimit4096 = "[AllRead]=４０９６バイト";
  const struct {
    std::string Text;
    float Version;
    std::string Memo;  // A piece of it.
  } cases[] = {
      {"4.90", 4.9F, kLimit256}, {"4.99", 4.99F, kLimit256},
      {"5.00", 5, kLimit4096},   {"  5 ", 5, kLimit4096},
      {"12.0", 12, kLimit4096},  {"-1.0", -1, kLimit256},
      {"0.00", 0, ""},           {"beta", 0, ""},
      {"nan ", 0, ""},           {"inf ", 0, ""},
      {"9e99", 0, ""},           {"5.0a", 0, ""},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.Text);
    Answer("TOLVEX-fw- " + c.Text + "\r\n");
    Read_Version();
    EXPECT_EQ(LinkError, 0);
    EXPECT_FLOAT_EQ(ProgrammerVersion, c.Version);
    if (c.Memo.empty())
      EXPECT_EQ(frmMain.Lbl_memo.Caption(), "");
    else
      EXPECT_NE(frmMain.Lbl_memo.Caption().find(c.Memo), std::string::npos);
  }
}

TEST_F(Handshake_Test, PortAndLinesAreReadFromTheSettingsEachTime) {
  Read_Version();
  bench.Stored = {{"ComNo", "19"}, {"RTS", "0"}, {"DTR", "1"}};
  Read_Version();
  EXPECT_EQ(bench.Opened, (std::vector<std::string>{"COM1 RTS", "COM20 DTR"}));
  EXPECT_EQ(Panel(2), "COM20 : ライター未接続");
}

TEST_F(Handshake_Test, APortThatCannotBeOpenedSendsNothingAndSaysWhy) {
  const struct {
    Port_Fault Fault;
    std::string ComNo;
    std::string Panel1;
  } cases[] = {
      {Port_Fault::No_Such_Port, "2", "プログラマ接続確認エラー。【3】ポートがありません。"},
      {Port_Fault::No_Permission, "0", "プログラマ接続確認エラー。【1】使用権限なし(dialoutに加入)"},
      {Port_Fault::In_Use, "0", "プログラマ接続確認エラー。【1】ポートは使用中です。"},
      {Port_Fault::Gone, "0", "プログラマ接続確認エラー。【1】ポートが切断されました。"},
      {Port_Fault::None, "20", "プログラマ接続確認エラー。【】ポートがありません。"},
      {Port_Fault::None, "-1", "プログラマ接続確認エラー。【】ポートがありません。"},
      {Port_Fault::None, "one", "プログラマ接続確認エラー。【】ポートがありません。"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.Panel1 + c.ComNo);
    bench.Refusal = c.Fault;
    bench.Stored["ComNo"] = c.ComNo;
    Read_Version();
    EXPECT_EQ(LinkError, 1);
    EXPECT_EQ(Panel(1), c.Panel1);
    EXPECT_FALSE(bench.Is_Open());
  }
  EXPECT_TRUE(bench.Sent.empty());
}

}  // namespace
}  // namespace wrenbit
