# Makes a Debian machine ready, configures and builds. Needs steps.sh.

build_packages=(g++-mingw-w64-x86-64-posix cmake ninja-build librsvg2-bin googletest)
run_packages=(wine wine64 fonts-wine fonts-liberation)
display_packages=(xvfb openbox)
check_packages=(clang-format clang-tidy)

# install_packages PACKAGE...: those that are missing.
install_packages() {
    local missing=() package as_root=()
    for package in "$@"; do
        [ "$(dpkg-query -W -f '${db:Status-Abbrev}' "$package" 2>/dev/null)" = "ii " ] || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    if [ "$(id -u)" != 0 ]; then
        command -v sudo >/dev/null || die "These packages are missing: ${missing[*]}" \
            "Install them as root (apt-get install ${missing[*]}), then run this again."
        as_root=(sudo --)
        sudo -v || die "Installing ${missing[*]} needs an administrator's password."
    fi
    step packages-index "Fetching the package index" "Is the network up, and /etc/apt/sources.list right?" \
        "${as_root[@]}" apt-get update
    step packages "Installing ${#missing[@]} packages" "Install them by hand: apt-get install ${missing[*]}" \
        "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends "${missing[@]}"
}

# configure [PRESET]: only when it was not done yet; afterwards the build does it itself.
configure() {
    local preset=${1:-release}
    [ -e "$root/build/$preset/build.ninja" ] && return 0
    step "configure-$preset" "Configuring" "Remove $root/build/$preset and run this again." \
        cmake -S "$root" --preset "$preset"
}

# build_targets TEXT [TARGET...]
build_targets() {
    local text=$1
    shift
    step build "$text" "Correct what the compiler reports, then run this again." ninja -C "$build" "$@"
}

# make_prefix GRAPHICS: the private Windows environment.
make_prefix() {
    KNAV_GRAPHICS=$1 "$root/tools/run-under-wine" --ready ||
        step "prefix-$1" "Setting up a private Wine environment" "Remove $root/build/wine* and run this again." \
            env KNAV_GRAPHICS="$1" "$root/tools/run-under-wine" --prefix
}
