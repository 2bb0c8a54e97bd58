#!/usr/bin/env bash
# Searching people on a running phone, for all who ask for it.
. "$(dirname "$0")/support.sh"

card() { printf 'BEGIN:VCARD\r\nVERSION:3.0\r\nFN:%s\r\n' "$1"; shift; printf 'TEL:%s\r\n' "$@"; printf 'END:VCARD\r\n'; }
phoneui --empty --script /dev/null
{ card 'Kim Min' 0100 0200; card Kimberly 0150; card 김민수 0300; card Zoe 0400; } | phonebook import - >/dev/null 2>&1

cd "$work"
phoneui --no-peers --platform offscreen --script "$here/search.keys"
[[ $(phonebook list) == *Kimberly*4711* ]] || fail "the number was not added: $(phonebook list)"
