#include "board/arguments.h"

#include <windows.h>
#include <shellapi.h>

#include <cstdio>
#include <cstdlib>

#include "board/wide_text.h"

namespace board {

// main() has them in the system's code page, which lacks most letters.
std::vector<std::string> Arguments(int, char**) {
  static const UINT kPageBefore = GetConsoleOutputCP();
  SetConsoleOutputCP(CP_UTF8);
  std::atexit([] { SetConsoleOutputCP(kPageBefore); });
  // Without a buffer a letter of several bytes would reach the console in pieces.
  for (std::FILE* const stream : {stdout, stderr}) std::setvbuf(stream, nullptr, _IOFBF, BUFSIZ);

  int count = 0;
  wchar_t** const words = CommandLineToArgvW(GetCommandLineW(), &count);
  std::vector<std::string> arguments;
  for (int i = 1; i < count; ++i) arguments.push_back(Utf8(words[i]));
  LocalFree(words);
  return arguments;
}

}  // namespace board
