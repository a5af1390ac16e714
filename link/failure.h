// How an operation fails: a flag and a text.
#pragma once

#include <string>

namespace wrenbit {

// Tells why in panel 1 and sets LinkError. What runs goes on, to where it looks at the flag.
void Fail(const std::string& why);

}  // namespace wrenbit
