// tolvex-sim: a programmer board with a chip in its socket, on a serial port that is none.
#include <CLI/CLI.hpp>
#include <exception>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "board_terminal.h"
#include "com_port_link.h"
#include "image_store.h"
#include "make_chip.h"
#include "programmer_board.h"

namespace {

struct Options {
  int Com = 0;
  std::string Chip;
  std::string Image;
  std::string Firmware = "5.00";
  std::string Identification;
  bool Paced = false;
};

std::vector<std::string> Chip_Names() {
  std::vector<std::string> names;
  for (const auto& chip : board::Two_Wire_Chips()) names.emplace_back(chip.Name);
  return names;
}

void Describe(CLI::App& app, Options& options) {
  app.add_option("--com", options.Com,
                 "Number of the port, which becomes wrenbit/ports/COM<N> in the user's configuration")
      ->required()
      ->check(CLI::Range(1, 20));
  app.add_option("--chip", options.Chip, "Chip in the socket")
      ->required()
      ->check(CLI::IsMember(Chip_Names()));
  app.add_option(
      "--image", options.Image,
      "File with the chip's bytes; made if it is not there. Without it the chip is erased at every start");
  app.add_option("--firmware", options.Firmware, "Version text of the firmware, 4 characters")
      ->capture_default_str();
  app.add_option("--id", options.Identification, "Whole answer to \"?\", in place of the firmware's");
  app.add_flag("--pace", options.Paced, "Reply no earlier than 9600 baud would");
}

std::unique_ptr<board::Cell_Store> Open_Store(const Options& options, std::size_t size) {
  if (options.Image.empty()) return std::make_unique<board::Cell_Store>(size);
  return std::make_unique<board::Image_Store>(options.Image, size);
}

void Run(const Options& options) {
  const std::size_t size = board::Find_Chip(options.Chip)->Bytes;
  const auto store = Open_Store(options, size);
  board::Programmer_Board programmer(options.Firmware);
  if (!options.Identification.empty()) programmer.Identify_As(options.Identification);
  programmer.Insert(board::Make_Chip(options.Chip, *store));

  board::Board_Terminal terminal;
  {
    const board::Com_Port_Link link(options.Com, terminal.Device());
    std::cout << "tolvex-sim: " << options.Chip << " (" << size << " bytes) on COM" << options.Com << " = "
              << terminal.Device() << ", firmware " << options.Firmware << std::endl;
    terminal.Serve(programmer, options.Paced ? board::Pace::kWire : board::Pace::kAtOnce);
  }
  std::cout << "tolvex-sim: " << programmer.Commands() << " commands, " << programmer.Bytes_In()
            << " bytes out to the board, " << programmer.Bytes_Out() << " bytes back" << std::endl;
}

}  // namespace

int main(int argc, char** argv) {
  Options options;
  CLI::App app(
      "A TOLVEX programmer board with a serial EEPROM in its socket, on a pseudo terminal. Ends with SIGINT.",
      "tolvex-sim");
  try {
    Describe(app, options);
    app.parse(argc, argv);
    Run(options);
  } catch (const CLI::ParseError& error) {
    return app.exit(error) == 0 ? 0 : 2;
  } catch (const std::exception& error) {
    std::cerr << "tolvex-sim: " << error.what() << '\n';
    return 1;
  }
}
