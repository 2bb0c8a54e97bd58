#!/usr/bin/env bash
# The keypad alone writes Korean, letters and digits on a running phone.
. "$(dirname "$0")/support.sh"

phoneui --empty --no-peers --script /dev/null
printf '[Input]\nMultiTapTime=150\n' >>"$PHONE_HOME/config/system.conf"
cd "$work"
phoneui --no-peers --language ko_KR --script "$here/input.keys"
if [ -n "${PHONE_PICTURES:-}" ]; then
    mkdir -p "$PHONE_PICTURES"
    for picture in korean digits; do cp $picture.png "$PHONE_PICTURES/system-input-$picture.png"; done
fi
