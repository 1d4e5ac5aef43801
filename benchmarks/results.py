"""Reads the results file of the benchmarks."""

import json
import sys

# The highest ratio of each cost to the bare cost.
GOALS = {
    "readVariable": 1.0,
    "getInt": 1.3,
    "getBool": 1.3,
    "getQString": 1.3,
    "setInt": 1.3,
    "loadLocalFile": 1.5,
    "saveLocalFile": 1.6,
    "mergeCopy": 1.3,
    "firstShowing": 1.3,
    "firstShowingModern": 1.3,
    "switchPage": 1.3,
    "switchPageModern": 1.3,
    "typeIntoFind": 0.1,  # a key, compared with building a page of 200 rows
    "switchLanguage": 1.5,
    "switchTheme": 1.5,
}


def cost_of(run):
    for unit, counter in (("bytes", "bytes"), ("whole", "per_iteration")):
        if counter in run:
            return unit, run[counter]
    return "seconds", run["per_entry"]


def read_medians(path):
    """Returns {work: {entries: {who: (unit, cost)}}}. The unit is "bytes" or "seconds" for a cost
    per entry, or "whole" for one in seconds of all entries."""
    works = {}  # in the order of registration, because the benchmarks run in random order
    with open(path, encoding="utf-8") as file:
        runs = json.load(file)["benchmarks"]
    for run in sorted(runs, key=lambda run: run["family_index"]):
        if run.get("error_occurred"):
            sys.exit(f"{path}: {run['name']}: {run['error_message']}")
        if run.get("aggregate_name") != "median":
            continue
        work, who, size = run["run_name"].split("/")[:3]  # "real_time" may follow
        works.setdefault(work, {}).setdefault(int(size), {})[who] = cost_of(run)
    return works
