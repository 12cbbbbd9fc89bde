#!/usr/bin/env python3
"""Makes the named figures out of runs of the benchmarks: ratios.py RUN.json... COMPARE.json

A run is a file as Google Benchmark writes it; what counts in it are the medians of the repetitions: "run_name" with
"real_time", "time_unit" and counters. A figure is made when the runs hold all that it needs, and named on the standard
error output when they do not.
"""

import json
import sys

TO_MILLISECONDS = {"ns": 1e-6, "us": 1e-3, "ms": 1.0, "s": 1e3}


def beside(time, name, other="QTableWidget"):
    """How many times longer the other takes than the grid."""
    return time[f"{other}/{name}"] / time[f"Vornix/{name}"]


# By name, from the benchmarks' times in milliseconds and their counters.
FIGURES = {
    "fill_ratio": lambda time, _: beside(time, "fill"),
    "bytes_per_cell": lambda _, counter: counter["Vornix/fill"]["bytes_per_cell"],
    "repaint_ratio": lambda time, _: beside(time, "repaint"),
    "fresh_page_ratio": lambda time, _: beside(time, "fresh_page"),
    "col_back_color_ms": lambda time, _: time["Vornix/col_back_color"],
    "scroll_row_ratio": lambda time, _: beside(time, "scroll_row"),
    "scroll_page_ratio": lambda time, _: beside(time, "scroll_page"),
    "smooth_step_ratio": lambda time, _: beside(time, "smooth_step"),
    "drag_select_ratio": lambda time, _: beside(time, "drag_select"),
    "scroll_row_update_ratio": lambda time, _: beside(time, "scroll_row_update"),
    "scroll_page_update_ratio": lambda time, _: beside(time, "scroll_page_update"),
    "smooth_step_update_ratio": lambda time, _: beside(time, "smooth_step_update"),
    "drag_select_update_ratio": lambda time, _: beside(time, "drag_select_update"),
    "edit_next_ratio": lambda time, _: beside(time, "edit_next"),
    "type_masked_ratio": lambda time, _: beside(time, "type_masked", "QLineEdit"),
    "fill_list_ratio": lambda time, _: beside(time, "fill_list", "QComboBox"),
    "search_list_ratio": lambda time, _: beside(time, "search_list", "QComboBox"),
    "autosize_ratio": lambda time, _: beside(time, "fit_column"),
    "autosize_row_ratio": lambda time, _: beside(time, "fit_row"),
    "insert_top_ratio": lambda time, _: beside(time, "insert_top"),
    "insert_top_shown_ratio": lambda time, _: beside(time, "insert_top_shown"),
    "sort_ratio": lambda time, _: beside(time, "sort", "QSortFilterProxyModel"),
    "select_all_ratio": lambda time, _: time["Vornix/select_all_rows"] / time["Vornix/select_one_row"],
    "hit_test_us": lambda time, _: time["Vornix/hit_test"] / TO_MILLISECONDS["us"],
    "cell_origin_us": lambda time, _: time["Vornix/cell_origin"] / TO_MILLISECONDS["us"],
    "frame_copy_ratio": lambda time, _: time["Vornix/repaint"] / time["frame_copy"],
    "copy_1m_cells_ms": lambda time, _: time["Vornix/copy_1m_cells"],
    # 1 where the time is in proportion to the cells.
    "copy_growth": lambda time, _: time["Vornix/copy_1m_cells"] / time["Vornix/copy_quarter_of_1m_cells"] / 4,
    "paste_1m_cells_ms": lambda time, _: time["Vornix/paste_1m_cells"],
    "script_100k_s": lambda time, _: time["Vornix/script_100k"] / TO_MILLISECONDS["s"],
    "late_bound_get_per_s": lambda _, counter: counter["C/late_bound_get"]["items_per_second"],
    "late_bound_get_by_name_per_s": lambda _, counter: counter["C/late_bound_get_by_name"]["items_per_second"],
    "python_load_1m_s": lambda time, _: time["Python/load_1m"] / TO_MILLISECONDS["s"],
    "python_read_30k_ms": lambda time, _: time["Python/read_30k"],
}


def medians(runs):
    """Times in milliseconds, and everything else that was counted, by benchmark."""
    times, counters = {}, {}
    for entry in (entry for run in runs for entry in run["benchmarks"]):
        if entry.get("aggregate_name") != "median":
            continue
        name = "/".join(entry["run_name"].split("/")[:2])
        times[name] = entry["real_time"] * TO_MILLISECONDS[entry["time_unit"]]
        counters[name] = entry
    return times, counters


def figures(runs):
    """The figures that can be made, and the names of those that cannot."""
    times, counters = medians(runs)
    made, missing = {}, []
    for name, figure in FIGURES.items():
        try:
            made[name] = round(figure(times, counters), 3)
        except KeyError:
            missing.append(name)
    return made, missing


def read(path):
    with open(path, encoding="utf-8") as file:
        return json.load(file)


def main():
    *sources, target = sys.argv[1:]
    made, missing = figures([read(source) for source in sources])
    with open(target, "w", encoding="utf-8") as file:
        json.dump(made, file, indent=2)
        file.write("\n")
    for name, value in made.items():
        print(f"{name:30} {value:16.3f}")
    for name in missing:
        print(f"not measured: {name}", file=sys.stderr)


if __name__ == "__main__":
    main()
