#include "shell/qt/program.h"

int main(int argc, char** argv) {
  wrenbit::Program program(argc, argv);
  if (program.Start()) program.Run();
  return 0;  // On Windows Qt calls this routine, by another name.
}
