# Debian 12 packages by job; sourced by ./run and ./test.

run_packages=(
    # build
    g++ cmake ninja-build ccache mold pkg-config git ca-certificates
    qt6-base-dev qt6-declarative-dev qt6-declarative-dev-tools qt6-httpserver-dev qt6-websockets-dev qt6-svg-dev
    qt6-webengine-dev
    libgl-dev libvulkan-dev libsqlite3-dev libicu-dev libpsl-dev liburiparser-dev zlib1g-dev libqrcodegencpp-dev
    bootstrap-icons iso-flags-svg
    # run
    qml6-module-qtqml qml6-module-qtqml-models qml6-module-qtqml-workerscript qml6-module-qtquick
    qml6-module-qtquick-controls qml6-module-qtquick-layouts qml6-module-qtquick-templates
    qml6-module-qtquick-window qml6-module-qtquick-shapes qml6-module-qt-labs-qmlmodels qml6-module-qt-labs-lottieqt
    qml6-module-qtwebengine libqt6webenginecore6-bin
    qt6-qpa-plugins qt6-wayland libqt6svg6
    fonts-noto-core fonts-noto-cjk fonts-noto-color-emoji
)

test_packages=(
    libgtest-dev libgmock-dev qml6-module-qttest
    clang clang-format libclang-rt-14-dev
    dbus xvfb at-spi2-core xdotool zbar-tools libnss3-tools
)

# ensure_packages NAME...: installs what is missing, and asks apt nothing where nothing is.
ensure_packages() {
    local installed missing=() name
    installed=" $(dpkg-query -W -f '${Package}=${db:Status-Status} ' "$@" 2>/dev/null || true)"
    for name in "$@"; do
        [[ $installed == *" $name=installed "* ]] || missing+=("$name")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    command -v apt-get >/dev/null || { say "needs Debian's apt-get, or these packages by hand: ${missing[*]}"; return 1; }
    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || { say "needs root or sudo to install: ${missing[*]}"; return 1; }
        as_root=(sudo)
    fi
    say "installing ${#missing[@]} packages with apt-get: ${missing[*]}"
    local log; log=$(mktemp)
    if ! { "${as_root[@]}" apt-get update -q &&
           "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends \
               "${missing[@]}"; } >"$log" 2>&1 </dev/null; then
        tail -n 20 "$log" >&2
        say "apt-get failed; its whole output is in $log"
        return 1
    fi
    rm -f "$log"
}

# configure PRESET [-DNAME=VALUE...]: runs cmake once, and again where a value asked for is not the build's. Later builds
# reconfigure by themselves when a CMake file changed.
configure() {
    local folder=build/$1 option name same=yes
    for option in "${@:2}"; do
        name=${option#-D}
        grep -qs "^${name%%=*}:[A-Z]*=${name#*=}\$" "$folder/CMakeCache.txt" || same=no
    done
    [ $same = yes ] && [ -f "$folder/build.ninja" ] && [ "$folder/.configured" -nt CMakePresets.json ] && return 0
    say "configuring $folder"
    mkdir -p "$folder"
    cmake --preset "$@" >"$folder/configure.log" 2>&1 || { cat "$folder/configure.log" >&2; return 1; }
    touch "$folder/.configured"
}

# build PRESET [TARGET...]
build() {
    local preset=$1; shift
    if [ $# -gt 0 ]; then set -- --target "$@"; fi
    cmake --build "build/$preset" "$@"
}
