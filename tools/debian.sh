# shellcheck shell=bash
# Sourced by run and test: the Debian packages that each needs, and what both do.

# shellcheck disable=SC2034 # the scripts that source this file use the lists
packages_run=(build-essential cmake fonts-liberation libexpected-dev ninja-build qt6-base-dev)
# shellcheck disable=SC2034
packages_tour=(
    at-spi2-core dbus-daemon gir1.2-atspi-2.0 imagemagick openbox python3 python3-gi x11-utils xclip
    xdotool xvfb
)
# shellcheck disable=SC2034
packages_test_linux=(desktop-file-utils shared-mime-info strace xauth)
# shellcheck disable=SC2034
packages_test_windows=(googletest wine wine64 xauth)
# shellcheck disable=SC2034
packages_test=(
    appstream clang clang-format clang-tidy desktop-file-utils git libbenchmark-dev
    libclang-rt-14-dev libgtest-dev librsvg2-bin libxcb1-dev lintian man-db
    pkgconf shared-mime-info strace
    util-linux
    xauth
)
# shellcheck disable=SC2034
packages_windows=(
    build-essential cmake debian-archive-keyring g++-mingw-w64-x86-64-posix icoutils libexpected-dev
    librsvg2-bin ninja-build perl python3 qt6-base-dev
)
# shellcheck disable=SC2034
packages_linux=(
    bison build-essential cmake debian-archive-keyring libatspi2.0-dev libexpected-dev libfontconfig-dev
    libfreetype-dev libxcb-icccm4-dev libxcb-image0-dev libxcb-keysyms1-dev libxcb-randr0-dev
    libxcb-render-util0-dev libxcb-render0-dev libxcb-shape0-dev libxcb-shm0-dev libxcb-sync-dev
    libxcb-util0-dev libxcb-xfixes0-dev libxcb-xinput-dev libxcb-xkb-dev libxcb1-dev meson ninja-build
    perl pkgconf python3 qt6-base-dev
)

# install_missing PACKAGE...: installs what is not there; asks for root only then.
install_missing() {
    local package missing=() root=()
    for package in "$@"; do
        dpkg-query -W -f '${db:Status-Abbrev}' "$package" 2>/dev/null | grep -q '^.i' ||
            missing+=("$package")
    done
    [[ ${#missing[@]} -eq 0 ]] && return
    echo "Installing Debian packages: ${missing[*]}"
    if [[ $EUID -ne 0 ]]; then
        command -v sudo >/dev/null ||
            fail "Please install these packages as root: apt-get install ${missing[*]}"
        root=(sudo)
    fi
    "${root[@]}" apt-get update -qq
    "${root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}"
}

# quietly LOG COMMAND...: runs the command with its output in the file LOG, and shows the end of
# that only when the command fails.
quietly() {
    local log=$1 status=0
    shift
    mkdir -p "$(dirname "$log")"
    "$@" >"$log" 2>&1 || status=$?
    if [[ $status -ne 0 ]]; then
        tail -n 60 "$log" >&2
        echo "Failed: $* (whole log: $log)" >&2
    fi
    return "$status"
}

fail() {
    echo "$1" >&2
    exit 1
}
