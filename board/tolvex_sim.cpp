// tolvex-sim: a programmer board with a chip in its socket, on a serial port that is none.
#include <CLI/CLI.hpp>
#include <algorithm>
#include <cctype>
#include <chrono>
#include <cstddef>
#include <exception>
#include <iostream>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "board/arguments.h"
#include "board/board_terminal.h"
#include "board/cell_store.h"
#include "board/com_port_link.h"
#include "board/image_store.h"
#include "board/make_chip.h"
#include "board/programmer_board.h"
#include "board/typed_lines.h"
#include "board/wire_schedule.h"

namespace {

constexpr const char* kNoChip = "none";

struct Options {
  int Com = 0;
  std::string Chip;
  std::string Image;
  std::string Firmware = "5.00";
  std::string Identification;
  bool Paced = false;
  int Latency = 0;
};

std::vector<std::string> Chips_And_None() {
  auto names = board::Chip_Names();
  names.emplace_back(kNoChip);
  return names;
}

void Describe(CLI::App& app, Options& options) {
  app.add_option("--com", options.Com,
                 "Number of the port, which is named among wrenbit/ports in the user's configuration")
      ->required()
      ->check(CLI::Range(1, 20));
  app.add_option("--chip", options.Chip, "Chip in the socket")
      ->required()
      ->check(CLI::IsMember(Chips_And_None(), CLI::ignore_case));
  app.add_option(
      "--image", options.Image,
      "File with the chip's bytes; made if it is not there. Without it the chip is erased at every start");
  app.add_option("--firmware", options.Firmware, "Version text of the firmware, 4 characters")
      ->capture_default_str();
  app.add_option("--id", options.Identification, "Whole answer to \"?\", in place of the firmware's");
  app.add_flag("--pace", options.Paced,
               "Reply no earlier than 9600 baud would; keeps a processor busy meanwhile");
  app.add_option("--latency", options.Latency,
                 "Hold replies back as a USB adapter does whose latency timer has so many milliseconds")
      ->check(CLI::Range(0, 255));
  app.footer(
      "To swap the chip while the board runs, type a line with the new one, and its image if it has one:\n"
      "  AT93C46 my-chip.bin\n"
      "  none");
}

// The socket, and the cells of the chip in it.
class Chip_Seat {
 public:
  explicit Chip_Seat(board::Programmer_Board& board) : programmer(board) {}

  // Swaps the chip; an empty image stands for erased cells that nothing keeps. When it throws, the chip that
  // was in the socket is still there.
  void Seat(const std::string& chip, const std::string& image) {
    if (chip == kNoChip) {
      if (!image.empty()) throw std::invalid_argument("an empty socket has no image");
      programmer.Insert(nullptr);
      cells.reset();
      content = "no chip";
      return;
    }
    const std::size_t size = board::Chip_Size(chip);
    std::unique_ptr<board::Cell_Store> store;
    if (image.empty())
      store = std::make_unique<board::Cell_Store>(size);
    else
      store = std::make_unique<board::Image_Store>(image, size);
    programmer.Insert(board::Make_Chip(chip, *store));
    cells = std::move(store);
    content = chip + " (" + std::to_string(size) + " bytes, " +
              (image.empty() ? "erased, kept nowhere" : "kept in " + image) + ")";
  }

  const std::string& Text() const { return content; }

 private:
  board::Programmer_Board& programmer;
  std::unique_ptr<board::Cell_Store> cells;
  std::string content;
};

// Without blanks around it, and without the quotes that a shell would want.
std::string Bare(const std::string& text) {
  const char* const blanks = " \t\r";
  const auto begin = text.find_first_not_of(blanks);
  if (begin == std::string::npos) return "";
  const std::string bare = text.substr(begin, text.find_last_not_of(blanks) - begin + 1);
  const bool quoted = bare.size() > 1 && bare.front() == bare.back() && (bare[0] == '"' || bare[0] == '\'');
  return quoted ? bare.substr(1, bare.size() - 2) : bare;
}

// The name as the parts have it, whatever case was typed.
std::string Chip_Named(const std::string& typed) {
  const auto same = [](unsigned char a, unsigned char b) { return std::toupper(a) == std::toupper(b); };
  const auto names = Chips_And_None();
  const auto found =
      std::ranges::find_if(names, [&](const auto& name) { return std::ranges::equal(name, typed, same); });
  return found == names.end() ? typed : *found;
}

// A line is a chip and, behind a blank, the whole path of its image.
void Swap(Chip_Seat& seat, const std::string& typed) {
  const std::string line = Bare(typed);
  const auto chip_end = std::min(line.find_first_of(" \t"), line.size());
  try {
    if (!line.empty()) seat.Seat(Chip_Named(line.substr(0, chip_end)), Bare(line.substr(chip_end)));
  } catch (const std::exception& error) {
    std::cout << "tolvex-sim: " << error.what() << '\n';
  }
  std::cout << "tolvex-sim: " << seat.Text() << " in the socket" << std::endl;
}

void Run(const Options& options) {
  board::Typed_Lines typed;
  board::Programmer_Board programmer(options.Firmware);
  if (!options.Identification.empty()) programmer.Identify_As(options.Identification);
  Chip_Seat seat(programmer);
  seat.Seat(options.Chip, options.Image);

  board::Board_Terminal terminal;
  {
    const board::Com_Port_Link link(options.Com, terminal.Device());
    std::cout << "tolvex-sim: " << seat.Text() << " on COM" << options.Com << " = " << terminal.Device()
              << ", firmware " << options.Firmware << std::endl;
    terminal.Serve(programmer,
                   {.Wire = options.Paced ? board::Pace::Wire : board::Pace::At_Once,
                    .Latency = std::chrono::milliseconds(options.Latency)},
                   typed, [&](const std::string& line) { Swap(seat, line); });
  }
  std::cout << "tolvex-sim: " << programmer.Commands() << " commands, " << programmer.Bytes_In()
            << " bytes out to the board, " << programmer.Bytes_Out() << " bytes back" << std::endl;
}

}  // namespace

int main(int argc, char** argv) {
  Options options;
  CLI::App app(
      "A TOLVEX programmer board with a serial EEPROM in its socket, on a serial port that is none: a pseudo "
      "terminal, or on Windows a named pipe. Ends with Ctrl-C.",
      "tolvex-sim");
  try {
    Describe(app, options);
    auto arguments = board::Arguments(argc, argv);
    std::ranges::reverse(arguments);  // As CLI11 wants them.
    app.parse(std::move(arguments));
    Run(options);
  } catch (const CLI::ParseError& error) {
    return app.exit(error) == 0 ? 0 : 2;
  } catch (const std::exception& error) {
    std::cerr << "tolvex-sim: " << error.what() << '\n';
    return 1;
  }
}
