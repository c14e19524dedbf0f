#pragma once

class BenchHome;

// Each adds its rows' measurements to those that Google Benchmark runs. `home` must outlive the runs; data is
// kept in its folder "data", where the sample catalogue is; that of exports and reports, whose movies all
// have one genre, in "covers".
void addFetchMeasurements(BenchHome& home);
void addListMeasurements(BenchHome& home);
void addImportMeasurements(BenchHome& home, int lineCount);
void addSummaryMeasurements(BenchHome& home);
void addExportMeasurements(BenchHome& home);
void addReportMeasurements(BenchHome& home);
