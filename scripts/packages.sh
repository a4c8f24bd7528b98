# Sourced by the other scripts: installs what they need from Debian.

# Debian packages per purpose.
libraries_run="libpugixml-dev libboost-dev libboost-system-dev libcli11-dev libexpat1-dev libfmt-dev libxlsxwriter-dev nlohmann-json3-dev"
libraries_test="$libraries_run libgtest-dev librapidcheck-dev"
packages_run="g++ cmake ninja-build $libraries_run"
packages_test="$packages_run $libraries_test binutils libxml2-utils pkgconf python3-jsonschema tidy mandoc git xz-utils zsh fish"
packages_bench="$packages_run libbenchmark-dev python3 valgrind"
packages_reference="$packages_run doxygen"
packages_check="$packages_test $packages_reference clang clang-tidy clang-format libclang-rt-14-dev cppcheck valgrind gcovr"
packages_full_check="$packages_test clang"
packages_gis="$packages_run gdal-bin python3-geopandas"
packages_xlsx="$packages_run libreoffice-calc-nogui"
packages_engines="$packages_run gdal-bin jq postgresql postgresql-15-postgis-3 sqlite3"
packages_sarif="$packages_run python3-jsonschema"
packages_web="cmake make ninja-build emscripten node-acorn dpkg-dev"
headers_web="libboost-dev libcli11-dev nlohmann-json3-dev" # of libraries that need no compiling
sources_web="pugixml fmtlib expat zlib libxlsxwriter" # source packages
packages_web_test="$packages_run chromium fonts-dejavu-core"
packages_npm="nodejs npm" # where npm does not come from elsewhere
packages_libcxx="libc++-dev libc++abi-dev googletest dpkg-dev"
packages_cross="cmake ninja-build qemu-user" # and the compiler for the processor
packages_abi="$packages_run abigail-tools"
packages_debian="build-essential dpkg-dev debhelper lintian git"
packages_release="$packages_run git xz-utils"
packages_reproducible="$packages_debian diffoscope-minimal faketime locales"
packages_debian_test="$packages_debian debootstrap"

# What a compiler for another processor brings along under other names.
packages_of_compiler="libc6 libc6-dev libgcc-s1 libstdc++6 libstdc++-12-dev"

# install_packages PACKAGE...: installs those that are missing, and says so.
install_packages() {
    local missing=() package
    for package in "$@"; do
        [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" = installed ] ||
            missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0

    if [ "$(id -u)" != 0 ] && ! command -v sudo >/dev/null; then
        echo "These Debian packages are missing: ${missing[*]}" >&2
        echo "Install them, or run this script as root or where sudo is available." >&2
        return 1
    fi
    echo "Installing from Debian, which may take minutes: ${missing[*]}" >&2
    apt_get update && apt_get install -y --no-install-recommends "${missing[@]}"
}

# install_build_dependencies FOLDER: installs what the Debian package in a folder is built with.
install_build_dependencies() {
    echo "Installing from Debian what $1 is built with, which may take minutes" >&2
    apt_get update && apt_get build-dep -y --no-install-recommends "$1"
}

# tell_what_apt_does: of what apt-get writes, what it installs, and that it waits for another one.
tell_what_apt_does() {
    local words told=""
    while read -r -a words; do
        case "${words[*]:0:2}" in
            "Setting up") echo "  installed ${words[2]}" ;;
            "Waiting for")
                [ -n "$told" ] || echo "Waiting for another apt to end, up to ten minutes"
                told=yes ;;
        esac
    done
}

# apt_get ARGUMENT...: as root, with a line for each package. Waits for another apt, for example one
# that the system started by itself, up to ten minutes. apt does so by itself when it installs, but
# neither when it fetches the lists nor the packages.
apt_get() {
    local as_root=() started=$SECONDS told="" errors status
    [ "$(id -u)" = 0 ] || as_root=(sudo)
    errors=$(mktemp)
    while true; do
        status=0
        "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive LC_ALL=C.UTF-8 \
            apt-get -q -o DPkg::Lock::Timeout=600 -o Dpkg::Use-Pty=0 "$@" 2>"$errors" |
            tell_what_apt_does >&2 || status=$?
        if [ "$status" = 0 ] || [ $((SECONDS - started)) -ge 600 ] ||
            ! grep -q "Could not get lock" "$errors"; then
            break
        fi
        [ -n "$told" ] || echo "Waiting for another apt to end, up to ten minutes" >&2
        told=yes
        sleep 3
    done
    cat "$errors" >&2
    rm -f "$errors"
    return "$status"
}
