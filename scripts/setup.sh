# What the scripts share: packages and builds. Sourced, not run.
# shellcheck shell=bash disable=SC2034 # the lists are for those who source it

build_packages=(cmake ninja-build g++ qt6-base-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools libqt6opengl6-dev
    libgl1-mesa-dev libcups2-dev libgnutls28-dev libpng-dev libqpdf-dev fonts-dejavu-core)
test_packages=(libgtest-dev poppler-utils qpdf cups cups-daemon cups-client fonts-noto-cjk xvfb openbox xdotool dbus at-spi2-core
    libatspi2.0-dev pkg-config qt6-translations-l10n libpam-wrapper groff-base zsh fish adwaita-qt6 qt6-image-formats-plugins
    xdg-desktop-portal xdg-desktop-portal-gtk bubblewrap python3-gi python3-gi-cairo gir1.2-gtk-3.0 gir1.2-gtk-4.0 x11-utils)
package_packages=(dpkg-dev debhelper cups fakeroot lintian mmdebstrap appstream desktop-file-utils git)
lint_packages=(clang-format-19 clang-tidy-19 shellcheck python3)

say() { printf '%s\n' "$*"; }

# The names of all packages that are there: their own, and those of packages that they took over.
installed_packages() {
    dpkg-query -W -f='${db:Status-Status} ${Package}, ${Provides}\n' 2>/dev/null |
        sed -n 's/^installed //p' | sed 's/ ([^)]*)//g; s/, */\n/g'
}

# Installs what is missing; says nothing when nothing is.
install_packages() {
    local missing
    mapfile -t missing < <(printf '%s\n' "$@" | grep -vxFf <(installed_packages))
    [ ${#missing[@]} -eq 0 ] && return
    if ! command -v apt-get >/dev/null; then
        say "Not a Debian machine: please install the counterparts of: ${missing[*]}"
        return
    fi
    local sudo=()
    [ "$(id -u)" -eq 0 ] || sudo=(sudo)
    say "Installing: ${missing[*]}"
    "${sudo[@]}" apt-get update -qq
    "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# The fuzz targets' compiler, its runtime, and what gives a finding its lines.
install_fuzz_packages() {
    install_packages clang llvm
    install_packages "libclang-rt-$(clang -dumpversion | cut -d. -f1)-dev"
}

# Configures and builds a preset; shows the compiler's words only when it fails.
build_preset() {
    local preset=$1 log
    shift
    log=$(mktemp)
    if [ ! -f "build/$preset/build.ninja" ]; then
        say "Configuring ($preset)"
        cmake --preset "$preset" >"$log" 2>&1 || { cat "$log"; rm -f "$log"; return 1; }
    fi
    cmake --build "build/$preset" -- -n "$@" 2>/dev/null | grep -q 'no work to do' || say "Building ($preset)"
    cmake --build "build/$preset" -- "$@" >"$log" 2>&1 || { cat "$log"; rm -f "$log"; return 1; }
    rm -f "$log"
}
