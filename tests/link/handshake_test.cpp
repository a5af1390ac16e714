// The handshake: what counts as a good reply, what each failure shows, and what survives it.
#include "link/handshake.h"

#include <tuple>

#include "link/link.h"
#include "tests/support/test_bench.h"

namespace wrenbit {
namespace {

class Handshake_Test : public testing::Test {
 protected:
  Test_Bench bench;
  Scripted_Board board;
  void SetUp() override {
    bench.Board = &board;
    TransferRunning = -1;  // As behind the command lock.
  }

  // To both queries.
  void Answer(const std::string& text) {
    const Bytes bytes(text.begin(), text.end());
    board.Replies = {{1, bytes}, {1, bytes}};
  }
};

TEST_F(Handshake_Test, AGoodReplyTellsVersionAndPortWhichIsReadFromTheSettingsEachTime) {
  Answer("TOLVEX fw. 5.00\r\n");
  LinkError = 1;
  frmMain.sbStatusBar.Set_Panel(1, "kept");
  Read_Version();
  EXPECT_EQ(LinkError, 0);
  EXPECT_EQ(bench.Sent, (Bytes{'?', '?'}));
  EXPECT_EQ(Panel(1), "kept");
  EXPECT_EQ(Panel(2), "COM1 : TOLVEX fw. 5.00");
  EXPECT_TRUE(bench.Is_Open());

  Answer("TOLVEX\xB1\x01xyz5.00\r\n");
  bench.Stored = {{"ComNo", "19"}, {"RTS", "0"}, {"DTR", "1"}};
  Read_Version();
  EXPECT_EQ(bench.Opened, (Texts{"COM1 RTS", "COM20 DTR"}));
  EXPECT_EQ(Panel(2), "COM20 : TOLVEXｱ･xyz5.00");
  EXPECT_EQ(bench.Kept, (std::vector<int>{1, 20}));
}

TEST_F(Handshake_Test, NoPartOfAnAnswerThatIsLongOrComesInPiecesIsTakenForTheNextReply) {
  const double wire = bench.ByteTime;
  // Seconds from byte to byte, the answer's length, and whether the first query is heard too.
  const std::tuple<double, std::size_t, bool> cases[] = {
      {wire, 17, true},  {wire, 18, true},  {wire, 45, true}, {wire, 17, false}, {wire, 18, false},
      {wire, 45, false}, {0.004, 19, true}, {0.02, 19, true}, {0.05, 19, true}};
  for (const auto& [byte_time, length, twice] : cases) {
    SCOPED_TRACE(std::to_string(length) + " at " + std::to_string(byte_time) + (twice ? "" : ", once"));
    std::string text = "TOLVEX fw. 5.00";
    text.resize(length, '*');
    Answer(text);
    board.Replies.push_back({3, {0x42}});
    if (!twice) board.Replies.front().Says.clear();
    bench.ByteTime = byte_time;
    const double seconds = bench.Seconds_Of(Read_Version);
    if (byte_time == wire) {
      EXPECT_NEAR(seconds, 0.05 + static_cast<double>(1 + length) * wire + (twice ? 0 : 0.020), 0.002);
    }
    EXPECT_EQ(Panel(2), "COM1 : TOLVEX fw. 5.00");
    EXPECT_EQ(Link_ReadPortA(), 0x42);
    EXPECT_EQ(LinkError, 0);
    EXPECT_EQ(MSComm1.Unasked(), 0U);
  }
}

TEST_F(Handshake_Test, AnAnswerThatBeginsWithinTheSecondIsHeardToItsEnd) {
  Answer("TOLVEX fw. 5.00\r\n");
  board.Replies.back().Late = 0.99;
  Read_Version();
  EXPECT_EQ(LinkError, 0);
}

TEST_F(Handshake_Test, TellsAVirtualPortFromAWireByItsSecondAnswerAlone) {
  bench.ByteTime = 1e-5;
  for (const double first_is_late : {0.0, 0.052}) {
    SCOPED_TRACE(first_is_late);
    Answer("TOLVEX fw. 5.00\r\n");
    board.Replies.front().Late = first_is_late;
    Read_Version();
    ASSERT_EQ(LinkError, 0);
    const double seconds = bench.Seconds_Of([] {
      for (int i = 0; i < 1000; ++i) Link_WritePortB(0x40);
    });
    EXPECT_EQ(seconds > 3, first_is_late > 0) << "it holds back";
  }
}

TEST_F(Handshake_Test, RepliesThatAreNoneEndTheTransfer) {
  const std::tuple<std::string, const char*, double> cases[] = {
      {"", "プログラマ接続確認エラー。【1】", 1.05},
      {"TOLVEX fw. 5.00\r", "プログラマ接続確認エラー。【1】", 1.05},
      {"tolvex fw. 5.00\r\n", "プログラマ接続確認エラー。", 0.32},
      {"HELLO, I AM A MODEM", "プログラマ接続確認エラー。", 0.32},
  };
  ProgrammerVersion = 5.0F;
  for (const auto& [says, text, seconds] : cases) {
    SCOPED_TRACE(says);
    Answer("TOLVEX fw. 5.00\r\n");  // What is said to the first query does not count.
    board.Replies.back().Says = {says.begin(), says.end()};
    EXPECT_NEAR(bench.Seconds_Of(Read_Version), seconds, 0.03);
    EXPECT_EQ(LinkError, 1);
    EXPECT_EQ(Panel(1), text);
    EXPECT_EQ(Panel(2), "COM1 : ライター未接続");
    EXPECT_FLOAT_EQ(ProgrammerVersion, 5.0F) << "keeps the last good value";
  }
  EXPECT_TRUE(bench.Kept.empty());

  Answer("?TOLVEX fw. 5.00\r\n");
  Read_Version();
  EXPECT_EQ(LinkError, 1) << "the word is not where it belongs";
}

TEST_F(Handshake_Test, TheVersionDecidesByItsNumber) {
  const char *const limit256 = "[AllRead]=２５６バイト", *const limit4096 = "[AllRead]=４０９６バイト";
  const std::tuple<std::string, float, std::string> cases[] = {
      {"4.90", 4.9F, limit256}, {"4.99", 4.99F, limit256}, {"5.00", 5, limit4096}, {"  5 ", 5, limit4096},
      {"12.0", 12, limit4096},  {"-1.0", -1, limit256},    {"0.00", 0, ""},        {"nan ", 0, ""},
      {"inf ", 0, ""},          {"9e99", 0, ""},           {"5.0a", 0, ""},
  };
  for (const auto& [text, version, memo] : cases) {
    SCOPED_TRACE(text);
    Answer("TOLVEX-fw- " + text + "\r\n");
    Read_Version();
    EXPECT_EQ(LinkError, 0);
    EXPECT_FLOAT_EQ(ProgrammerVersion, version);
    const std::string& shown = frmMain.Lbl_memo.Caption();
    EXPECT_TRUE(memo.empty() ? shown.empty() : shown.find(memo) != std::string::npos) << shown;
  }
}

TEST_F(Handshake_Test, APortThatCannotBeOpenedSendsNothingAndSaysWhy) {
  const std::tuple<Port_Fault, const char*, std::string> cases[] = {
      {Port_Fault::No_Such_Port, "2", "【3】ポートがありません。"},
      {Port_Fault::No_Permission, "0", "【1】使用権限なし(uucpに加入)"},
      {Port_Fault::Rights_Coming, "0", "【1】使用権限なし(uucpに加入)"},
      {Port_Fault::In_Use, "0", "【1】ポートは使用中です。"},
      {Port_Fault::Gone, "0", "【1】ポートが切断されました。"},
      {Port_Fault::Refused, "0", "【1】ポートを開けません。"},
      {Port_Fault::None, "20", "【】ポートがありません。"},
      {Port_Fault::None, "-1", "【】ポートがありません。"},
      {Port_Fault::None, "one", "【】ポートがありません。"},
  };
  for (const auto& [fault, com_no, text] : cases) {
    SCOPED_TRACE(com_no + text);
    bench.Refusal = fault;
    bench.Right = "uucpに加入";
    bench.Stored["ComNo"] = com_no;
    Read_Version();
    EXPECT_EQ(LinkError, 1);
    EXPECT_EQ(Panel(1), "プログラマ接続確認エラー。" + text);
    EXPECT_FALSE(bench.Is_Open());
  }
  EXPECT_TRUE(bench.Sent.empty());
}

TEST_F(Handshake_Test, RightsThatTheSystemIsStillSettingUpAreWaitedFor) {
  Answer("TOLVEX fw. 5.00\r\n");
  bench.Refusal = Port_Fault::Rights_Coming;
  bench.On_Yield = [&] { bench.Refusal = Port_Fault::None; };
  Read_Version();
  EXPECT_EQ(LinkError, 0);
}

}  // namespace
}  // namespace wrenbit
