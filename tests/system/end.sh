#!/usr/bin/env bash
# The phone is switched off wherever it stands, up to five windows deep: it ends in good order, and nothing is lost.
. "$(dirname "$0")/support.sh"

# ends EXPECTATION CLASS KEY...: presses keys in the contacts, and ends the phone when that shows.
ends() {
    start_phone --platform offscreen
    phonectl key Soft1
    phonectl expect screen Contact
    local key
    for key in "${@:3}"; do
        phonectl key "$key"
        sleep 0.05 # a person's pace: lists move the focus a little after a key
    done
    phonectl expect "$1" "$2"
    stop_phone
}

phoneui --empty --script /dev/null
printf 'BEGIN:VCARD\nVERSION:3.0\nFN:%s\nTEL:1\nCATEGORIES:Team\nEND:VCARD\n' Anna Bert >"$work/people.vcf"
phonebook import "$work/people.vcf"
people=$(phonebook list)
ends screen Contact
ends screen DetailsDial Ok
ends popup MessageBox Ok Soft3
ends screen GroupList_At_Contact Ok Soft4 Down Ok
ends popup InputPopup Ok Soft4 Down Ok Soft1
ends popup SelectPopup Ok Soft4 Soft1 Ok
ends popup SoundSelectPopup Soft1 Soft2 Down Ok
ends popup MessageBox Soft1 Down Ok Ok Soft3
ends toast Saved Ok Soft4 Soft4
[ "$(phonebook list)" = "$people" ] || fail "people are lost"
