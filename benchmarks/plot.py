#!/usr/bin/env python3
"""Plots the costs against the number of entries. Needs python3-matplotlib.

    plot.py <results.json> <picture.svg>
"""

import sys

import matplotlib

matplotlib.use("Agg")
import matplotlib.pyplot as plt

from results import read_medians

LOOKS = {
    "library": {"color": "#1f6feb", "linewidth": 2.2, "marker": "o"},
    "bare": {"color": "#555555", "linestyle": "--"},
    "QSettings": {"color": "#d9822b", "marker": "s"},
    "KConfig": {"color": "#7a3e9d", "marker": "^"},
}
COLUMNS = 4


def draw(axes, work, sizes):
    for who, look in LOOKS.items():
        points = [(size, costs[who][1] * 1e9) for size, costs in sorted(sizes.items())
                  if who in costs]
        if points:
            axes.plot(*zip(*points), label=who, markersize=4, **look)
    is_whole = next(iter(sizes.values()))["library"][0] == "whole"
    axes.set_title(f"{work} (whole)" if is_whole else work, fontsize=10)
    axes.set_xscale("log")
    axes.set_yscale("log")
    axes.grid(True, which="both", alpha=0.2)


def main(results, picture):
    # Make the file reproducible: the same results give the same bytes.
    plt.rcParams["svg.hashsalt"] = "performance"
    plt.rcParams["svg.fonttype"] = "none"
    works = {work: sizes for work, sizes in read_medians(results).items()
             if len(sizes) > 2 and next(iter(sizes.values()))["library"][0] != "bytes"
             and work != "readVariable"}
    rows = -(-len(works) // COLUMNS)
    figure, grid = plt.subplots(rows, COLUMNS, figsize=(3.2 * COLUMNS, 2.8 * rows), squeeze=False)
    cells = [axes for line in grid for axes in line]
    for axes, (work, sizes) in zip(cells, works.items()):
        draw(axes, work, sizes)
    for axes in cells[len(works):]:
        axes.axis("off")
    figure.supxlabel("entries", fontsize=10)
    figure.supylabel("nanoseconds, per entry or of the whole", fontsize=10)
    handles = {label: handle for axes in cells[:len(works)]
               for handle, label in zip(*axes.get_legend_handles_labels())}
    figure.legend(handles.values(), handles.keys(), loc="upper center", ncol=len(handles),
                  frameon=False)
    figure.tight_layout(rect=(0, 0, 1, 0.94))
    figure.savefig(picture, metadata={"Date": None})


if len(sys.argv) != 3:
    sys.exit(__doc__)
main(*sys.argv[1:])
