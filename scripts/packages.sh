# Sourced by the other scripts: installs what they need from Debian.

# Debian packages per purpose.
packages_run="g++ cmake ninja-build libpugixml-dev libboost-dev libboost-system-dev libcli11-dev libfmt-dev"
packages_test="$packages_run libgtest-dev librapidcheck-dev binutils libxml2-utils pkgconf"
packages_bench="$packages_run libbenchmark-dev"
packages_reference="$packages_run doxygen"
packages_check="$packages_test $packages_reference clang clang-tidy clang-format libclang-rt-14-dev cppcheck valgrind gcovr git"

# install_packages PACKAGE...: installs those that are missing, and says so.
install_packages() {
    local missing=() package
    for package in "$@"; do
        [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" = installed ] ||
            missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0

    local as_root=()
    if [ "$(id -u)" != 0 ]; then
        if ! command -v sudo >/dev/null; then
            echo "These Debian packages are missing: ${missing[*]}" >&2
            echo "Install them, or run this script as root or where sudo is available." >&2
            return 1
        fi
        as_root=(sudo)
    fi
    echo "Installing from Debian: ${missing[*]}" >&2
    "${as_root[@]}" apt-get update -qq >&2 &&
        "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
            apt-get install -y -qq --no-install-recommends "${missing[@]}" >&2
}
