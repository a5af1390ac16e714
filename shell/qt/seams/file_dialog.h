// The file dialogs: the desktop's own where it has them.
#pragma once

#include <QWidget>

#include "shell/controls/common_dialog.h"

namespace wrenbit {

// Shows the control's dialogs over a window. The control and the window outlive the last use.
void Offer_File_Dialogs(CommonDialog& dialog, QWidget* owner);

}  // namespace wrenbit
