// The four windows, each a single instance that is reached by its name.
#pragma once

#include "shell/controls/frm_about.h"
#include "shell/controls/frm_com.h"
#include "shell/controls/frm_main.h"
#include "shell/controls/frm_splash.h"
