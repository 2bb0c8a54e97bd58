#!/usr/bin/env bash
# A mobile device comes and goes, and contacts are imported, while the phone runs.
. "$(dirname "$0")/support.sh"

card() { printf 'BEGIN:VCARD\r\nVERSION:3.0\r\nFN:%s\r\nTEL;TYPE=CELL:%s\r\nEND:VCARD\r\n' "$1" "$2"; }
card 'Local One' 100 >"$work/local.vcf"
{ card 'Aaron Mobile' 201 && card '박영희' 202; } >"$work/device.vcf"

start_phone --empty
phonectl key Soft1
phonectl expect title 'Contacts | All (0/0)'
phonebook import "$work/local.vcf" >/dev/null 2>&1
phonectl expect rows 'Local One'
wpsm connect "$work/device.vcf" >/dev/null 2>&1
phonectl expect rows 'Aaron Mobile' 'Local One' '박영희'
phonectl key Soft3
phonectl expect softkeys '' 'Add Contact' '' 'Delete All'
wpsm disconnect >/dev/null 2>&1
phonectl expect rows 'Local One'
phonectl expect title 'Contacts | All (1/1)'

# A device whose file is broken or empty changes nothing.
wpsm connect "$work/device.vcf" >/dev/null 2>&1
: >"$work/empty.vcf"
! wpsm connect "$work/empty.vcf" 2>/dev/null || fail "an empty file is no device"
phonectl expect size 3
stop_phone
