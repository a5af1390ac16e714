// An open file of the system, closed when its owner goes.
#pragma once

#include <string>
#include <utility>

namespace board {

class Descriptor {
 public:
  // Takes over what open() gave; a negative number stands for none.
  explicit Descriptor(int number = -1) : Number(number) {}
  Descriptor(Descriptor&& other) noexcept : Number(std::exchange(other.Number, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(Number, other.Number);
    return *this;
  }
  ~Descriptor();

  explicit operator bool() const { return Number >= 0; }
  int operator*() const { return Number; }

 private:
  int Number;
};

// Throws std::system_error for the present errno; `subject` opens its text.
[[noreturn]] void Throw_Errno(const std::string& subject);

}  // namespace board
