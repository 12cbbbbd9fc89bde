#!/usr/bin/env python3
"""Makes the wheel of the package out of its files: the same files give the same bytes.

    make_wheel.py .../vornix-0.1.0-py3-none-linux_x86_64.whl --readme FILE --license FILE --files FILE...
"""

import argparse
import base64
import hashlib
import sys
import zipfile
from pathlib import Path
from typing import Dict, List, Optional, Sequence

PACKAGE = "vornix"

METADATA = """\
Metadata-Version: 2.1
Name: {name}
Version: {version}
Summary: A grid control that shows a table
Requires-Python: >=3.9
Classifier: Operating System :: POSIX :: Linux
Classifier: Programming Language :: Python :: 3
Classifier: Typing :: Typed
License-File: LICENSE
Description-Content-Type: text/markdown

{readme}"""

WHEEL = """\
Wheel-Version: 1.0
Generator: make_wheel
Root-Is-Purelib: false
Tag: {tag}
"""

# The earliest time that a zip file can hold.
TIMESTAMP = (1980, 1, 1, 0, 0, 0)


def record_line(name: str, data: bytes) -> str:
    """A line of RECORD: the name, the digest and the size of a file."""
    digest = base64.urlsafe_b64encode(hashlib.sha256(data).digest()).rstrip(b"=").decode()
    return f"{name},sha256={digest},{len(data)}"


def wheel_files(wheel: Path, files: Sequence[Path], readme: Path, license_file: Path) -> Dict[str, bytes]:
    """What the wheel holds, by the names in it, RECORD last."""
    name, version, tag = wheel.stem.split("-", 2)
    info = f"{name}-{version}.dist-info"
    contents = {f"{PACKAGE}/{path.name}": path.read_bytes() for path in sorted(files)}
    metadata = METADATA.format(name=name, version=version, readme=readme.read_text(encoding="utf-8"))
    contents[f"{info}/LICENSE"] = license_file.read_bytes()
    contents[f"{info}/METADATA"] = metadata.encode("utf-8")
    contents[f"{info}/WHEEL"] = WHEEL.format(tag=tag).encode("utf-8")
    lines = [record_line(*each) for each in contents.items()] + [f"{info}/RECORD,,"]
    contents[f"{info}/RECORD"] = "".join(f"{line}\n" for line in lines).encode("utf-8")
    return contents


def write_wheel(wheel: Path, contents: Dict[str, bytes]) -> None:
    wheel.parent.mkdir(parents=True, exist_ok=True)
    with zipfile.ZipFile(wheel, "w", zipfile.ZIP_DEFLATED) as archive:
        for name, data in contents.items():
            entry = zipfile.ZipInfo(name, TIMESTAMP)
            entry.compress_type = zipfile.ZIP_DEFLATED
            entry.create_system = 3
            mode = 0o755 if ".so" in name else 0o644
            entry.external_attr = (0o100000 | mode) << 16
            archive.writestr(entry, data)


def main(arguments: Optional[List[str]] = None) -> int:
    parser = argparse.ArgumentParser(description="Makes the wheel of the package.")
    parser.add_argument("wheel", type=Path, help="the file; its name gives version and tag")
    parser.add_argument("--readme", type=Path, required=True)
    parser.add_argument("--license", type=Path, required=True)
    parser.add_argument("--files", type=Path, nargs="+", required=True, help="the package's files")
    options = parser.parse_args(arguments)
    contents = wheel_files(options.wheel, options.files, options.readme, options.license)
    write_wheel(options.wheel, contents)
    return 0


if __name__ == "__main__":
    sys.exit(main())
