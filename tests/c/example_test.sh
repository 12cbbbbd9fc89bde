#!/usr/bin/env bash
# The example handles its event and writes its picture: example_test.sh PROGRAM
set -euo pipefail
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
said=$("$1" "$work/table.png")
expected=$(printf '120.5\npressed row 1, column 1')
[ "$said" = "$expected" ] || { echo "the example said: $said" >&2; exit 1; }
[ "$(od -An -tx1 -N8 "$work/table.png" | tr -d ' \n')" = 89504e470d0a1a0a ] || { echo "no PNG file" >&2; exit 1; }
size=$(od -An -tx1 -j16 -N8 "$work/table.png" | tr -d ' \n')
[ "$size" = "$(printf '%08x%08x' 360 130)" ] || { echo "the picture has another size: $size" >&2; exit 1; }
