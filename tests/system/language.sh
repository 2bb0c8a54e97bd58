#!/usr/bin/env bash
# The language is chosen with keys, and stays after the next start.
. "$(dirname "$0")/support.sh"

cd "$work"
phoneui --empty --no-peers --platform offscreen --script "$here/language.keys"
start_phone --no-peers
phonectl expect softkeys Kontakte Anrufe Nachrichten Tasten
phonectl launch aom
phonectl expect title Tastenmodul
stop_phone
