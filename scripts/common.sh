# shellcheck shell=bash
# Sourced by ./demo and ./check, which run at the root of the project: packages, quiet steps,
# builds. Everything that is made lies in build/.

logs=build/logs
mkdir -p "$logs"

# The packages that a build of the tool takes.
# shellcheck disable=SC2034  # used by the scripts that source this one
build_packages=(cmake g++ libcli11-dev libgtest-dev ninja-build picojson-dev python3)

# quietly <log> <command>...: keeps the command's output in a log below build/logs, and shows it
# only when the command fails.
quietly() {
    local log=$logs/$1.log status=0
    shift
    "$@" >"$log" 2>&1 || status=$?
    if ((status != 0)); then
        cat "$log"
        printf 'failed with status %d: %s\n' "$status" "$*"
    fi
    return "$status"
}

is_installed() {
    dpkg-query --show --showformat='${db:Status-Status}\n' "$1" 2>/dev/null | grep -qx installed
}

# ensure_packages <package>...: installs the Debian packages that are missing. Asks nobody, and
# does and says nothing when all are there.
ensure_packages() {
    local missing=() as_root=() package
    for package in "$@"; do
        is_installed "$package" || missing+=("$package")
    done
    ((${#missing[@]} > 0)) || return 0

    ((EUID == 0)) || as_root=(sudo)
    if ! command -v apt-get "${as_root[@]}" >/dev/null; then
        printf 'These packages are missing, please install them: %s\n' "${missing[*]}"
        return 1
    fi
    printf 'Installing %s\n' "${missing[*]}"
    # Nothing waits for minutes on what isn't there.
    local apt=(env DEBIAN_FRONTEND=noninteractive apt-get -o Acquire::Retries=2
        -o Acquire::http::Timeout=10 -o Acquire::https::Timeout=10)
    # A source of packages that can't be reached may well be one that none of these comes from.
    quietly apt-update "${as_root[@]}" "${apt[@]}" update || true
    quietly apt-install "${as_root[@]}" "${apt[@]}" -o DPkg::Lock::Timeout=300 \
        install --yes --no-install-recommends "${missing[@]}"
}

# configure <preset>: with the system's Python, whatever else stands on the path.
configure() {
    quietly "$1-configure" cmake --preset "$1" -DPython3_EXECUTABLE=/usr/bin/python3
}

# build <preset> <jobs> [argument...]
build() {
    local preset=$1 jobs=$2
    shift 2
    quietly "$preset-build" cmake --build --preset "$preset" --parallel "$jobs" "$@"
}
