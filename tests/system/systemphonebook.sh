#!/usr/bin/env bash
# A provisioned phonebook of 5000 entries, in Korean bytes, is browsed by category and called with keys alone.
. "$(dirname "$0")/support.sh"

phoneui --empty --script /dev/null
awk 'BEGIN {
    print "[Info]\nCount=2000000000\nCharset=EUC-KR"
    for (i = 1; i <= 5000; ++i)
        printf "\n[Contact_%03d]\nName=\xb1\xe8, Nr %d\nNum=%d\nCategory=%s\nIndex=%d\n", i, i, 7000 + i, i % 2 ? "" : "Labor", 6000 - i
}' >"$PHONE_HOME/config/phonebook.conf"
cd "$work"
phoneui --script "$here/systemphonebook.keys"
