#!/bin/bash
# The dialog at each resolution, in a language with long texts that is read from the right: nothing clipped, nothing
# covered. Wine reads the resolution when its server starts, so each needs a server of its own.
set -u

# shellcheck source-path=SCRIPTDIR
. "$(dirname "${BASH_SOURCE[0]}")/../../tools/lib/steps.sh"
. "$root/tools/lib/display.sh"
run="$root/tools/run-under-wine"
export KNAV_GRAPHICS=x11 KNAV_TEST_LANGUAGE=xr
failures=0

use_dpi() {
    "$run" reg add 'HKCU\Control Panel\Desktop' /v LogPixels /t REG_DWORD /d "$1" /f >/dev/null
    "$run" --stop
}

# The resolution is 96 again for those who come after.
leave() {
    use_dpi 96
    stop_display
}

start_display 3840x2160
trap leave EXIT
for dpi in 96 120 144 192; do
    use_dpi "$dpi"
    if ! KNAV_TEST_DPI=$dpi "$run" "$build/bin/test_dialog.exe" --gtest_brief=1 \
        --gtest_filter='DialogFit.EveryTextHasRoom*:DialogFit.Language*'; then
        echo "FAILED: at $dpi DPI"
        failures=$((failures + 1))
    fi
done
[ "$failures" = 0 ]
