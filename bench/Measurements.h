#pragma once

class BenchHome;

// Each adds its rows' measurements to those that Google Benchmark runs. `home` must outlive the runs; data is
// kept in its folder "data", where the sample catalogue is.
void addFetchMeasurements(BenchHome& home);
void addListMeasurements(BenchHome& home);
void addImportMeasurements(BenchHome& home, int lineCount);
