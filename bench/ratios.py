#!/usr/bin/env python3
"""Makes the named ratios of a run of compare_bench: ratios.py RUN.json COMPARE.json"""

import json
import sys

TO_MILLISECONDS = {"ns": 1e-6, "us": 1e-3, "ms": 1.0, "s": 1e3}


def medians(run):
    """Real time in milliseconds, and the memory counter, by benchmark: the median of the repetitions."""
    times, counters = {}, {}
    for entry in run["benchmarks"]:
        if entry.get("aggregate_name") != "median":
            continue
        name = "/".join(entry["run_name"].split("/")[:2]) if "/" in entry["run_name"] else entry["run_name"]
        times[name] = entry["real_time"] * TO_MILLISECONDS[entry["time_unit"]]
        if "bytes_per_cell" in entry:
            counters[name] = entry["bytes_per_cell"]
    return times, counters


def compare(run):
    time, memory = medians(run)
    figures = {
        "fill_ratio": time["QTableWidget/fill"] / time["Vornix/fill"],
        "bytes_per_cell": memory["Vornix/fill"],
        "repaint_ratio": time["QTableWidget/repaint"] / time["Vornix/repaint"],
        "fresh_page_ratio": time["QTableWidget/fresh_page"] / time["Vornix/fresh_page"],
        "col_back_color_ms": time["Vornix/col_back_color"],
        "frame_copy_ratio": time["Vornix/repaint"] / time["frame_copy"],
    }
    return {name: round(value, 3) for name, value in figures.items()}


def main():
    source, target = sys.argv[1:]
    with open(source, encoding="utf-8") as file:
        figures = compare(json.load(file))
    with open(target, "w", encoding="utf-8") as file:
        json.dump(figures, file, indent=2)
        file.write("\n")
    for name, value in figures.items():
        print(f"{name:20} {value:10.3f}")


if __name__ == "__main__":
    main()
