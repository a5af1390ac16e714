// The name under which a PC program finds the board: a link COMn in the user's folder of ports.
#pragma once

#include <filesystem>
#include <string>

#include "board/descriptor.h"

namespace board {

// A lock beside the link, held as long as the board lives. The system drops it when the board is killed,
// which tells a link that was left behind from one in use.
class Com_Port_Lock {
 public:
  // Throws std::runtime_error when another board holds `link` for half a second, or somebody else made it.
  explicit Com_Port_Lock(const std::filesystem::path& link);
  ~Com_Port_Lock();
  Com_Port_Lock(const Com_Port_Lock&) = delete;
  Com_Port_Lock& operator=(const Com_Port_Lock&) = delete;

 private:
  std::filesystem::path path;
  Descriptor file;
};

class Com_Port_Link {
 public:
  // Makes the folder, COM<number> in it, and its lock. A link that a killed board left behind is replaced in
  // one step; any other file of the name stays, and std::runtime_error is thrown.
  Com_Port_Link(int number, const std::string& device);
  // Removes what the constructor made.
  ~Com_Port_Link();

 private:
  std::filesystem::path path;
  std::string device;
  Com_Port_Lock lock;
};

}  // namespace board
