// Files that are read and written as a whole.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace wrenbit {

// True when the path is a regular file that can be opened for reading.
bool File_Exists(const std::string& path);

// The bytes of a regular file of at most 256 MiB, nothing for any other and for one that can't be opened.
// Where reading fails in the midst, what came before.
std::optional<std::string> Read_Whole_File(const std::string& path);

// Makes the file or replaces its contents, in one step: a failure or a crash leaves it as it was. Nothing is
// left beside it, but by a crash a ".wrenbit-…". A replaced file keeps its mode, or attributes; it belongs to
// the user from then on. A symbolic link stays, and what it leads to is written. Refused are a file that the
// user may not write and whatever is no regular file. Gives the reason of a failure, a sentence in Japanese
// for the user; nothing when all is well.
std::optional<std::string> Write_Whole_File(const std::string& path, std::string_view text);

}  // namespace wrenbit
