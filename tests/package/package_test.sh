#!/usr/bin/env bash
# Installs the build and uses it as a program outside the tree would: find_package, pkg-config, the installed viewer.
#   package_test.sh SOURCE BUILD [headless] [c] [qt] [viewer]     the parts that the build has
set -euo pipefail
source_dir=$1
build_dir=$2
shift 2

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
prefix=$work/prefix

say() { echo "== $*"; }
fail() {
    echo "package test: $*" >&2
    exit 1
}

# is_png FILE WIDTH HEIGHT: by its signature, its size and its end.
is_png() {
    [ "$(od -An -tx1 -N8 "$1" | tr -d ' \n')" = 89504e470d0a1a0a ] || fail "$1 is no PNG file"
    [ "$(od -An -tx1 -j16 -N8 "$1" | tr -d ' \n')" = "$(printf '%08x%08x' "$2" "$3")" ] || fail "$1 is not $2 by $3"
    [ "$(tail -c 8 "$1" | head -c 4)" = IEND ] || fail "$1 is cut off"
}

# build_example NAME: from a copy, so that nothing of the tree is found by accident.
build_example() {
    cp -r "$source_dir/examples/$1" "$work/$1"
    cmake -G Ninja -S "$work/$1" -B "$work/$1/build" -DCMAKE_BUILD_TYPE=Release -DCMAKE_CXX_COMPILER="$CXX" \
        -DCMAKE_PREFIX_PATH="$prefix" >"$work/$1.log" 2>&1 || { cat "$work/$1.log"; fail "examples/$1 does not configure"; }
    cmake --build "$work/$1/build"
}

test_headless() {
    say "find_package, headless"
    build_example headless
    "$work/headless/build/headless_example" "$work/found.png"
    is_png "$work/found.png" 360 130

    say "pkg-config, headless"
    export PKG_CONFIG_PATH
    PKG_CONFIG_PATH=$(dirname "$(find "$prefix" -name vornix-headless.pc)")
    # shellcheck disable=SC2046
    "$CXX" -std=c++20 "$source_dir/examples/headless/main.cpp" -o "$work/by_pkg_config" \
        $(pkg-config --cflags --libs vornix-headless)
    "$work/by_pkg_config" "$work/configured.png"
    cmp "$work/found.png" "$work/configured.png" || fail "the two programs draw different pictures"
}

test_c() {
    say "find_package, c"
    build_example c
    "$work/c/build/c_example" "$work/c_found.png"
    is_png "$work/c_found.png" 360 130

    say "pkg-config, c"
    local libraries
    libraries=$(dirname "$(find "$prefix" -name libvornix.so)")
    export PKG_CONFIG_PATH
    PKG_CONFIG_PATH=$libraries/pkgconfig
    # shellcheck disable=SC2046
    "${CC:-cc}" -std=c11 -Wall -Wextra -Wpedantic -Werror "$source_dir/examples/c/main.c" -o "$work/c_by_pkg_config" \
        $(pkg-config --cflags --libs vornix-c)
    LD_LIBRARY_PATH=$libraries "$work/c_by_pkg_config" "$work/c_configured.png"
    cmp "$work/c_found.png" "$work/c_configured.png" || fail "the two C programs draw different pictures"
}

test_qt() {
    say "find_package, qt"
    build_example qt
    local status=0
    QT_QPA_PLATFORM=offscreen timeout 3 "$work/qt/build/qt_example" || status=$?
    # Stopped by the clock: it was running.
    [ "$status" -eq 124 ] || fail "the Qt example ended by itself, with $status"
}

test_viewer() {
    say "the installed viewer"
    "$prefix/bin/vornix-view" --list | grep -q . || fail "the installed viewer does not find its sample"
    "$prefix/bin/vornix-view" --snapshot "$work/view.png" --size 320x200
    is_png "$work/view.png" 320 200
}

test_missing_component() {
    say "a component that does not exist"
    mkdir "$work/missing"
    cat >"$work/missing/CMakeLists.txt" <<'END'
cmake_minimum_required(VERSION 3.25)
project(missing LANGUAGES CXX)
find_package(Vornix COMPONENTS nonsense)
if(Vornix_FOUND)
    message(FATAL_ERROR "found a component that does not exist")
endif()
END
    cmake -G Ninja -S "$work/missing" -B "$work/missing/build" -DCMAKE_CXX_COMPILER="$CXX" \
        -DCMAKE_PREFIX_PATH="$prefix" >"$work/missing.log" 2>&1 || { cat "$work/missing.log"; fail "nonsense was found"; }
}

# All of the archive linked into one library, with nothing undefined left over, on the libraries of the language alone.
test_core_alone() {
    say "the core alone"
    cmake -S "$source_dir" --preset core -B "$work/core" -DCMAKE_CXX_COMPILER="$CXX" "${launcher[@]}" >"$work/core.log" ||
        { cat "$work/core.log"; fail "the core alone does not configure"; }
    cmake --build "$work/core"
    local archive
    archive=$(find "$work/core" -name libvornix_core.a)
    "$CXX" -shared -nodefaultlibs -o "$work/libcore.so" -Wl,--no-undefined -Wl,--whole-archive "$archive" \
        -Wl,--no-whole-archive -lstdc++ -lm -lgcc_s -lc -lgcc
    local needed
    needed=$(readelf -d "$work/libcore.so" | sed -n 's/.*NEEDED.*\[\(.*\)\]/\1/p' | grep -Ev '^(libstdc\+\+|libm|libgcc_s|libc|ld-linux.*)\.so' || true)
    [ -z "$needed" ] || fail "the core needs $needed"
}

CXX=${CXX:-c++}
launcher=()
command -v ccache >/dev/null 2>&1 && launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)

say "install"
cmake --install "$build_dir" --prefix "$prefix" >"$work/install.log" || { cat "$work/install.log"; fail "it does not install"; }
test_missing_component
for part in "$@"; do
    "test_$part"
done
test_core_alone
say "done"
