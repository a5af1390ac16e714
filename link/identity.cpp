#include "link/identity.h"

#include <array>
#include <cstdint>
#include <limits>
#include <vector>

#include "core/state/platform.h"
#include "link/mscomm.h"
#include "link/reply_wait.h"

namespace wrenbit {
namespace {

constexpr int kSettle = 50;      // Milliseconds from the first query to the second.
constexpr int kSettleStep = 10;  // In which a port that goes is noticed.
constexpr std::size_t kAnyNumber = std::numeric_limits<std::size_t>::max();

// A board that sends its answer in pieces takes up to 200 ms from one to the next, and a second for all.
constexpr double kPiecePause = 0.25;  // Seconds.
// Seconds. One whose answer takes longer sends pieces: query and answer are 19 ms on the wire, and an adapter
// adds up to 16.
constexpr double kInOnePiece = 0.040;

// False when the system would not take it.
bool Query() {
  constexpr std::array<std::uint8_t, 1> kQuery{'?'};
  MSComm1.Clear_InBuffer();
  MSComm1.Resume();
  return MSComm1.Output(kQuery);
}

std::string Received() {
  const std::vector<std::uint8_t> bytes = MSComm1.Input();
  return {bytes.begin(), bytes.end()};
}

// The first query clears the board's parser. Gives what the board has said to it by the time of the second,
// which drops whatever comes of it later.
std::string Wake_Board() {
  Query();
  for (int slept = 0; slept < kSettle && !MSComm1.Lost(); slept += kSettleStep) Sleep(kSettleStep);
  DoEvents();
  return Received();
}

// What of the second answer is still to come must not pass for the reply to the next command.
void Await_Tail(const std::string& first, const std::string& second, double took) {
  if (first.size() >= kIdentityLength && second.starts_with(kIdentityWord)) {
    MSComm1.Learn_Pace(1 + kIdentityLength, took);
    const std::size_t missing = first.size() > second.size() ? first.size() - second.size() : 0;
    Await_Rest(missing, kPiecePause);
  } else {  // A first answer that comes late could pass for a fast second one.
    Await_Rest(kAnyNumber, took > kInOnePiece || !first.empty() ? kPiecePause : kPause);
  }
}

// What was left of a first answer stands before the second. One that does not begin with the word is no
// board's, wherever the word stands in it.
std::string Without_Tail_Of(const std::string& first, const std::string& said) {
  const bool board = !first.empty() && kIdentityWord.starts_with(first.substr(0, kIdentityWord.size()));
  const std::size_t word = said.find(kIdentityWord);
  return board && word != said.npos ? said.substr(word) : said;
}

}  // namespace

std::optional<std::string> Ask_Identity() {
  const std::string first = Wake_Board();
  const double asked = Timer();
  if (Query()) Await_Bytes(kIdentityLength, kPiecePause);
  if (MSComm1.InBufferCount() < kIdentityLength) return std::nullopt;

  const double took = Timer() - asked;
  std::string said = Received();
  Await_Tail(first, said, took);
  said += Received();
  MSComm1.Forget_Unasked();

  said = Without_Tail_Of(first, said);
  if (said.size() < kIdentityLength) return std::nullopt;
  return said.substr(0, kIdentityText);
}

}  // namespace wrenbit
