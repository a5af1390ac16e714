// Lines that a person types at the standard input while something else runs.
#pragma once

#include <string>
#include <vector>

namespace board {

class Typed_Lines {
 public:
  // Make it before any file is opened, which could take the place of a standard input that is closed. From
  // here on SIGTTIN does not stop the process: a terminal that belongs to another job is an input at its end.
  Typed_Lines();

  // To be polled for reading; -1 when no line will come any more.
  int Number() const { return file; }

  // What has come, line by line, without their ends; reads once, which waits unless the poll said so. What
  // exceeds 4096 characters of a line is dropped. The last line needs no end.
  std::vector<std::string> Take();

 private:
  int file;
  std::string begun;
};

}  // namespace board
