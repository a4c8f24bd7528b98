# Sourced by the other scripts: says what they do while it takes minutes.

# logged LOG WHAT COMMAND...: says what it is about to do, runs the command with all its output in
# the file LOG, says every 20 seconds how far that is, and shows its end when the command fails.
logged() {
    local log=$1 what=$2 status=0 reporter
    shift 2
    echo "$what; see $log" >&2
    : >"$log"
    report_on "$log" "$what" &
    reporter=$!
    "$@" >"$log" 2>&1 || status=$?
    kill "$reporter" 2>/dev/null || true
    wait "$reporter" 2>/dev/null || true
    [ "$status" = 0 ] || { tail -n 50 "$log" >&2; return "$status"; }
}

# The time and the last line of a log, as long as the script runs (which may be interrupted).
report_on() {
    local log=$1 what=$2 started=$SECONDS naps=0
    while sleep 1 && kill -0 $$ 2>/dev/null; do
        naps=$((naps + 1))
        [ $((naps % 20)) != 0 ] ||
            echo "$what, $((SECONDS - started)) s: $(tail -n 1 "$log" | tr -d '\r' | cut -c 1-100)" >&2
    done
}
