# Shared by play, check and the other scripts: what they print, what they install, how they build. Sourced, not run.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
logs="$root/build/logs"
mkdir -p "$logs"

say() { printf '\033[1m==>\033[0m %s\n' "$*"; }

fail() {
    printf '%s: %s\n' "$(basename "$0")" "$*" >&2
    exit 1
}

# step TITLE LOG COMMAND...: runs a long command with its output in a log, a dot every few seconds, and shows the end of
# the log when it failed.
step() {
    local title=$1 log="$logs/$2" started=$SECONDS
    shift 2
    printf '\033[1m==>\033[0m %s ' "$title"
    "$@" >"$log" 2>&1 &
    local pid=$!
    while kill -0 "$pid" 2>/dev/null; do
        printf '.'
        sleep 3
    done &
    local dots=$!
    local status=0
    wait "$pid" || status=$?
    kill "$dots" 2>/dev/null || true
    wait "$dots" 2>/dev/null || true
    if [ "$status" -ne 0 ]; then
        printf ' failed\n'
        tail -n 40 "$log" >&2
        fail "$title failed; the whole output is in $log"
    fi
    printf ' %d s\n' "$((SECONDS - started))"
}

as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        env DEBIAN_FRONTEND=noninteractive "$@"
    elif command -v sudo >/dev/null 2>&1; then
        sudo env DEBIAN_FRONTEND=noninteractive "$@"
    else
        echo "$* needs root, and there is no sudo" >&2
        return 1
    fi
}

packages_fetch() {
    as_root apt-get update -q && as_root apt-get install -q -y --no-install-recommends "$@"
}

# packages_install LIST...: installs what is missing of packaging/packages-LIST.txt.
packages_install() {
    local missing=() package list
    command -v apt-get >/dev/null 2>&1 || { say "No apt-get here; going on with what is installed"; return 0; }
    for list in "$@"; do
        while read -r package _; do
            case $package in '' | '#'*) continue ;; esac
            dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || missing+=("$package")
        done <"$root/packaging/packages-$list.txt"
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    step "Installing ${#missing[@]} packages (${missing[*]})" apt.log packages_fetch "${missing[@]}"
}

# preset_build PRESET [TARGET...]: configures and builds a preset below build/.
preset_build() {
    local preset=$1
    shift
    step "Configuring $preset" "$preset-configure.log" cmake -S "$root" --preset "$preset"
    step "Building $preset" "$preset-build.log" cmake --build "$root/build/$preset" ${1:+--target "$@"}
}
