#!/usr/bin/env bash
# Usage: check_scripts.sh SOURCE_DIR WORK_DIR
# The scripts wait for another apt, say what they do, and go on where they were interrupted: tried
# with programs in the place of Debian's.
set -euo pipefail
source=$1
work=$2
rm -rf "$work"
mkdir -p "$work/programs" "$work/tree"

fail() { echo "$*" >&2; exit 1; }

# program NAME: one that takes the place of Debian's, from standard input.
program() {
    { echo '#!/bin/bash'; cat; } >"$work/programs/$1"
    chmod +x "$work/programs/$1"
}
export WORK=$work PATH=$work/programs:$PATH

echo "== another apt is running"
program sudo <<<'exec "$@"'
program sleep <<<'command -p sleep 0.01'
program dpkg-query <<<'exit 1'
program apt-get <<'END'
echo "$*" >>"$WORK/apt"
if [ "$(wc -l <"$WORK/apt")" -lt 3 ]; then
    echo "E: Could not get lock /var/lib/apt/lists/lock. It is held by process 1 (apt)" >&2
    exit 100
fi
echo "Setting up some-package (1.0) ..."
END
install() { bash -c 'set -euo pipefail; . "$0/scripts/packages.sh"; install_packages some-package' "$source"; }
install 2>"$work/messages" || fail "does not wait: $(cat "$work/messages")"
[ "$(grep -c '^Waiting for another apt' "$work/messages")" = 1 ] || fail "does not say that it waits"
grep -q 'Could not get lock' "$work/messages" && fail "complains of what has passed"
grep -q '^  installed some-package' "$work/messages" || fail "does not say what it installs"
grep -q ' DPkg::Lock::Timeout=[1-9].* install ' "$work/apt" || fail "apt does not wait for another dpkg"

echo "== another dpkg is running, for which apt waits by itself"
program apt-get <<'END'
[[ $* == *" install "* ]] || exit 0
for _ in 1 2 3; do
    echo "Waiting for cache lock: Could not get lock /var/lib/dpkg/lock-frontend. It is held by process 1 (apt)..."
done
echo "Setting up some-package (1.0) ..."
END
install 2>"$work/messages" || fail "does not wait: $(cat "$work/messages")"
[ "$(grep -c '^Waiting for another apt' "$work/messages")" = 1 ] || fail "does not say that apt waits"

echo "== apt fails otherwise"
program apt-get <<<'echo "E: No such package" >&2; exit 100'
! install 2>"$work/messages" || fail "succeeds without apt"
grep -q '^E: No such package' "$work/messages" || fail "does not say why apt fails"

echo "== a test is skipped"
mkdir -p "$work/tested/build/dev"
cp -r "$source/scripts" "$work/tested/scripts"
program dpkg-query <<<'echo installed'
program cmake <<<':'
program ctest <<'END'
while [ "$1" != --output-junit ]; do shift; done
cp "$WORK/results" "$2"
END
cat >"$work/results" <<'END'
<testsuite tests="3">
	<testcase name="Some.Passes" status="run"/>
	<testcase name="Package.IsSkipped" classname="Package.IsSkipped" status="notrun">
		<skipped message="SKIP_REGULAR_EXPRESSION_MATCHED"/>
	</testcase>
	<testcase name="Some.PassesToo" status="run"/>
</testsuite>
END
tests() { "$work/tested/scripts/test" >"$work/output" 2>"$work/messages"; }
! tests || fail "takes a skipped test for one that passes"
[ "$(grep -c '^  ' "$work/messages")" = 1 ] || fail "names other tests: $(cat "$work/messages")"
grep -qx '  Package.IsSkipped' "$work/messages" || fail "does not name the skipped test"
sed -i '/skipped/d' "$work/results"
tests || fail "fails although no test was skipped: $(cat "$work/messages")"

echo "== the building of packages is interrupted"
program dpkg-query <<<'echo installed'
program dpkg-parsechangelog <<<'echo 1.0.0'
program dpkg-checkbuilddeps <<<':'
program lintian <<<':'
program dpkg-buildpackage <<'END'
echo "$*: $(ls -d obj-* 2>/dev/null) $(cat source)" >>"$WORK/builds"
[[ $* == *-b* ]] || exit 0
mkdir -p obj-some
[ -e "$WORK/ready" ] || exit 130
touch ../some_1.deb ../some-dbgsym_1.deb
END
cp -r "$source/scripts" "$work/tree/scripts"
packages() { "$work/tree/scripts/debian-packages" >"$work/output" 2>"$work/messages"; }
# expect_builds LINE...: how packages were built, with what in the folder.
expect_builds() {
    diff <(printf '%s\n' "$@") "$work/builds" || fail "builds otherwise than expected (>)"
    rm "$work/builds"
}
echo first >"$work/tree/source"
! packages || fail "succeeds although it is interrupted"
expect_builds "-us -uc -S:  first" "-us -uc -b -nc:  first"
! packages || fail "succeeds although it is interrupted"
expect_builds "-us -uc -S:  first" "-us -uc -b -nc: obj-some first"
grep -q '^Going on' "$work/messages" || fail "does not say that it goes on"
echo second >"$work/tree/source"
touch "$work/ready"
packages || fail "$(cat "$work/messages")"
expect_builds "-us -uc -S:  second" "-us -uc -b -nc:  second"
[ "$(cat "$work/output")" = "$work/tree/build/debian/some_1.deb" ] ||
    fail "does not list the packages: $(cat "$work/output")"
[ "$(cd "$work/tree/build/debian" && ls ./*.deb)" = ./some_1.deb ] || fail "mixes debug symbols in"
packages || fail "$(cat "$work/messages")"
expect_builds "-us -uc -S:  second" "-us -uc -b -nc:  second"
sed -i 's/ ..\/some-dbgsym_1.deb//' "$work/programs/dpkg-buildpackage"
packages || fail "needs packages of debug symbols: $(cat "$work/messages")"
rm "$work/builds"

echo "== something takes long"
logged() { bash -c '. "$0/scripts/progress.sh"; logged "$@"' "$source" "$work/log" "$@" 2>"$work/messages"; }
program long <<'END'
echo "at one half"
for _ in {1..600}; do # until that is told; sleep takes no time for the scripts here
    grep -q "at one half" "$WORK/messages" && break
    command -p sleep 0.1
done
END
logged "Doing something" long
grep -q '^Doing something; see ' "$work/messages" || fail "does not say what it does"
grep -q '^Doing something, .* s: at one half$' "$work/messages" || fail "does not say how far it is"
program failing <<<'echo "for this reason"; exit 3'
status=0
logged "Doing something" failing || status=$?
[ "$status" = 3 ] || fail "ends with $status where the command ended with 3"
grep -q '^for this reason$' "$work/messages" || fail "does not say why it failed"
