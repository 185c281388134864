# shellcheck shell=bash
# Shared by the commands of ./zv: installing what is missing and building. Source it from the top folder.

# need COMMAND-NAME PACKAGE...: installs the Debian packages that are missing. Offline it works as long as none is.
need() {
    local purpose=$1 package missing=()
    shift
    for package in "$@"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || missing+=("$package")
    done
    ((${#missing[@]} == 0)) && return
    printf 'zv: installing for %s: %s\n' "$purpose" "${missing[*]}" >&2
    local sudo=()
    if ((EUID != 0)); then
        command -v sudo >/dev/null || { printf 'zv: needs root or sudo to install packages\n' >&2; exit 1; }
        sudo=(sudo)
    fi
    "${sudo[@]}" apt-get update -qq
    "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends \
        -o DPkg::Lock::Timeout=300 "${missing[@]}" >/dev/null
}

# want COMMAND-NAME PACKAGE...: as need, but goes on without what cannot be had.
want() {
    (need "$@") || printf 'zv: goes on without\n' >&2
}

# What every host build needs.
need_build_tools() {
    need 'the build' clang cmake pkg-config ninja-build gcc g++ libobjc-12-dev libgnustep-base-dev libblocksruntime-dev \
        libplist-dev libsqlite3-dev libcpp-httplib-dev nlohmann-json3-dev node-preact python3 librsvg2-bin "$@"
}

# What drives a browser, and fonts as wide as the phone's. A node that does not come from Debian brings its own npm;
# Debian's would not go beside it.
need_browser_tools() {
    need 'the browser' curl fonts-liberation fonts-wqy-microhei
    if ! command -v node >/dev/null || ! command -v npm >/dev/null; then need 'the browser' nodejs npm; fi
    command -v chromium >/dev/null || need 'the browser' chromium
    [[ -d tests/browser/node_modules ]] || npm --prefix tests/browser ci --no-audit --no-fund
}

# build PRESET [TARGET...]: configures, since packages may have come since the last time, and builds.
build() {
    local preset=$1 targets=()
    shift
    cmake --preset "$preset" >/dev/null
    (($# > 0)) && targets=(--target "$@")
    cmake --build --preset "$preset" "${targets[@]}"
}
