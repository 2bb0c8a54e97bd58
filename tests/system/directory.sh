#!/usr/bin/env bash
# The directory on a running phone, with its server and its HTTP client: over HTTP, over HTTPS, and with faults.
. "$(dirname "$0")/support.sh"

server=
stop_server() {
    [ -z "$server" ] || kill "$server"
    server=
}
trap 'stop_server; finish' EXIT

# serve TYPE PROGRAM ARG...: starts a server that says its port, and provisions the phone for it.
serve() {
    stop_server
    : >"$work/port"
    "${@:2}" >"$work/port" &
    server=$!
    until [ -s "$work/port" ]; do sleep 0.05; done
    local port=$(<"$work/port") address=127.0.0.1
    [ "$1" = https ] || address+=:$port # only HTTPS has a port of its own
    printf '[Prov_Info]\nId=me\nLoginMode=1\n[Directory_svc]\nType=%s\nAddr=%s\nPort=%s\n' "$1" "$address" "$port" \
        >"$PHONE_HOME/config/phone_info.conf"
}

directory=(dservice --data "$work/people.csv" --port 0 --user me:secret)
mkdir -p "$PHONE_HOME/config"
printf '[Prov]\nPassword=secret\n' >"$PHONE_HOME/config/secret.ini"
echo name,number,type,position,department,mobile >"$work/people.csv"
for i in $(seq -w 45); do echo "Person $i,50$i,Office,Clerk,Sales,070$i" >>"$work/people.csv"; done

# whole_road OPTION...: all that a person does with the directory, on a phone of its own.
whole_road() {
    start_phone "$@" --platform offscreen
    phonectl run "$here/directory.keys"
    phonectl key Soft3 Esc
    stop_phone
    phonebook list | grep -q 'Anna.*5044.*5044' || fail "the saved numbers"
}
serve http "${directory[@]}"
whole_road --empty

openssl req -x509 -newkey rsa:2048 -nodes -days 2 -subj /CN=127.0.0.1 -addext subjectAltName=IP:127.0.0.1 \
    -keyout "$work/key.pem" -out "$PHONE_HOME/config/authority.pem" 2>/dev/null
printf '[Tls]\nAuthority=config/authority.pem\n' >"$PHONE_HOME/config/xcid.conf"
tls=("${directory[@]}" --tls "$PHONE_HOME/config/authority.pem" "$work/key.pem")
serve https "${tls[@]}"
rm "$PHONE_HOME"/data/contacts.db*
whole_road

start_phone --platform offscreen
phonectl key Soft4 Soft1
phonectl expect screen SearchDir
phonectl text person
sleep 0.1

# Whatever goes wrong, the form stays as it is, and the log says why.
nothing_comes() {
    phonectl expect screen SearchDir
    phonectl key Soft4
    for _ in $(seq 100); do
        [ "$(grep -c 'The fetch of' "$work/log")" -lt "$1" ] || break
        sleep 0.1
    done
    [ "$(grep -c 'The fetch of' "$work/log")" -eq "$1" ] || fail "the reason in the log"
    ! grep -q secret "$work/log" || fail "the password in the log"
    phonectl expect screen SearchDir
}
printf '[Prov]\nPassword=wrong\n' >"$PHONE_HOME/config/secret.ini"
nothing_comes 1
stop_server
nothing_comes 2
serve https "${tls[@]}"
sed -i s/127.0.0.1/localhost/ "$PHONE_HOME/config/phone_info.conf"
nothing_comes 3 # the certificate is for another name
printf '[Limits]\nTime=1500\nSize=1000000\n' >"$PHONE_HOME/config/xcid.conf"
serve https "${tls[@]}"
nothing_comes 4 # nobody knows its authority
[ "$(grep -c 'its certificate is refused' "$work/log")" -eq 2 ] || fail "a certificate that nobody checks"
fetches=4
for fault in cut empty huge drip; do
    serve http python3 "$here/evilserver.py" $fault
    nothing_comes $((++fetches))
done
for reason in 'it is cut off' 'it is empty' 'it is longer than 1000000 bytes' 'it takes too long'; do
    grep -q "The fetch of .*$reason" "$work/log" || fail "the log tells nothing of: $reason"
done
printf '[Prov]\nPassword=secret\n' >"$PHONE_HOME/config/secret.ini"
serve http "${directory[@]}"
phonectl key Soft4
phonectl expect title "Directory Service | 1/3page"
phonectl key Esc

# Only a file of the phone's own is an answer. It is read and gone, and opens nothing once the form is left.
respond() { phonectl send contact 'http2ui_directory_service_response(str,int)' "$1" 0; }
foreign=$work/foreign.xml own=$PHONE_HOME/run/directory-AbCdEf.xml
echo '<d><display count="1"/><item><data><type>name</type></data></item></d>' | tee "$foreign" >"$own"
respond "$foreign"
phonectl expect screen SearchDir
[ -s "$foreign" ] || fail "a file of somebody else's"
phonectl key Esc
phonectl expect title Home
respond "$own"
phonectl expect title Home
[ ! -e "$own" ] || fail "the answer to a form that was left"
