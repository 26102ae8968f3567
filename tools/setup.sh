# Set-up shared by the commands of this folder; sourced, not run.
# shellcheck shell=bash

set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

qt5_packages=(
    libqt5svg5-dev qt5-qmake qtbase5-dev qtscript5-dev qttools5-dev qttools5-dev-tools
)
qt6_packages=(
    libgl-dev qmake6 qt6-base-dev qt6-declarative-dev qt6-svg-dev qt6-tools-dev
    qt6-tools-dev-tools
)
build_packages=(cmake fonts-dejavu-core g++ make ninja-build pkg-config)

# With VANTORSLIDER_QT=6 a command works on the build for Qt 6, whose presets and
# folders have this ending.
if [ "${VANTORSLIDER_QT:-5}" = 6 ]; then
    ending=-qt6
    build_packages+=("${qt6_packages[@]}")
else
    ending=
    build_packages+=("${qt5_packages[@]}")
fi

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
