#!/usr/bin/env python3
"""Measures the Python package: python_bench.py RUN.json, with the package on PYTHONPATH.

The file has the form of Google Benchmark's, so that ratios.py reads it beside the others.
"""

import json
import statistics
import sys
import time
from typing import Callable, Dict, List, Union

import vornix

REPETITIONS = 5

# The most rows that one grid of a million cells can have, and its columns.
ROWS, COLS = 30_303, 33
READ_ROWS = 30_000


def texts(rows: int, cols: int) -> List[List[str]]:
    return [[f"cell {col}, {row}" for row in range(rows)] for col in range(cols)]


def load_1m() -> float:
    """Seconds to fill a million cells of a new grid with texts."""
    columns = texts(ROWS, COLS)
    grid = vornix.Grid()
    start = time.perf_counter()
    grid.LoadFromArray(columns)
    elapsed = time.perf_counter() - start
    # A new grid has one row already.
    assert grid.Rows == ROWS + 1 and grid.Text[ROWS, COLS - 1] == columns[-1][-1]
    grid.close()
    return elapsed


def read_30k() -> float:
    """Seconds to read a column of 30,000 texts."""
    columns = texts(READ_ROWS, 3)
    grid = vornix.Grid()
    grid.LoadFromArray(columns)
    start = time.perf_counter()
    read = grid.texts(1, 1, READ_ROWS + 1)
    elapsed = time.perf_counter() - start
    assert read == columns[1]
    grid.close()
    return elapsed


def get_property() -> float:
    """Seconds for 100,000 reads of a property."""
    grid = vornix.Grid()
    start = time.perf_counter()
    for _ in range(100_000):
        grid.Rows
    elapsed = time.perf_counter() - start
    grid.close()
    return elapsed


def get_text() -> float:
    """Seconds for 100,000 reads of a cell's text."""
    grid = vornix.Grid()
    grid.Text[0, 0] = "Berlin"
    start = time.perf_counter()
    for _ in range(100_000):
        grid.Text[0, 0]
    elapsed = time.perf_counter() - start
    grid.close()
    return elapsed


BENCHMARKS: Dict[str, Callable[[], float]] = {
    "Python/load_1m": load_1m,
    "Python/read_30k": read_30k,
    "Python/get_property_100k": get_property,
    "Python/get_text_100k": get_text,
}


def median_entry(name: str, benchmark: Callable[[], float]) -> Dict[str, Union[str, float]]:
    seconds = statistics.median(benchmark() for _ in range(REPETITIONS))
    print(f"{name:30} {seconds * 1000:12.3f} ms")
    return {
        "name": f"{name}_median",
        "run_name": name,
        "aggregate_name": "median",
        "real_time": seconds * 1000,
        "time_unit": "ms",
    }


def main() -> None:
    entries = [median_entry(*each) for each in BENCHMARKS.items()]
    with open(sys.argv[1], "w", encoding="utf-8") as file:
        json.dump({"benchmarks": entries}, file, indent=2)
        file.write("\n")


if __name__ == "__main__":
    main()
