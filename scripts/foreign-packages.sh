# Sourced by the scripts that need Debian packages which cannot be installed beside those in use:
# of another processor, of another version of a library, or sources. Installs nothing.

# private_apt ARCHITECTURE FOLDER COMMAND...: runs a command with an apt that has this machine's
# package sources, the architecture, and all its state in a folder, instead of those of the system.
# What is listed in FOLDER/status counts as installed.
private_apt() {
    local architecture=$1 folder=$2
    shift 2
    mkdir -p "$folder/lists/partial" "$folder/cache/archives/partial"
    [ -f "$folder/status" ] || : >"$folder/status"
    cat >"$folder/apt.conf" <<END
APT::Architecture "$architecture";
APT::Architectures { "$architecture"; };
APT::Install-Recommends "false";
APT::Sandbox::User "root";
Acquire::Languages "none";
Dir::State "$folder";
Dir::State::lists "$folder/lists";
Dir::State::status "$folder/status";
Dir::Cache "$folder/cache";
END
    APT_CONFIG=$folder/apt.conf "$@"
}

# unpack_packages ARCHITECTURE FOLDER PRESENT PACKAGE...: unpacks packages and all that they depend
# on, without what depends only on the packages PRESENT (one word with spaces), into a folder, once.
unpack_packages() {
    local architecture=$1 folder=$2 present=$3 package
    shift 3
    [ "$(cat "$folder/unpacked" 2>/dev/null)" != "$*" ] || return 0
    echo "Unpacking from Debian for $architecture into $folder: $*" >&2
    rm -rf "$folder"
    mkdir -p "$folder/apt"
    for package in $present; do
        printf 'Package: %s\nStatus: install ok installed\nArchitecture: %s\nVersion: 9:0\n' \
            "$package" "$architecture"
        printf 'Multi-Arch: same\nMaintainer: none\nDescription: comes with the compiler\n\n'
    done >"$folder/apt/status"
    # A mirror in the middle of its own update still serves most; what it lacks ends the next step.
    private_apt "$architecture" "$folder/apt" apt-get update -qq >&2 || true
    private_apt "$architecture" "$folder/apt" apt-get install -y -qq --download-only "$@" >&2
    for package in "$folder"/apt/cache/archives/*.deb; do
        dpkg-deb -x "$package" "$folder"
        # shellcheck disable=SC2016
        dpkg-deb --show --showformat='${Package} ${Version} ${source:Package} ${source:Version}\n' \
            "$package" >>"$folder/versions"
    done
    rm -rf "$folder/apt"
    echo "$*" >"$folder/unpacked"
}

# unpack_sources FOLDER PACKAGE...: unpacks source packages into FOLDER/NAME.
unpack_sources() {
    local folder=$1 architecture package version file
    shift
    architecture=$(dpkg --print-architecture)
    echo "Unpacking sources from Debian into $folder: $*" >&2
    rm -rf "$folder"
    mkdir -p "$folder/apt/sources.list.d"
    # Where the system gets its packages from, in either of the two formats.
    for file in /etc/apt/sources.list /etc/apt/sources.list.d/debian.*; do
        [ ! -f "$file" ] || sed 's/^deb /deb-src /; s/^Types:.*/Types: deb-src/' "$file" \
            >"$folder/apt/sources.list.d/debian.${file##*.}"
    done
    local from=(-o Dir::Etc::sourcelist=/dev/null
        -o "Dir::Etc::sourceparts=$folder/apt/sources.list.d")
    private_apt "$architecture" "$folder/apt" apt-get "${from[@]}" update -qq >&2 || true
    for package in "$@"; do
        for version in $(private_apt "$architecture" "$folder/apt" \
            apt-cache "${from[@]}" showsrc --only-source "$package" |
            sed -n 's/^Version: //p' | sort -rVu) none; do
            [ "$version" != none ] || { echo "No sources of $package can be fetched" >&2; return 1; }
            # A mirror may lack what it lists last; what is fetched is verified all the same.
            ! (cd "$folder" && private_apt "$architecture" "$folder/apt" apt-get "${from[@]}" \
                source -qq --download-only "$package=$version" >&2) || break
            echo "The sources of $package $version are not there; trying those before" >&2
        done
        dpkg-source --no-check -x "$folder/${package}_"*.dsc "$folder/$package" >&2
    done
}
