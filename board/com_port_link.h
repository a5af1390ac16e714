// The name under which a PC program finds the board: COMn, or on Windows port-COMn.txt, in the user's folder
// of ports.
#pragma once

#include <memory>
#include <string>

namespace board {

class Com_Port_Link {
 public:
  // Makes the folder and the name in it, which leads to the device. One that a killed board left behind is
  // replaced; any other file of the name stays. Throws std::runtime_error for that one, and when another
  // board is on the port.
  Com_Port_Link(int number, const std::string& device);
  // Removes what the constructor made in the folder.
  ~Com_Port_Link();

 private:
  struct Claim;

  std::unique_ptr<Claim> claim;
};

}  // namespace board
