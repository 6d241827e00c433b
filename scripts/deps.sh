# Sourced by run.sh and test.sh: installs the Debian packages the build
# needs, only when some are missing.
LIBCONTROL_PACKAGES="cmake ninja-build g++ pkg-config qtbase5-dev libtinyxml-dev libssl-dev fonts-dejavu-core"

ensure_packages() {
    local missing=()
    for pkg in $LIBCONTROL_PACKAGES "$@"; do
        dpkg-query -W -f='${Status}' "$pkg" 2>/dev/null | grep -q "install ok installed" || missing+=("$pkg")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    echo "Installing: ${missing[*]}"
    local sudo=""
    [ "$(id -u)" -eq 0 ] || sudo="sudo"
    export DEBIAN_FRONTEND=noninteractive
    $sudo apt-get update -q
    $sudo apt-get install -y -q --no-install-recommends "${missing[@]}"
}

# Uses ccache when it is there; the build does not need it.
launcher_args() {
    command -v ccache >/dev/null 2>&1 && echo "-DCMAKE_CXX_COMPILER_LAUNCHER=ccache"
}
