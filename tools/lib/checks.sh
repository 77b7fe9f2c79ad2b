# Formatting and static analysis. Needs steps.sh; the analysis needs a finished build.

check_format() {
    (cd "$root" && find . -path './build*' -prune -o \( -name '*.h' -o -name '*.cpp' \) -print0 |
        xargs -0 clang-format --dry-run --Werror)
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

# The sources of a group are headers of it, as far as the analyser can tell.
analysis_flags() {
    local gcc
    gcc=$(dirname "$(x86_64-w64-mingw32-g++-posix -print-libgcc-file-name)")
    printf '%s\n' --target=x86_64-w64-mingw32 -std=c++20 -Wno-everything -Xclang -analyzer-opt-analyze-headers \
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

# group_sources: from lines "source hash" makes lines "source hash source hash ...". The sources of a line are analysed
# as one, because most of the time goes into the system's headers. Those that have a name of their own in common (a
# definition at the left margin of an unnamed namespace, or a main function) are kept apart.
group_sources() {
    awk -v root="$root/" -v most=20 '
        function names_of(file, names,    line, inside) {
            split("", names)
            inside = 0
            while ((getline line < (root file)) > 0) {
                if (line ~ /^int w?main\(/) names["main"]
                if (line ~ /^namespace \{/) inside = 1
                else if (line ~ /^\}  \/\/ namespace$/) inside = 0
                else if (inside && line ~ /^[A-Za-z]/ && line !~ /^(template|public|private|protected|static_assert)/) {
                    sub(/[({=;\[].*/, "", line)
                    sub(/ (:|final|noexcept).*/, "", line)
                    sub(/ +$/, "", line)
                    sub(/.*[ *&:]/, "", line)
                    names[line]
                }
            }
            close(root file)
        }
        {
            names_of($1, names)
            for (group = 1; group <= groups; ++group) {
                fits = size[group] < most
                for (name in names) if ((group, name) in taken) fits = 0
                if (fits) break
            }
            if (group > groups) groups = group
            for (name in names) taken[group, name]
            ++size[group]
            members[group] = members[group] " " $1 " " $2
        }
        END { for (group = 1; group <= groups; ++group) print substr(members[group], 2) }'
}

passed() { printf '%s' "$2" >"$(state_of "$1")"; }

run_tidy() {
    local flags
    mapfile -t flags <"$analysis/flags"
    clang-tidy --quiet --header-filter="^$root/[a-z]" "$1" -- "${flags[@]}" 2>/dev/null
}

# analyse NUMBER SOURCE HASH [SOURCE HASH]...: one group. Sources that do not go together after all are analysed alone.
analyse() {
    local number=$1 group=$analysis/group-$1.cpp findings=$analysis/group-$1.txt code
    shift
    printf '#include "'"$root"'/%s"  // %s\n' "$@" >"$group"
    run_tidy "$group" >"$findings"
    code=$?
    if [ $# -gt 2 ] && grep -q '\[clang-diagnostic-error' "$findings"; then
        code=0
        while [ $# -gt 0 ]; do
            analyse "$number-$#" "$1" "$2" || code=1
            shift 2
        done
        return "$code"
    fi
    cat "$findings"
    while [ $# -gt 0 ]; do
        [ "$code" != 0 ] && grep -q "^$root/$1:\|\.h:[0-9]" "$findings" || passed "$1" "$2"
        shift 2
    done
    return "$code"
}

check_analysis() {
    local stale groups total
    mkdir -p "$analysis"
    rm -f "$analysis"/group-*
    analysis_flags >"$analysis/flags"
    stale=$(stale_sources)
    [ -n "$stale" ] || return 0
    groups=$(printf '%s\n' "$stale" | group_sources)
    total=$(printf '%s\n' "$groups" | wc -l)
    export root analysis
    export -f analyse state_of passed run_tidy
    # The numbers in front are for the display of the progress.
    printf '%s\n' "$groups" | awk -v total="$total" '{ print NR, total, $0 }' |
        xargs -P "$(nproc)" -L 1 bash -c 'printf "[%s/%s]\n" "$1" "$2"; number=$1; shift 2; analyse "$number" "$@"' _
}
