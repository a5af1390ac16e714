// The least that a program can do to talk to a port.
#pragma once

#include <string>

#include "bench/conversation.h"

namespace bench {

// Seconds to hold a conversation once more by write(2), poll(2) and read(2), and nothing else. Throws
// std::runtime_error when the other side falls silent.
double Bare_Talk(const std::string& device, const Conversation& conversation);

}  // namespace bench
