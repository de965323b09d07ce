# shellcheck shell=bash
# What ./run and ./test share; sourced by them.

packages=(
    # to build
    g++ cmake ninja-build qt6-base-dev libarchive-dev
    # to play: an engine, free IWADs and what cuts the sample games out of them
    crispy-doom freedoom python3
    # to show the window: Qt brings its X11 plugin but no font
    fonts-dejavu-core
    # to show it without a display, and take its picture
    xvfb xdotool imagemagick
)

fail() {
    echo "$*" >&2
    exit 1
}

# quietly COMMAND...: shows what the command printed only when it fails.
quietly() {
    local output
    output=$("$@" 2>&1) || {
        printf '%s\n' "$output" >&2
        fail "Failed: $*"
    }
}

# Installs what is missing of `packages`, and touches no network when nothing is.
install_packages() {
    local installed missing
    # dpkg-query fails when it has never heard of one of them; what it prints is still right.
    installed=$(dpkg-query -W -f '${Package} ${db:Status-Status}\n' "${packages[@]}" 2>/dev/null || true)
    mapfile -t missing < <(comm -23 \
        <(printf '%s\n' "${packages[@]}" | sort) \
        <(sed -n 's/ installed$//p' <<<"$installed" | sort -u))
    [[ ${#missing[@]} -gt 0 ]] || return 0

    local as_root=()
    if [[ $EUID -ne 0 ]]; then
        command -v sudo >/dev/null ||
            fail "These packages are missing: ${missing[*]}. Install them, or run this as root or with sudo available."
        as_root=(sudo)
    fi
    echo "Installing ${missing[*]}"
    local apt=("${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q -y -o DPkg::Lock::Timeout=300)
    quietly "${apt[@]}" update
    quietly "${apt[@]}" install --no-install-recommends "${missing[@]}"
}

# build PRESET [CMAKE-OPTION...]: builds `targets`, or everything; prints warnings and errors only.
targets=()
build() {
    local preset=$1
    [[ -e build/$preset/build.ninja ]] || echo "Building build/$preset (the first time takes some minutes)"
    quietly cmake --preset "$@"
    cmake --build --preset "$preset" "${targets[@]/#/--target=}" -- --quiet | sed '/^ninja: no work to do\.$/d' ||
        fail "The build in build/$preset failed."
}
