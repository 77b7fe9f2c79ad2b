# Formatting and static analysis. Needs steps.sh.

check_format() {
    git -C "$root" ls-files -z '*.h' '*.cpp' | (cd "$root" && xargs -0 clang-format --dry-run --Werror)
}

# The sources that are analysed: the library, the framework and the demo.
analysed_sources() {
    git -C "$root" ls-files 'host/*.cpp' 'data/*.cpp' 'shell/*.cpp' 'view/*.cpp' 'controls/*.cpp' 'places/*.cpp' \
        'ftp/*.cpp' 'find/*.cpp' 'dialog/*.cpp' 'extensions/*.cpp' 'demo/*.cpp'
}

# analyse SOURCE: skipped when neither the source, nor a header of the project that it names, nor the choice of checks
# has changed since it passed.
analyse() {
    local source=$1 state=$analysis/$(printf '%s' "$1" | tr / _) key gcc
    key=$(cd "$root" && named_headers "$source" | xargs cat "$source" .clang-tidy | sha256sum)
    [ "$(cat "$state" 2>/dev/null)" = "$key" ] && return 0
    gcc=$(dirname "$(x86_64-w64-mingw32-g++-posix -print-libgcc-file-name)")
    (cd "$root" && clang-tidy --quiet "$source" -- --target=x86_64-w64-mingw32 -std=c++20 \
        -isystem "$gcc/include/c++" -isystem "$gcc/include/c++/x86_64-w64-mingw32" \
        -DUNICODE -D_UNICODE -DNOMINMAX -DSTRICT -D_WIN32_WINNT=0x0A00 -DKNAV_BUILDING -DZOUI_BUILDING \
        -Iinclude -Ihost -I. -include cmake/pch.h 2>&1) | grep -vE 'warnings? generated\.$' >"$state.log"
    [ "${PIPESTATUS[0]}" = 0 ] || { cat "$state.log"; return 1; }
    printf '%s' "$key" >"$state"
}

# The headers of the project that a source includes itself.
named_headers() {
    sed -n 's/^#include [<"]\([^>"]*\)[>"].*/\1/p' "$1" | while read -r header; do
        ls "include/$header" "host/$header" "$header" 2>/dev/null
    done
}

check_analysis() {
    analysis=$root/build/analysis
    mkdir -p "$analysis"
    export -f analyse named_headers
    export root analysis
    analysed_sources | xargs -P "$(nproc)" -I{} bash -c 'analyse "$1"' _ {}
}
