// What is measured: each a part of the table. All throw std::runtime_error when something fails on the way or
// does other than it should, and when the main window is closed in the midst, as a signal to end does.
#pragma once

#include <QDir>

#include "bench/report.h"
#include "shell/qt/views/form_view.h"

namespace bench {

// What the shown main window makes the user wait for where no wire is involved.
void Measure_Window(Report& report, const wrenbit::Form_View& window);

// The others leave files in the scratch folder.

// Start and memory of the whole program beside an empty Qt window.
void Measure_Programs(Report& report, const QDir& scratch);

// Loading and saving beside the bare movement of the same bytes.
void Measure_Files(Report& report, const QDir& scratch);

// Intel HEX to binary and back, beside tools that do the same. One that is not installed is left out, with a
// word on the error stream.
void Measure_Conversions(Report& report, const QDir& scratch);

// Transfers by the program's own commands, with a board in a process of its own. Brief leaves out what takes
// half a minute or more.
void Measure_Transfers(Report& report, const QDir& scratch, bool brief);

}  // namespace bench
