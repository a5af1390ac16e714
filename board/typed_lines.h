// Lines that a person types at the standard input while something else runs.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace board {

class Typed_Lines {
 public:
  // Make it before any file is opened, which could take the place of a standard input that is closed. From
  // here on SIGTTIN does not stop the process: a terminal that belongs to another job is an input at its end.
  Typed_Lines();
  ~Typed_Lines();

  // What to wait for: a file to be polled for reading, or the handle of an event; -1 when no line will come
  // any more.
  std::intptr_t Waitable() const;

  // What has come, line by line, without their ends; reads once, which may wait unless the system said that
  // something is there. What exceeds 4096 characters of a line is dropped. The last line needs no end.
  std::vector<std::string> Take();

 private:
  struct Input;

  // Bytes that have come, in UTF-8; none at the input's end, behind which no more will come.
  std::optional<std::string> Read();

  std::unique_ptr<Input> input;
  std::string begun;
};

}  // namespace board
