# What run, test and the other scripts share: Debian's packages, and a configured and built tree. Meant to be sourced.

# install_packages PACKAGE...: installs what is missing, as root or through sudo.
install_packages() {
    local missing=() package
    for package in "$@"; do
        [[ $(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null) == installed ]] || missing+=("$package")
    done
    ((${#missing[@]})) || return 0

    echo "Installing: ${missing[*]}"
    local as_root=()
    ((EUID == 0)) || as_root=(sudo)
    "${as_root[@]}" apt-get update -q >/dev/null
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -q --no-install-recommends "${missing[@]}" >/dev/null
}

build_packages=(cmake g++ libqt5serialport5-dev libumockdev-dev ninja-build pkg-config qtbase5-dev qttools5-dev
    qttools5-dev-tools qttranslations5-l10n umockdev zlib1g-dev)

# build PRESET [TARGET...]: configures and builds; says only what went wrong.
build() {
    local preset=$1
    shift
    local log=build/$preset-build.log
    mkdir -p build
    echo "Building ($preset) ..."
    if ! { cmake --preset "$preset" && cmake --build --preset "$preset" ${1:+--target "$@"}; } >"$log" 2>&1; then
        tail -n 60 "$log" >&2
        echo "The build failed; the whole log is $log" >&2
        return 1
    fi
}
