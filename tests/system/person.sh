#!/usr/bin/env bash
# A person is added, found, called, written to and edited with keys alone, stands after a restart, and is deleted.
. "$(dirname "$0")/support.sh"

phoneui --empty --no-peers --script /dev/null
printf '[Input]\nMultiTapTime=150\n' >>"$PHONE_HOME/config/system.conf"
printf '[Dial]\nAlertTime=50\nAnswerTime=50\n' >"$PHONE_HOME/config/cm.conf"
printf '[Prov_Info]\nId=4711\n' >"$PHONE_HOME/config/phone_info.conf"
cd "$work"
phoneui --script "$here/person.keys"

start_phone
line=$(phonebook list)
for part in 'Kim Min' 0101234 555 team ham; do
    [[ $line == *"$part"* ]] || fail "the list after the restart lacks $part: $line"
done
phonectl key Soft1
phonectl expect title 'Contacts | All (1/1)'
phonectl key Soft3
phonectl expect softkeys Edit 'Add Contact' Delete 'Delete All'
phonectl key Soft3
phonectl expect popup MessageBox
phonectl key Soft4
phonectl expect no popup
phonectl key Soft3
phonectl expect message 'Do you want to delete the contact?'
phonectl key Soft3
phonectl expect toast Deleted
phonectl key Ok
phonectl expect sent idle 'contactDeletedNumber(str)' 0101234
phonectl expect title 'Contacts | All (0/0)'

# All at once.
printf 'BEGIN:VCARD\r\nVERSION:3.0\r\nFN:%s\r\nTEL:1\r\nEND:VCARD\r\n' A B C D E F G | phonebook import - >/dev/null 2>&1
phonectl expect title 'Contacts | All (1/7)'
phonectl key Soft4
phonectl expect popup MessageBox
phonectl key Soft3
phonectl expect toast Deleted
phonectl key Ok
phonectl expect sent idle 'contactAllDelete()'
phonectl expect title 'Contacts | All (0/0)'
[ -z "$(phonebook list)" ] || fail "contacts are left"
stop_phone
