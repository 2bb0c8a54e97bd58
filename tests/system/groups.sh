#!/usr/bin/env bash
# Groups with keys alone: made, refused, edited with a bell, filled and emptied, deleted; every member stands where it
# belongs, also after a restart.
. "$(dirname "$0")/support.sh"

# groups_of NAME...: each stands in exactly the groups that follow its colon.
groups_of() {
    local each found
    for each in "$@"; do
        found=$(phonebook list | awk -F '\t' -v name="${each%%:*}" '$2 == name { print $4 }')
        [ "$found" = "${each#*:}" ] || fail "${each%%:*} is in '$found' instead of '${each#*:}'"
    done
}

phoneui --empty --no-peers --script /dev/null
printf '[Dial]\nAlertTime=50\nAnswerTime=50\n' >"$PHONE_HOME/config/cm.conf"
start_phone
phonectl run "$here/groups-made.keys"
phonectl sent | python3 -c '
import json, sys
sounds = [" ".join([m["command"], *m["args"][:1]]) for m in json.load(sys.stdin) if m["target"] == "sound"]
tones = sys.argv[1] + "/ringtones/basicring/"
sys.exit(sounds != ["play(str,str) " + tones + "Bell.wav", "stop()", "play(str,str) " + tones + "Chime.wav", "stop()"])
' "$PHONE_HOME" || fail "the tones under the cursor"

people() {
    local name
    for name in "$@"; do
        printf 'BEGIN:VCARD\r\nVERSION:3.0\r\nFN:%s\r\nTEL:1\r\nCATEGORIES:%s\r\nEND:VCARD\r\n' "${name%%:*}" "${name#*:}"
    done | phonebook import - >/dev/null 2>&1
}
people One:Chess Two:Choir,Chess First:Chess,Choir Three:Rowing,Choir,Chess Crew:Rowing Cox:Rowing
phonectl run "$here/groups-kept.keys"
expected=(One: Two:Choir First:Choir Three:Choir Crew: Cox: Zoe:)
groups_of "${expected[@]}"
stop_phone
start_phone
groups_of "${expected[@]}"
phonectl key Soft1
phonectl key Soft1
phonectl expect rows Unassigned Choir
phonectl key Ok
phonectl expect title 'Contacts | Unassigned(4)'
phonectl expect rows Cox Crew One
stop_phone
