#pragma once

class BenchHome;

// Each adds its rows' measurements to those that Google Benchmark runs. `home` must outlive the runs; data is
// kept in its folder "data", where the sample catalogue is.
void addFetchMeasurements(const BenchHome& home);
void addListMeasurements(const BenchHome& home);
void addImportMeasurements(const BenchHome& home, int lineCount);
