#!/bin/bash
# Real keyboard and mouse input to the dialogs as they are shipped, on a screen with a window manager.
set -u

# shellcheck source-path=SCRIPTDIR
. "$(dirname "${BASH_SOURCE[0]}")/../../tools/lib/steps.sh"
. "$root/tools/lib/display.sh"
trap stop_display EXIT
start_display
KNAV_GRAPHICS=x11 "$root/tools/run-under-wine" "$build/bin/test_e2e.exe" --gtest_brief=1 "$@"
