// The pictures that a control or a window can show. The view draws them at whatever size it needs.
#pragma once

namespace wrenbit {

enum class Picture { None, Open, Save, Port, Byte_Read, Byte_Write, Block_Read, Block_Write, Program, Logo };

}  // namespace wrenbit
