#!/usr/bin/env bash
# The directory on a running phone, with its server and its HTTP client: over HTTP, over HTTPS, and with faults.
. "$(dirname "$0")/support.sh"

server=
stop_server() {
    [ -z "$server" ] || kill "$server"
    server=
}
trap 'stop_server; finish' EXIT

# serve FILE...: starts the server and provisions the phone for it; a certificate and its key make it HTTPS.
serve() {
    dservice --data "$work/people.csv" --port 0 --user me:secret ${1:+--tls "$@"} >"$work/port" &
    server=$!
    until [ -s "$work/port" ]; do sleep 0.05; done
    port=$(<"$work/port")
    local address=127.0.0.1:$port type=http
    [ -z "${1:-}" ] || address=127.0.0.1 type=https
    printf '[Prov_Info]\nId=me\nLoginMode=1\n[Directory_svc]\nAddr=%s\nType=%s\nPort=%s\n' \
        "$address" "$type" "$port" >"$PHONE_HOME/config/phone_info.conf"
}

mkdir -p "$PHONE_HOME/config"
printf '[Prov]\nPassword=secret\n' >"$PHONE_HOME/config/secret.ini"
printf 'name,number,type,position,department,mobile\n' >"$work/people.csv"
for i in $(seq -w 45); do printf 'Person %s,50%s,Office,Clerk,Sales,070%s\n' "$i" "$i" "$i"; done >>"$work/people.csv"

serve
start_phone --empty --platform offscreen
phonectl run "$here/directory-search.keys"
phonectl run "$here/directory-entry.keys"
phonectl key Soft3 Esc
stop_phone
phonebook list | cut -f 2,3 | grep -q 'Anna.*5002.*5002' || fail "the saved numbers"

stop_server
openssl req -x509 -newkey rsa:2048 -nodes -days 2 -subj /CN=127.0.0.1 -addext subjectAltName=IP:127.0.0.1 \
    -keyout "$work/key.pem" -out "$PHONE_HOME/config/authority.pem" 2>/dev/null
printf '[Tls]\nAuthority=config/authority.pem\n' >"$PHONE_HOME/config/xcid.conf"
: >"$work/port"
serve "$PHONE_HOME/config/authority.pem" "$work/key.pem"
start_phone --platform offscreen
phonectl run "$here/directory-search.keys"
stop_phone

# Whatever goes wrong, the form stays as it is, and the log says why.
nothing_comes() {
    phonectl key Soft4
    for _ in $(seq 100); do
        [ "$(grep -c 'The fetch of' "$work/log")" -lt "$1" ] || break
        sleep 0.1
    done
    [ "$(grep -c 'The fetch of' "$work/log")" -eq "$1" ] || fail "the reason in the log"
    ! grep -q 'secret' "$work/log" || fail "the password in the log"
    phonectl expect screen SearchDir
}
start_phone --platform offscreen
phonectl key Soft4 Soft1
phonectl expect screen SearchDir
phonectl text person
sleep 0.1
printf '[Prov]\nPassword=wrong\n' >"$PHONE_HOME/config/secret.ini"
nothing_comes 1
stop_server
nothing_comes 2

# An answer counts if its file is one of the phone's own; it is read and gone, and nothing opens once the form is left.
respond() { phonectl send contact 'http2ui_directory_service_response(str,int)' "$1" 0; }
foreign=$work/foreign.xml own=$PHONE_HOME/run/directory-AbCdEf.xml
printf '<d><display count="1"/><item><data><type>name</type><value>Me</value></data></item></d>' | tee "$foreign" >"$own"
respond "$foreign"
ln "$foreign" "$PHONE_HOME/run/directory-AAAAAA.xml"
respond "$PHONE_HOME/run/directory-AAAAAA.xml"
phonectl expect screen SearchDir
[ -s "$foreign" ] || fail "a file of somebody else's"
phonectl key Esc
phonectl expect title Home
respond "$own"
phonectl expect title Home
[ ! -e "$own" ] || fail "the answer to a form that was left"
