# Debian packages by purpose, and one function that installs what is missing. Sourced by the other scripts.

packages_build="g++ cmake ninja-build pkg-config ccache python3"
packages_libraries="libicu-dev libsqlite3-dev libpng-dev libharfbuzz-dev libfreetype-dev libfontconfig-dev libfribidi-dev libcli11-dev qt6-base-dev"
packages_runtime="fontconfig fonts-dejavu-core fonts-noto-core fonts-noto-cjk fonts-noto-color-emoji libqt6gui6 libqt6widgets6"
packages_developer="libgtest-dev libgmock-dev libbenchmark-dev"
packages_test="clang-format xvfb xauth xdotool xclip libreoffice-calc-nogui python3-pip python3-venv mypy"

as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    elif command -v sudo >/dev/null 2>&1; then
        sudo "$@"
    else
        echo "vornix: need root or sudo to install packages: $*" >&2
        return 1
    fi
}

# install_packages NAME...: the ones that are not there yet.
install_packages() {
    local missing=()
    local name
    for name in "$@"; do
        dpkg-query -W -f='${db:Status-Status}' "$name" 2>/dev/null | grep -qx installed || missing+=("$name")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    if ! command -v apt-get >/dev/null 2>&1; then
        echo "vornix: these packages are needed and apt-get is not here: ${missing[*]}" >&2
        return 1
    fi
    echo "vornix: installing ${missing[*]}"
    as_root apt-get update -qq
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# configure PRESET: into the preset's folder, with the compiler cache where there is one.
configure() {
    local launcher=()
    command -v ccache >/dev/null 2>&1 && launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
    cmake --preset "$1" "${launcher[@]}" "${@:2}" >/dev/null
}
