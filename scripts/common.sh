# Sourced by run, test, lint and bench, which set `root` to the project's folder.

build_packages=(g++ cmake ninja-build libcli11-dev nlohmann-json3-dev libgtest-dev libgmock-dev)
desktop_packages=(qt6-base-dev)

# install_packages NAME...: installs by apt what is missing; without anything missing it takes no time.
install_packages() {
    local name missing=()
    for name in "$@"; do
        if [[ $(dpkg-query -W -f='${db:Status-Status}' "$name" 2>/dev/null) != installed ]]; then
            missing+=("$name")
        fi
    done
    if ((${#missing[@]} == 0)); then
        return
    fi
    local as_root=()
    if ((EUID != 0)); then
        as_root=(sudo)
    fi
    echo "Installing: ${missing[*]}" >&2
    quietly "${as_root[@]}" apt-get -qq -o DPkg::Lock::Timeout=300 update
    quietly "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get -qq -y --no-install-recommends -o DPkg::Lock::Timeout=300 install "${missing[@]}"
}

# quietly COMMAND...: keeps what it prints, and shows it on standard error only where it fails.
quietly() {
    local log status=0
    log=$(mktemp)
    "$@" </dev/null >"$log" 2>&1 || status=$?
    if ((status != 0)); then
        cat "$log" >&2
        echo "failed with status $status: $*" >&2
    fi
    rm -f "$log"
    return "$status"
}

# configure PRESET [OPTION...] and build PRESET [OPTION...]: one at a time, however many callers there are.
configure() {
    hold_build_tree
    (cd "$root" && quietly cmake --preset "$@")
}

build() {
    hold_build_tree
    (cd "$root" && quietly cmake --build --preset "$1" --parallel "$(nproc)" "${@:2}")
}

hold_build_tree() {
    mkdir -p "$root/build"
    exec 9>"$root/build/.lock"
    flock 9
}

release_build_tree() {
    exec 9>&-
}
