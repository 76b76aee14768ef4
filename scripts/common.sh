# Sourced by run, test, lint and bench, which set `root` to the project's folder.

# What every build needs, and what the desktop program needs besides: a new library is one more word here.
build_packages=(g++ cmake ninja-build ccache libcli11-dev nlohmann-json3-dev libgtest-dev libgmock-dev
    libgeographiclib-dev libexpat1-dev)
desktop_packages=(qt6-base-dev)

# The compiler cache may look things up for sources with precompiled headers too, and takes the list of headers from
# the compiler, in place of preprocessing each source once more.
export CCACHE_DEPEND=1 CCACHE_SLOPPINESS=pch_defines,time_macros
if ! mkdir -p "${CCACHE_DIR:-${XDG_CACHE_HOME:-${HOME:-~}/.cache}/ccache}" 2>/dev/null; then
    export CCACHE_DISABLE=1  # No folder of one's own to keep it in.
fi

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

# prepare_program_folder FOLDER: what the desktop program works in: projects, help, pictures, and settings to
# begin with.
prepare_program_folder() {
    mkdir -p "$1/data" "$1/helpdocs" "$1/bitmap"
    cp "$root"/helpdocs/*.rtf "$1/helpdocs/"
    if [[ ! -e $1/VELN_te_fio_info.dat ]]; then
        printf '%s\n' "VELN default Text Editor information:" " xdg-open" \
            "VELN default raw survey Input File path information:" "$root/examples" \
            "Default printer DPI: (1=300, 2=600, 4=1200 dpi)" 2 >"$1/VELN_te_fio_info.dat"
    fi
}
