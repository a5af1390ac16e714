// One instance of the program for each user.
#pragma once

#include <string>

namespace wrenbit {

// Claims `file`, made if it is not there, for the life of this process. The system holds the claim and gives
// it back at the process's end, however it ends; what the file holds and who left it there mean nothing, and
// it stays. False when another process has the claim: of two at once, one. Where there can be no claim, in a
// folder that may not be written or on a file system without locks, true, so that the program starts all the
// same. Call once: a second claim in the same process is refused like another's.
bool Claim_Instance(const std::string& file);

}  // namespace wrenbit
