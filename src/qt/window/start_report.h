// Measures how fast the program starts.
#pragma once

namespace corvane {

class MainWindow;

// Writes the milliseconds since the start of this process and its resident memory to standard output:
// "first paint 73 ms, resident 38.2 MiB".
void printStart();

// MiB of this process.
double residentMemory();

// With CORVANE_STOP_AFTER_FIRST_PAINT set: prints the start after the window's first paint and ends the program.
// Otherwise nothing.
void reportStart(MainWindow& window);

}  // namespace corvane
