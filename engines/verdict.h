// The last look at a transfer before its end is told.
#pragma once

namespace wrenbit {

// Waits for an answer that comes behind the last one that was asked for, until the wire has been silent for
// 20 milliseconds. For transfers whose last answers would not show that they belong to other commands. Does
// nothing with LinkError set.
void Await_Stray_Answer();

// True when the transfer went well. Fails it when the board has said more than it was asked for: answers
// carry no tag, so any behind the surplus one may have passed for the next command's. For transfers that go
// by the answers; a three-wire write does not.
bool Judge_Transfer();

}  // namespace wrenbit
