#!/usr/bin/env bash
# phonectl itself: what fails is told with its line and what is there instead; a script with a fault does nothing.
. "$(dirname "$0")/support.sh"

# fails CODE MESSAGE ARG...
fails() {
    local code=0
    phonectl "${@:3}" 2>"$work/said" || code=$?
    [ "$code" -eq "$1" ] && grep -qF -- "$2" "$work/said" || fail "${*:3} ends with $code: $(<"$work/said")"
}
start_phone --empty --no-peers
printf '# opens nothing\nkey Up\n\nexpect title Menu\nkey Soft1\n' >"$work/a.keys"
fails 1 'a.keys:4: expected title "Menu", found "Home"' run "$work/a.keys"
echo 'launch what' >"$work/a.keys"
fails 1 'a.keys:1: ' run "$work/a.keys"
for line in 'expect tittle x' 'sleep soon' watch 'keys Up' "text 'open"; do
    printf 'key Soft1\n%s\n' "$line" >"$work/a.keys"
    fails 2 a.keys:2: run "$work/a.keys"
done
for words in '' jump 'hold Up' 'press Up Down' 'expect selected first' 'run /none.keys' '--home /none key Up'; do
    # shellcheck disable=SC2086
    fails 2 phonectl: $words
done
fails 1 'is no number' send contact 'f(int)' seven
phonectl expect screen Idle

phonectl watch >"$work/pictures" 2>/dev/null &
watcher=$!
until [ -s "$work/pictures" ]; do sleep 0.1; done
stop_phone
! wait "$watcher" || fail "a watcher does not notice that the phone has gone"
[ "$(head -c 4 "$work/pictures")" = iVBO ] || fail "no PNG in base64"
