#!/usr/bin/env python3
"""Makes one output from the interface file.

    generate.py IFACE --emit NAME OUTPUT    the output of one emitter, into a file or a folder
    generate.py IFACE --count-pending       prints how many lines are not built yet

An emitter is a module beside this one with a function `emit(interface)`. It gives the text of one
file, or a mapping of relative paths to texts for a folder. A file is written only when its content
has changed, so that what depends on it is not built again for nothing.
"""

import argparse
import importlib
import sys
from pathlib import Path
from typing import List, Mapping, Optional, Union

import iface

# What an emitter gives: the text of a file, or texts by relative path.
Output = Union[str, Mapping[str, str]]


def emitted(name: str, interface: iface.Interface) -> Output:
    """What the emitter of a name makes of the interface."""
    output: Output = importlib.import_module(name).emit(interface)
    return output


def write_if_changed(path: Path, text: str) -> bool:
    """Writes a file unless it has this text already. Whether it was written."""
    if path.is_file() and path.read_text(encoding="utf-8") == text:
        return False
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_bytes(text.encode("utf-8"))
    return True


def write_output(path: Path, output: Output) -> None:
    """Writes a file, or a folder of files."""
    if isinstance(output, str):
        write_if_changed(path, output)
        return
    for relative, text in output.items():
        write_if_changed(path / relative, text)


def main(arguments: Optional[List[str]] = None) -> int:
    parser = argparse.ArgumentParser(description="Makes one output from the interface file.")
    parser.add_argument("iface", type=Path, help="the interface file")
    parser.add_argument(
        "--emit", nargs=2, metavar=("NAME", "OUTPUT"), help="an emitter, and where its output goes"
    )
    parser.add_argument(
        "--count-pending", action="store_true", help="print how many lines are not built yet"
    )
    options = parser.parse_args(arguments)
    try:
        interface = iface.read(options.iface)
    except iface.IfaceError as error:
        print(error, file=sys.stderr)
        return 1
    if options.emit:
        name, output = options.emit
        write_output(Path(output), emitted(name, interface))
    if options.count_pending:
        print(f"pending: {interface.pending_count} lines of the interface")
    return 0


if __name__ == "__main__":
    sys.exit(main())
