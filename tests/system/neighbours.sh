#!/usr/bin/env bash
# Messages and program keys on a running phone; what was kept is there after the next start.
. "$(dirname "$0")/support.sh"

cd "$work"
phoneui --empty --no-peers --platform offscreen --script "$here/neighbours.keys"
tones() { find "$PHONE_HOME/ringtones/basicring" -name '*.wav' -size +30k | wc -l; }
[ "$(tones)" -eq 7 ] || fail "the ring tones"
rm "$PHONE_HOME/ringtones/basicring/Bell.wav"

start_phone --no-peers
phonectl launch message
phonectl expect rows 5552
phonectl key Esc
phonectl launch aom
phonectl expect rows "Anna Adams"
phonectl key Soft3
phonectl expect title "Key Module"
stop_phone
[ "$(tones)" -eq 6 ] || fail "a tone that its owner removed is there again"
