#!/usr/bin/env bash
# The keypad alone writes Korean, letters and digits on a running phone.
. "$(dirname "$0")/support.sh"

phoneui --empty --no-peers --script /dev/null
printf '[Input]\nMultiTapTime=150\n' >>"$PHONE_HOME/config/system.conf"
cd "$work"
phoneui --no-peers --language ko_KR --script "$here/input.keys"
for picture in korean digits; do
    [ -z "${PHONE_PICTURES:-}" ] || cp "$picture.png" "$PHONE_PICTURES/system-input-$picture.png"
done
