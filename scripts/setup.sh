# Sourced by the commands: the Debian packages that each purpose takes, and their installation.

build_packages="cmake g++ googletest ninja-build"
linux_packages="fonts-liberation libsdl2-dev pkgconf qt6-base-dev qt6-wayland"
windows_packages="g++-mingw-w64-x86-64-posix"
windows32_packages="g++-mingw-w64-i686-posix"
web_packages="emscripten fonts-liberation2 librsvg2-bin python3-brotli python3-fonttools"
wine_packages="fonts-wine wine wine64"
display_packages="imagemagick python3 strace xdotool xvfb"
reader_packages="at-spi2-core dbus gir1.2-atspi-2.0 python3-gi"
browser_packages="chromium chromium-driver chromium-sandbox firefox-esr python3-selenium webkit2gtk-driver"
clang_packages="clang clang-format clang-tidy libclang-rt-14-dev"
packaging_packages="appstream build-essential debhelper desktop-file-utils fakeroot imagemagick librsvg2-bin lintian nsis zip"
art_packages="librsvg2-bin pngquant python3 sox"
bench_packages="jsxgraph kbruch python3-numpy python3-xlib tuxmath"

# Installs what is missing of the named packages. Where ONZE_NO_INSTALL=1 forbids it, or the user may not, it names the
# line that does and ends; on a system without Debian's tools it only tells what is needed.
need() {
    local package missing=() as_root=()
    if ! command -v dpkg-query >/dev/null; then
        echo "Not checked, for want of dpkg-query: this needs what Debian calls $*" >&2
        return
    fi
    for package in "$@"; do
        [[ $(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null) == installed ]] || missing+=("$package")
    done
    ((${#missing[@]})) || return 0

    if ((EUID != 0)); then
        as_root=(sudo)
        [[ -t 0 ]] || as_root+=(-n)
    fi
    if [[ ${ONZE_NO_INSTALL:-0} != 0 ]] || ! command -v apt-get >/dev/null || ! "${as_root[@]}" true 2>/dev/null; then
        echo "Packages are missing. Please run, as root: apt-get install --no-install-recommends ${missing[*]}" >&2
        exit 1
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
    cmake --preset "$preset" --no-warn-unused-cli >/dev/null
    cmake --build --preset "$preset" "${options[@]}"
}

# What npm has and Debian has not, in the versions of tests/acceptance/package-lock.json: build/npm/node_modules.
need_from_npm() {
    command -v npm >/dev/null || need npm
    mkdir -p build/npm
    if [[ -e build/npm/node_modules/.package-lock.json ]] &&
        cmp -s {tests/acceptance,build/npm}/package-lock.json; then
        return
    fi
    cp tests/acceptance/package{,-lock}.json build/npm
    npm ci --prefix build/npm --ignore-scripts --no-audit --no-fund --silent
}
