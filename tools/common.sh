# SPDX-License-Identifier: GPL-3.0-or-later
# Shared by run, test and tools/*: sourced, with the working directory at the repository root.

say() { printf '== %s\n' "$*"; }
die() { printf '%s: %s\n' "${0##*/}" "$*" >&2; exit 1; }

listed_packages() { sed -e 's/#.*//' -e '/^[[:space:]]*$/d' packaging/debian-packages.txt; }

# Prints the packages of the list that are not installed.
missing_packages() {
    local package
    for package in $(listed_packages); do
        [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" = installed ] \
            || printf '%s ' "$package"
    done
}

# Installs what the list names and the machine lacks; needs root or sudo only if something is missing.
install_missing() {
    command -v dpkg-query >/dev/null 2>&1 \
        || die "this machine has no dpkg; install what packaging/debian-packages.txt names by hand, then build with: cmake --preset release && cmake --build --preset release"
    local missing as_root=()
    missing=$(missing_packages)
    [ -n "$missing" ] || return 0
    say "Installing: $missing"
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null 2>&1 \
            || die "packages are missing and neither root nor sudo is at hand: apt-get install $missing"
        as_root=(sudo)
    fi
    "${as_root[@]}" apt-get update -q || die "apt-get update failed"
    # shellcheck disable=SC2086
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends $missing \
        || die "apt-get could not install: $missing"
}

# build PRESET [TARGET...]: configures and builds one preset of CMakePresets.json.
build() {
    local preset=$1
    shift
    say "Building the preset '$preset' in build/$preset"
    cmake --preset "$preset" || die "configuring the preset '$preset' failed; the message stands above"
    cmake --build --preset "$preset" ${1:+--target "$@"} \
        || die "building the preset '$preset' failed; the first error stands above"
}
