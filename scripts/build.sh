# Shared by ./run and ./test: brings in what is missing on a Debian machine, then configures and builds.

packages=(g++ cmake ninja-build ccache qtbase5-dev qttools5-dev qttools5-dev-tools libqt5sql5-sqlite libsqlite3-dev
    libkf5contacts-dev libhangul-dev pkg-config libcpp-httplib-dev libssl-dev librsvg2-bin fonts-roboto-unhinted fonts-nanum)

fail() {
    printf '%s: %s\n' "$(basename "$0")" "$1" >&2
    exit 1
}

# install_missing PACKAGE...: says nothing when all of them are there.
install_missing() {
    local missing=() package
    for package in "$@"; do
        [ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return
    local root=()
    [ "$(id -u)" -eq 0 ] || root=(sudo)
    echo "Installing ${missing[*]}"
    "${root[@]}" apt-get update -qq || fail "the package lists could not be read"
    DEBIAN_FRONTEND=noninteractive "${root[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}" \
        >/dev/null || fail "could not install ${missing[*]}"
}

# build PRESET: the log of a build that fails is shown, that of one that succeeds is not.
build() {
    local log
    log=$(mktemp)
    echo "Building"
    if ! { cmake --preset "$1" && cmake --build --preset "$1"; } >"$log" 2>&1; then
        tail -n 40 "$log" >&2
        rm -f "$log"
        fail "the build failed"
    fi
    rm -f "$log"
}
