# Sourced by the commands: the Debian packages that each purpose takes, and their installation.

build_packages="cmake ninja-build googletest"
linux_packages="g++ pkgconf qt6-base-dev qt6-wayland libsdl2-dev fonts-liberation"
windows_packages="g++-mingw-w64-x86-64-posix"
wine_packages="wine wine64 fonts-wine"
display_packages="xvfb xdotool imagemagick python3 strace"
fuzz_packages="clang libclang-rt-14-dev"
packaging_packages="appstream debhelper desktop-file-utils fakeroot imagemagick librsvg2-bin lintian nsis"
bench_packages="kbruch tuxmath python3-numpy python3-xlib"

# Installs what is missing of the named packages, or names the one line that does.
need() {
    local package missing=() as_root=()
    for package in "$@"; do
        [[ $(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null) == installed ]] || missing+=("$package")
    done
    ((${#missing[@]})) || return 0

    if ((EUID != 0)); then
        as_root=(sudo)
        [[ -t 0 ]] || as_root+=(-n)
        if ! "${as_root[@]}" true 2>/dev/null; then
            echo "Packages are missing. Please run, as root: apt-get install --no-install-recommends ${missing[*]}" >&2
            exit 1
        fi
    fi
    echo "Installing ${missing[*]}"
    "${as_root[@]}" apt-get -qq update
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get -qq -y -o Dpkg::Use-Pty=0 install --no-install-recommends "${missing[@]}" >/dev/null </dev/null
}

# Configures a preset and builds targets of it, all of them by default.
build() {
    local preset=$1 options=()
    (($# == 1)) || options+=(--target "${@:2}")
    [[ -t 1 ]] || options+=(-- --quiet)
    echo "Building $preset"
    cmake --preset "$preset" >/dev/null
    cmake --build --preset "$preset" "${options[@]}"
}
