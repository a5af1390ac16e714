// An open file of POSIX, closed when its owner goes.
#pragma once

#include <string>
#include <utility>

namespace board {

class Descriptor {
 public:
  // Takes over what open() gave; a negative number stands for none.
  explicit Descriptor(int file = -1) : number(file) {}
  Descriptor(Descriptor&& other) noexcept : number(std::exchange(other.number, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(number, other.number);
    return *this;
  }
  ~Descriptor();

  explicit operator bool() const { return number >= 0; }
  int operator*() const { return number; }

 private:
  int number;
};

// Throws std::system_error for the present errno; `subject` opens its text.
[[noreturn]] void Throw_Errno(const std::string& subject);

}  // namespace board
