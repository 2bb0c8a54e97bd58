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
for tone in Bell Chime; do
    phonectl expect sent sound 'play(str,str)' "$PHONE_HOME/ringtones/basicring/$tone.wav"
    phonectl expect sent sound 'stop()'
done

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
