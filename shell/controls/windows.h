// The four windows, each a single instance that is reached by its name.
#pragma once

#include "frm_about.h"
#include "frm_com.h"
#include "frm_main.h"
#include "frm_splash.h"
