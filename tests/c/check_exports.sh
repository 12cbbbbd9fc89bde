#!/usr/bin/env bash
# The library exports the functions of its header and nothing else: check_exports.sh LIBRARY HEADER
set -euo pipefail
declared=$(grep -oE '\bvornix_[a-z0-9_]+\(' "$2" | tr -d '(' | sort -u)
exported=$(nm -D --defined-only --without-symbol-versions "$1" | awk '$2 != "A" { print $3 }' | sort -u)
[ "$(wc -l <<<"$declared")" -gt 50 ] || { echo "the header does not show its functions" >&2; exit 1; }
diff <(echo "$declared") <(echo "$exported") || { echo "< declared, > exported" >&2; exit 1; }
nm -D --defined-only "$1" | grep -q 'vornix_version@@VORNIX_0' || { echo "the exports carry no version" >&2; exit 1; }
readelf -d "$1" | grep -q 'SONAME.*\[libvornix\.so\.0\]' || { echo "the library has another name" >&2; exit 1; }
