# The Debian packages that the house needs, and how to install those that are missing.
# Sourced by every script that builds or tries the program.

build_packages=(
    g++ cmake ninja-build ccache
    qt6-base-dev qt6-svg-dev libfontconfig-dev
    weasyprint python3-markdown fonts-liberation
    nlohmann-json3-dev
)
run_packages=(
    qt6-qpa-plugins qt6-translations-l10n
    fonts-liberation xdg-utils
)
package_packages=(
    dpkg-dev file librsvg2-bin
)
virtual_display_packages=(
    xvfb xdotool imagemagick
)
test_packages=(
    libgtest-dev libgmock-dev libbenchmark-dev libxcb1-dev
    xvfb xdotool imagemagick openbox x11-utils xrestop
    lintian desktop-file-utils appstream groff libgtk-3-bin
    at-spi2-core gir1.2-atspi-2.0 python3-gi python3 dbus-daemon
    libfaketime x11-xkb-utils python3-numpy python3-pil qt6-gtk-platformtheme
    cups-daemon cups-client poppler-utils
    clang libclang-rt-14-dev
)

bench_packages=(
    libbenchmark-dev libxcb1-dev binutils
    xvfb
)
# The same program on Windows: its compiler, and what runs it here.
windows_packages=(
    g++-mingw-w64-x86-64-posix wine64
)
windows_program_packages=(
    dpkg-dev librsvg2-bin imagemagick
)
windows_proof_packages=(
    ghostscript
)

long_test_packages=(
    clang-tidy
)

# Installs those of the given packages that are not there; by sudo where this is not root.
install_packages() {
    local missing=() package as_root=()
    for package in "$@"; do
        if [ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null)" != installed ]; then
            missing+=("$package")
        fi
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    if [ "$(id -u)" -ne 0 ]; then as_root=(sudo); fi
    echo "Installation de : ${missing[*]}"
    "${as_root[@]}" apt-get update -qq
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}
