#pragma once

// Each of these functions registers the benchmarks of its source file.

void addStoreBenchmarks();
void addFileBenchmarks();
void addManagerBenchmarks();
void addProgramBenchmarks();
void addWindowBenchmarks();

void addQSettingsBenchmarks();
/// If KConfig was not found at build time, prints this on standard error and registers nothing.
void addKConfigBenchmarks();
