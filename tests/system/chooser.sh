#!/usr/bin/env bash
# With a provisioned phonebook the phone opens on the chooser, without it on the grid.
. "$(dirname "$0")/support.sh"

phoneui --empty --script /dev/null
printf '[Info]\nCount=-1\n' >"$PHONE_HOME/config/phonebook.conf"
start_phone
phonectl key Soft1
phonectl expect title Contacts
phonectl expect rows 'Personal Phonebook' 'System Phonebook'
phonectl expect softkeys '' '' '' ''
phonectl send contact 'api2ui_noti_contact_changed()' # leaves it in front
phonectl expect rows 'Personal Phonebook' 'System Phonebook'
phonectl key Ok
phonectl expect title 'Contacts | All (0/0)'
phonectl key Soft3 Esc # leaves managing, and the grid
phonectl expect rows 'Personal Phonebook' 'System Phonebook'
phonectl key Esc
phonectl expect screen Idle
stop_phone

# Two phones in one home cannot be; in two they can.
start_phone
! phoneui --script /dev/null 2>/dev/null || fail "a second phone in the same home"
phoneui --home "$work/other" --empty --script /dev/null
phonectl expect screen Idle
