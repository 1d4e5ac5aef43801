#!/usr/bin/env python3
"""Prints what benchmark programs measured: nanoseconds per entry for each number of entries, and how
many times the bare cost that is. A row whose figures stay level has a cost that does not grow with
the number of settings.

    printTable.py <results.json>...
"""

import json
import sys
from pathlib import Path


def read_medians(path):
    """{benchmark: {entries: nanoseconds per entry}} and {benchmark: its bare benchmark}."""
    times, bare = {}, {}
    for run in json.loads(path.read_text())["benchmarks"]:
        if run.get("error_occurred"):
            sys.exit(f"{path}: {run['name']}: {run['error_message']}")
        if run.get("aggregate_name") != "median":
            continue
        name, entries = run["run_name"].split("/")
        times.setdefault(name, {})[int(entries)] = run["per_entry"] * 1e9
        bare[name] = run.get("label", "")
    return times, bare


def print_table(path):
    times, bare = read_medians(path)
    sizes = sorted({size for row in times.values() for size in row})
    print(f"{path.stem}: ns per entry (times the bare cost)")
    print(f"{'entries':<15}" + "".join(f"{size:>18,}" for size in sizes))
    for name, row in times.items():
        line = f"{name:<15}"
        for size in sizes:
            cell = "-"
            if size in row:
                cell = f"{row[size]:.0f}"
                against = times.get(bare[name], {}).get(size)
                cell += f" ({row[size] / against:4.1f})" if against else " " * 7
            line += f"{cell:>18}"
        print(line + (f"   bare: {bare[name]}" if bare[name] else ""))
    print()


for argument in sys.argv[1:]:
    print_table(Path(argument))
