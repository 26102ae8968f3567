# Set-up shared by the commands of this folder; sourced, not run.
# shellcheck shell=bash

set -euo pipefail

say() {
    printf '== %s\n' "$*"
}

fail() {
    say "$@" >&2
    exit 1
}

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

qt5_packages=(
    libqt5svg5-dev qt5-qmake qtbase5-dev qtscript5-dev qttools5-dev qttools5-dev-tools
)
# The SVG plug-in, which reads the glyphs, has its own package since Debian 13.
qt6_packages=(
    libgl-dev qmake6 qt6-base-dev qt6-declarative-dev qt6-svg-dev 'qt6-svg-plugins|libqt6svg6'
    qt6-tools-dev qt6-tools-dev-tools
)
# Qt for Python with its generator, which needs the headers of its compiler.
pyside2_packages=(
    libclang-dev libpyside2-dev libshiboken2-dev python3-dev python3-pyside2.qttest
    python3-pyside2.qtwidgets shiboken2
)
pyside6_packages=(
    libclang-dev libpyside6-dev libshiboken6-dev python3-dev python3-pyside6.qttest
    python3-pyside6.qtwidgets shiboken6
)
build_packages=(cmake fonts-dejavu-core g++ make ninja-build pkg-config)

# With VANTORSLIDER_QT=6 a command works on the build for Qt 6. Its presets and
# folders have this suffix.
case ${VANTORSLIDER_QT:-5} in
5)
    ending=
    build_packages+=("${qt5_packages[@]}")
    python_packages=("${pyside2_packages[@]}")
    ;;
6)
    ending=-qt6
    build_packages+=("${qt6_packages[@]}")
    python_packages=("${pyside6_packages[@]}")
    ;;
*) fail "VANTORSLIDER_QT is $VANTORSLIDER_QT; it must be 5 or 6" ;;
esac

as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    else
        sudo "$@"
    fi
}

# Prints a title, runs the command, and shows its output only if it fails.
quietly() {
    local what=$1 start=$SECONDS output
    shift
    output=$(mktemp)
    printf '== %s: ' "$what"
    if ! "$@" >"$output" 2>&1; then
        printf 'failed\n'
        cat "$output"
        rm "$output"
        exit 1
    fi
    printf '%d s\n' $((SECONDS - start))
    rm "$output"
}

apt_install() {
    as_root env DEBIAN_FRONTEND=noninteractive LC_ALL=C \
        apt-get install -q --no-install-recommends "$@"
}

# Whether this Debian has the package.
has() {
    [ -n "$(apt-cache show "$1" 2>/dev/null)" ]
}

# Sets missing to those of the named Debian packages that are not installed, without
# duplicates. Of names joined by "|" it takes the first that this Debian has, or the last.
find_missing() {
    local names name
    missing=()
    for names in "$@"; do
        while [ "$names" != "${names#*|}" ] && ! has "${names%%|*}"; do
            names=${names#*|}
        done
        name=${names%%|*}
        if [ "$(dpkg-query -W -f='${db:Status-Status}' "$name" 2>/dev/null)" != installed ] \
            && [[ " ${missing[*]} " != *" $name "* ]]; then
            missing+=("$name")
        fi
    done
}

# Installs those of the named Debian packages that are missing, and first prints
# their number and size.
need() {
    local missing plan count fetch disk
    find_missing "$@"
    if [ ${#missing[@]} -eq 0 ]; then
        say "All packages are installed already: $(printf '%s\n' "$@" | sort -u | paste -sd ' ')"
        return
    fi
    say "Missing Debian packages: ${missing[*]}"
    [ -n "$(command -v apt-get)" ] || fail "There is no apt-get here: install the packages manually"
    [ "$(id -u)" -eq 0 ] || [ -n "$(command -v sudo)" ] \
        || fail "To install them, run this as root, or install sudo"

    quietly "Reading the lists of packages" as_root apt-get update
    find_missing "$@" # with the updated lists
    plan=$(apt_install --assume-no "${missing[@]}" 2>&1) || true
    count=$(sed -nE 's/.* ([0-9]+) newly installed.*/\1/p' <<<"$plan")
    fetch=$(sed -nE 's/^Need to get (.*) of archives.*/\1/p' <<<"$plan")
    disk=$(sed -nE 's/^After this operation, (.*) of additional.*/\1/p' <<<"$plan")
    if [ -z "$count" ]; then
        # Again, with visible output: apt-get only warns of an archive that it can't reach.
        as_root apt-get update || true
        fail "apt-get can't install them:"$'\n'"$plan"
    fi
    say "With what they need: $count packages, $fetch to fetch, $disk on the disk"
    if [ "$count" -gt 200 ]; then
        say "This is a first run: with the build 2 GB, and 5 to 10 minutes on two cores"
    fi
    quietly "Fetching them" apt_install -y --download-only "${missing[@]}"
    quietly "Installing them" apt_install -y "${missing[@]}"
}

# For commands that work on the last commit, not on the files of the working tree.
need_clone() {
    [ -e "$root/.git" ] || fail "$root is not a Git clone, and this command works on the last commit:" \
        "run it in a clone (git clone), or make the folder one (git init, git add, git commit)"
}

# Writes the last commit as a tar archive, even if another user owns the clone.
last_commit() {
    git -c safe.directory="$root" -C "$root" archive HEAD
}

# Configures and builds a preset of CMakePresets.json in build/<preset>.
# Further arguments are passed to the configuration.
build() {
    local preset=$1
    shift
    say "Building the preset $preset in build/$preset"
    (cd "$root" && cmake --preset "$preset" "$@" && cmake --build --preset "$preset")
}
