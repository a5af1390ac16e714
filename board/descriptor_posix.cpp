#include "board/descriptor.h"

#include <unistd.h>

#include <cerrno>
#include <system_error>

namespace board {

Descriptor::~Descriptor() {
  if (number >= 0) close(number);
}

void Throw_Errno(const std::string& subject) {
  throw std::system_error(errno, std::generic_category(), subject);
}

}  // namespace board
