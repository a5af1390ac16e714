#pragma once
#include <QIcon>

#include "picture.h"
namespace wrenbit {
inline QIcon Icon_Of(Picture) { return {}; }
}  // namespace wrenbit
