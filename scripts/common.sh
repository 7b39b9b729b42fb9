# Sourced by the other scripts.
# shellcheck shell=sh

# What gives the printer descriptions of the package openprinting-ppds.
# shellcheck disable=SC2034
descriptions=/usr/lib/cups/driver/openprinting-ppds

# Configures and builds a preset with all processors, through the compiler's cache where there is one.
build_preset() {
    launcher=
    if command -v ccache >/dev/null; then
        launcher=ccache
    fi
    cmake --preset "$1" --log-level=NOTICE -DCMAKE_CXX_COMPILER_LAUNCHER="$launcher"
    cmake --build --preset "$1" --parallel "$(nproc)"
}

# Installs those of the named Debian packages that are missing. Not 0, with a word on standard error, when
# that cannot be done.
need_packages() {
    missing=
    for package; do
        if ! dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'install ok installed'; then
            missing="$missing $package"
        fi
    done
    [ -n "$missing" ] || return 0
    if ! command -v apt-get >/dev/null; then
        echo "Missing:$missing; there is no apt-get here to install them." >&2
        return 1
    fi
    as_root=
    if [ "$(id -u)" -ne 0 ]; then
        as_root=sudo
        if ! command -v sudo >/dev/null; then
            echo "Missing:$missing; installing them takes root or sudo." >&2
            return 1
        fi
    fi
    echo "Installing:$missing" >&2
    # A fresh machine has no package lists yet.
    # shellcheck disable=SC2086
    if ! install_packages $missing >/dev/null 2>&1; then
        $as_root apt-get -qq update >/dev/null 2>&1 || true
        # shellcheck disable=SC2086
        if ! reason=$(install_packages $missing 2>&1 >/dev/null); then
            echo "Missing:$missing; they cannot be installed: $(echo "$reason" | grep '^E:' || echo "$reason" | tail -n 1)" >&2
            return 1
        fi
    fi
}

install_packages() {
    $as_root env DEBIAN_FRONTEND=noninteractive apt-get -qq install --no-install-recommends "$@"
}
