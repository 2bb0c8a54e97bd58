#!/usr/bin/env bash
# A call, from the datagram to the history: the phone with the processes beside it, and what stays after a restart.
. "$(dirname "$0")/support.sh"

# dial NUMBER NAME: the request of an application to the call manager, one datagram (texts below 128 bytes).
text() { printf '\\0\\%03o%s' "$(printf %s "$1" | wc -c)" "$1"; }
port() { sed -n '/^\[CM\]/,/^\[/s/^Port=//p' "$PHONE_HOME/config/ipc.conf"; }
dial() {
    local signature='ui2cm_svc_dialer(int,str,str,str,str,int,int)'
    # shellcheck disable=SC2059
    printf "CM/UI\\0$signature\\0\\0\\0\\0\\0$(text NORMAL)$(text "$1")$(text "$2")$(text AUDIO)\\0\\0\\0\\002\\377\\377\\377\\377" \
        >"/dev/udp/127.0.0.1/$(port)"
}

phoneui --empty --no-peers --script /dev/null
[ "$(port)" = 0 ] || fail "a port without a call manager"
printf '[Dial]\nAlertTime=50\nAnswerTime=50\nBusyTime=1000\n' >"$PHONE_HOME/config/cm.conf"
start_phone
phonectl expect softkeys Contacts History Messages Keys

dial 5551 'Zoë Łukasik 김'
phonectl expect softkeys '' '' '' End
phonectl expect title Call
# Escape leaves the call alone, and the home screen has the way back.
phonectl key Esc
phonectl expect softkeys Contacts History Call Keys
phonectl key Soft3
phonectl expect screen Call
phonectl key Soft4
phonectl expect sent CM 'ui2cm_svc_hangup()'
phonectl expect softkeys Contacts History Messages Keys

# A busy number goes by itself.
dial '77*00' ''
phonectl expect screen Call
phonectl expect screen Idle

# The history of both stands after a restart, and calls again.
stop_phone
[ "$(port)" = 0 ] || fail "the port of a call manager that has gone"
start_phone
phonectl key Soft2
phonectl expect rows '77*00' 'Zoë Łukasik 김'
phonectl key Down Soft1
phonectl expect sent CM 'ui2cm_svc_dialer(int,str,str,str,str,int,int)' 0 NORMAL 5551
phonectl expect screen Call
phonectl key Soft4
phonectl expect screen History
phonectl expect rows 'Zoë Łukasik 김' '77*00' 'Zoë Łukasik 김'
phonectl expect title 'History | All (1/3)'
phonectl send history 'viewDetail(str)' 5551
phonectl expect title 'History | Zoë Łukasik 김 (1/2)'
phonectl key Esc
phonectl expect screen Idle
stop_phone

# A phone that is killed takes its processes along.
start_phone
peers=$(ps -o pid= --ppid "$phone")
[ -n "$peers" ] || fail "no process beside the phone"
kill -KILL "$phone"
wait "$phone" 2>/dev/null || true
phone=
for each in $peers; do timeout 5 tail --pid="$each" -f /dev/null || fail "a process outlives its phone"; done
