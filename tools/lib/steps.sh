# What the scripts have in common: where things are, and steps that report themselves. Sourced, not run.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
build=${KNAV_BUILD:-$root/build/release}
logs=$root/build/logs
export CMAKE_BUILD_PARALLEL_LEVEL=${CMAKE_BUILD_PARALLEL_LEVEL:-$(nproc)}

# Tools that keep something in the home or temporary folder keep it here.
private_home=$root/build/home
mkdir -p "$logs" "$private_home" "$root/build/tmp"
export HOME=$private_home XDG_CACHE_HOME=$private_home XDG_CONFIG_HOME=$private_home TMPDIR=$root/build/tmp
unset XDG_DATA_HOME XDG_RUNTIME_DIR

# Progress goes to descriptor 3, which a script points to where its reader looks.
{ true >&3; } 2>/dev/null || exec 3>&2

say() { printf '%s\n' "$*" >&3; }

die() {
    say "$@"
    exit 1
}

# The newest "[done/total]" of a log as a percentage, or nothing.
progress_of() {
    tail -c 2000 "$1" 2>/dev/null | tr '\r' '\n' | grep -o '\[[0-9]*/[0-9]*\]' | tail -n 1 |
        awk -F'[][/]' '$3 > 0 { printf " %d%%", 100 * $2 / $3 }'
}

# step NAME "text" "what to do when it fails" COMMAND...: runs the command with its output in build/logs/NAME.log and
# shows one line. A failure shows the end of the log and ends the script.
step() {
    local name=$1 text=$2 advice=$3 log pid start waited
    shift 3
    log=$logs/$name.log
    start=$SECONDS
    printf '%-46s' "$text" >&3
    "$@" >"$log" 2>&1 </dev/null 3>&- &
    pid=$!
    while kill -0 "$pid" 2>/dev/null; do
        sleep 0.2
        waited=$((SECONDS - start))
        if [ "$waited" -ge 3 ]; then
            if [ -t 3 ]; then
                printf '\r%-46s%s %d s ' "$text" "$(progress_of "$log")" "$waited" >&3
            elif [ $((waited % 30)) -eq 0 ]; then
                printf '%s ...' "$(progress_of "$log")" >&3
                sleep 0.8
            fi
        fi
    done
    if wait "$pid"; then
        [ -t 3 ] && printf '\r%-46s' "$text" >&3
        printf ' done (%d s)\e[K\n' $((SECONDS - start)) | { [ -t 3 ] && cat || tr -d '\033' | sed 's/\[K$//'; } >&3
        return 0
    fi
    say " FAILED"
    say "--- the end of $log"
    grep -v '^\[[0-9]*/[0-9]*\]' "$log" | tail -n 40 >&3
    say "---"
    die "$advice"
}
