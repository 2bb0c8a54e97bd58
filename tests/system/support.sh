# For the system tests: a home of their own, the phone's programs on the path, and everything ended at the exit.
# $1 of each test is the folder of the programs.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
PATH=$1:$PATH
work=$(mktemp -d)
export PHONE_HOME=$work/home
phone=

finish() {
    [ -z "$phone" ] || kill "$phone" 2>/dev/null || true
    wait
    rm -rf "$work"
}
trap finish EXIT

fail() {
    printf 'FAILED: %s; the end of the log:\n' "$1" >&2
    tail -n 20 "$work/log" >&2 || true
    exit 1
}

# start_phone ARG...: starts a phone and waits until it answers.
start_phone() {
    phoneui "$@" 2>"$work/log" &
    phone=$!
    phonectl --wait screen >/dev/null || fail "the phone does not answer"
}

# stop_phone: ends it in good order; its log must hold no warning.
stop_phone() {
    kill "$phone"
    wait "$phone" || fail "the phone ended with $?"
    phone=
    ! grep -E ' (warning|error): ' "$work/log" || fail "warnings in the log"
}
