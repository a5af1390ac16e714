#include "shell/qt/drawing/program_style.h"

namespace wrenbit {

Program_Style::Program_Style() : QProxyStyle(QStringLiteral("windowsvista")) {}

}  // namespace wrenbit
