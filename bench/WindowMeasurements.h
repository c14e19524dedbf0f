#pragma once

#include "bench/Rows.h"

class BenchHome;

// Runs the program beside this one in turns with an empty window, and answers the medians of the rows "start"
// and "memory". `home` holds catalogues of two sizes in its folders "start" and "data".
[[nodiscard]] FiguresByRow measureWindows(BenchHome& home);
