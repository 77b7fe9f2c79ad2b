# A screen of our own in memory. Needs steps.sh.

display_pid=

# start_display: sets DISPLAY; stop_display ends it.
start_display() {
    local number_file=$root/build/tmp/display.$$
    mkfifo "$number_file" || die "cannot make $number_file"
    Xvfb -displayfd 7 -screen 0 1280x1024x24 -nolisten tcp 7>"$number_file" >"$logs/display.log" 2>&1 3>&- &
    display_pid=$!
    local number=
    read -r -t 20 number <"$number_file"
    rm -f "$number_file"
    [ -n "$number" ] || die "The virtual display did not start; its log is $logs/display.log"
    export DISPLAY=:$number
}

stop_display() {
    [ -n "$display_pid" ] || return 0
    kill "$display_pid" 2>/dev/null
    wait "$display_pid" 2>/dev/null
    display_pid=
}
