# A screen of our own in memory, with a window manager: without one, windows are never active and are slow to close.
# Needs steps.sh.

display_processes=()

# start_display [WIDTHxHEIGHT]: sets DISPLAY; stop_display ends it.
start_display() {
    local size=${1:-1280x1024} number_file=$root/build/tmp/display.$$ number=
    mkfifo "$number_file" || die "cannot make $number_file"
    Xvfb -displayfd 7 -screen 0 "${size}x24" -nolisten tcp 7>"$number_file" >"$logs/display.log" 2>&1 3>&- 8>&- &
    display_processes+=($!)
    read -r -t 20 number <"$number_file"
    rm -f "$number_file"
    [ -n "$number" ] || die "The virtual display did not start; its log is $logs/display.log"
    export DISPLAY=:$number
    openbox >>"$logs/display.log" 2>&1 3>&- 8>&- &
    display_processes+=($!)
}

stop_display() {
    local process
    for process in "${display_processes[@]}"; do
        kill "$process" 2>/dev/null
        wait "$process" 2>/dev/null
    done
    display_processes=()
}
