#!/bin/bash
# The demo as a newcomer runs it: real input on a virtual display, results on standard output.
set -u

# shellcheck source-path=SCRIPTDIR
. "$(dirname "${BASH_SOURCE[0]}")/../../tools/lib/steps.sh"
. "$root/tools/lib/display.sh"
work=$(mktemp -d "$root/build/demo-test.XXXXXX")
leave() {
    exec 9>&-
    KNAV_GRAPHICS=x11 "$root/tools/run-under-wine" --stop
    stop_display
    rm -rf "$work"
}
trap leave EXIT
failures=0

# expect CASE EXIT-CODE OUTPUT COMMAND...: OUTPUT is a pattern of the shell for all of standard output.
expect() {
    local name=$1 code=$2 pattern=$3 output actual
    shift 3
    output=$("$@" 2>"$work/errors")
    actual=$?
    # shellcheck disable=SC2053 # a pattern on purpose
    if [ "$actual" = "$code" ] && [[ $output == $pattern ]]; then
        echo "ok: $name"
    else
        echo "FAILED: $name: exit code $actual (expected $code), output:"
        printf '%s\n' "$output"
        tail -n 20 "$work/errors"
        failures=$((failures + 1))
    fi
}

export KNAV_BUILT=1
demo() { "$root/tools/demo" "$@"; }

drawings=$work/drawings
mkdir -p "$drawings/Details"
touch "$drawings/plan.dwg" "$drawings/site plan.dwg" "$drawings/Büro.dwg" "$drawings/notes.txt" "$drawings/Details/door.dwg"
backslash='\\'
here="*${backslash}drawings${backslash}"

# Once with a display and a background server of its own, which is most of the time that a run takes.
expect "nothing to do cancels" 1 "cancelled" demo --headless --folder "$drawings" --screenshot "$work/dialog.png"
[ "$(head -c 4 "$work/dialog.png" | tail -c 3)" = PNG ] || { echo "FAILED: no screenshot"; failures=$((failures + 1)); }

# The others share a display, and a server that stays because its environment is in use.
start_display
exec 9>"$root/build/wine-x11.use"
flock --shared 9

expect "a typed name is picked" 0 "picked 1 ${here}plan.dwg" demo --folder "$drawings" --type plan.dwg
expect "a clicked item is picked" 0 "picked 1 ${here}plan.dwg" demo --folder "$drawings" --pick plan.dwg
expect "names with a blank and an umlaut" 0 "picked 1 ${here}Büro.dwg"$'\n'"picked 1 ${here}site plan.dwg" \
    demo --folder "$drawings" --multi --pick "site plan.dwg" --pick "Büro.dwg"
expect "a folder is entered, then a file picked" 0 "picked 1 ${here}Details${backslash}door.dwg" \
    demo --folder "$drawings" --pick Details --pick door.dwg
expect "another file type is offered" 0 "picked 1 ${here}notes.txt" \
    demo --folder "$drawings" --filter "Texts (*.txt)|*.txt|" --pick notes.txt
expect "a new name is saved with its extension" 0 "picked 1 ${here}new.dwg" \
    demo --folder "$drawings" --save --type new
expect "a folder is picked" 0 "picked 1 ${here}Details" demo --folder "$drawings" --folders-only --pick Details
many=$work/many
mkdir "$many"
(cd "$many" && for number in $(seq 10000); do : >"drawing $number.dwg"; done)
expect "ten thousand files" 0 "picked 1 *${backslash}many${backslash}drawing 9876.dwg" \
    demo --folder "$many" --type "drawing 9876.dwg"

# Without its resource module the library says so, and the host goes on.
bare=$work/bare
mkdir "$bare"
cp "$build"/bin/{drafthost.exe,demodriver.exe,knav.dll,zoui.dll} "$bare"
without_resources() {
    "$root/tools/run-under-wine" "$bare/demodriver.exe" --dismiss >"$work/message" 2>&1 &
    "$root/tools/run-under-wine" "$bare/drafthost.exe" --multi
    local code=$?
    wait
    cat "$work/message"
    return "$code"
}
export KNAV_GRAPHICS=x11 KNAV_TIME_LIMIT=60
expect "the resource module is missing" 3 "*KnavRes.dll not found*" without_resources

exit "$failures"
