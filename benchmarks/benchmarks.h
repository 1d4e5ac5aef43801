#pragma once

// What the program measures. Each function registers the benchmarks of its source file.

void addStoreBenchmarks();
void addFileBenchmarks();
void addManagerBenchmarks();
void addWindowBenchmarks();

void addQSettingsBenchmarks();
/// Says on standard error that KConfig is left out where it was not found when this was built.
void addKConfigBenchmarks();
