# Set-up shared by the commands of this folder; sourced, not run.
# shellcheck shell=bash

set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

build_packages=(
    cmake fonts-dejavu-core g++ libqt5svg5-dev make ninja-build pkg-config
    qtbase5-dev qtscript5-dev qttools5-dev qttools5-dev-tools qt5-qmake
)

say() {
    printf '== %s\n' "$*"
}

as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    else
        sudo "$@"
    fi
}

# Installs those of the named Debian packages that are missing, and says so.
need() {
    local missing=() package
    for package in "$@"; do
        if [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" != installed ]; then
            missing+=("$package")
        fi
    done
    if [ ${#missing[@]} -eq 0 ]; then
        say "All packages are installed already: $*"
        return
    fi
    say "Installing from Debian's packages: ${missing[*]}"
    as_root apt-get update -qq
    as_root env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}"
}

# Configures and builds a preset of CMakePresets.json in build/<preset>.
# Further arguments go to the configuration.
build() {
    local preset=$1
    shift
    say "Building the preset $preset in build/$preset"
    (cd "$root" && cmake --preset "$preset" "$@" && cmake --build --preset "$preset")
}
