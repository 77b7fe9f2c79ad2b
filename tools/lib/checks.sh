# Formatting and static analysis. Needs steps.sh; the analysis needs a finished build.

check_format() {
    git -C "$root" ls-files -z '*.h' '*.cpp' | (cd "$root" && xargs -0 clang-format --dry-run --Werror)
}

# A source has passed when build/analysis holds the hash of all that went into it: the source, the project's headers
# that it includes, directly or not, and the choice of checks.
analysis=$root/build/analysis

# "source header header ..." for each source, from what the compiler reported to the build.
source_dependencies() {
    ninja -C "$build" -t deps | awk -v root="$root/" -v made="$root/build/" '
        /^[^ ]/ { if (line != "") print line; line = ""; next }
        NF == 1 && index($1, root) == 1 && index($1, made) != 1 { line = line " " substr($1, length(root) + 1) }
        END { if (line != "") print line }' | sort -u
}

analysis_flags() {
    local gcc
    gcc=$(dirname "$(x86_64-w64-mingw32-g++-posix -print-libgcc-file-name)")
    printf '%s\n' --target=x86_64-w64-mingw32 -std=c++20 -Wno-everything \
        -isystem "$gcc/include/c++" -isystem "$gcc/include/c++/x86_64-w64-mingw32" \
        -DUNICODE -D_UNICODE -DNOMINMAX -DSTRICT -D_WIN32_WINNT=0x0A00 -DKNAV_BUILDING -DZOUI_BUILDING \
        -I"$root" -I"$root/include" -I"$root/host" -include "$root/cmake/pch.h"
}

state_of() { printf '%s/%s' "$analysis" "$(printf '%s' "$1" | tr / ,)"; }

# stale_sources: those of the library, the framework and the demo that have not passed as they are now, with the hash.
stale_sources() {
    local source headers rules hash
    rules=$(cat "$root/.clang-tidy" "$analysis/flags" "$root/cmake/pch.h" "$root/host/platform/Windows.h" | sha256sum)
    source_dependencies | while read -r source headers; do
        case $source in
            tests/* | bench/* | docs/*) continue ;;
            *.cpp) ;;
            *) continue ;;
        esac
        # shellcheck disable=SC2086 # a list of names, none with blanks
        hash=$(cd "$root" && { cat "$source" $headers && printf '%s' "$rules"; } | sha256sum)
        hash=${hash%% *}
        [ "$(cat "$(state_of "$source")" 2>/dev/null)" = "$hash" ] || printf '%s %s\n' "$source" "$hash"
    done | sort -u -k1,1
}

# analyse SOURCE HASH
analyse() {
    local flags
    mapfile -t flags <"$analysis/flags"
    cd "$root" && clang-tidy --quiet "$1" -- "${flags[@]}" 2>/dev/null && printf '%s' "$2" >"$(state_of "$1")"
}

check_analysis() {
    local stale total
    mkdir -p "$analysis"
    analysis_flags >"$analysis/flags"
    stale=$(stale_sources)
    [ -n "$stale" ] || return 0
    total=$(printf '%s\n' "$stale" | wc -l)
    export root analysis
    export -f analyse state_of
    # The numbers in front are for the display of the progress.
    printf '%s\n' "$stale" | awk -v total="$total" '{ print NR, total, $0 }' |
        xargs -P "$(nproc)" -L 1 bash -c 'printf "[%s/%s] %s\n" "$1" "$2" "$3"; analyse "$3" "$4"' _
}
