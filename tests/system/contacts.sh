#!/usr/bin/env bash
# 300 people are imported, then a script moves through them on a phone that starts for it and ends with it.
. "$(dirname "$0")/support.sh"

phoneui --help | grep -q -- --home || fail "the help"
python3 "$here/people.py" >"$work/people.vcf"
phoneui --empty --script /dev/null
phonebook import "$work/people.vcf" >"$work/report" 2>/dev/null || fail "the import"
grep -q 'read 302, added 300, skipped 2' "$work/report" || fail "counts: $(cat "$work/report")"
[ "$(phonebook list | wc -l)" -eq 300 ] || fail "the list has not 300 lines"

cd "$work"
phoneui --platform offscreen --script "$here/contacts.keys"
[ -s first-page.png ] || fail "no picture"
[ -z "${PHONE_PICTURES:-}" ] || { mkdir -p "$PHONE_PICTURES" && cp first-page.png "$PHONE_PICTURES/system-first-page.png"; }

# What is exported and imported again is the same.
phonebook export one.vcf
phoneui --home "$work/second" --empty --script /dev/null
phonebook --home "$work/second" import one.vcf >/dev/null 2>&1
diff <(phonebook list | cut -f 2- | sort) <(phonebook --home "$work/second" list | cut -f 2- | sort) >/dev/null ||
    fail "the second phone has other contacts"
