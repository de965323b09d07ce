# shellcheck shell=bash
# What ./run and ./test share for the Windows programs, after common.sh; sourced by them.

packages+=(g++-mingw-w64-x86-64-posix qt6-base-dev-tools wine wine64 fonts-wine xz-utils)

kit_archive=../shared/windows-kit.tar.xz

# VYK_WINDOWS_KIT is the folder of the libraries for Windows from here on. Fails when it was not set and no
# archive of them lies beside this checkout.
find_windows_kit() {
    if [[ -n ${VYK_WINDOWS_KIT:-} ]]; then
        [[ -e $VYK_WINDOWS_KIT/share/toolchain-mingw64.cmake ]] ||
            fail "VYK_WINDOWS_KIT is $VYK_WINDOWS_KIT, where no libraries for Windows are."
        return
    fi
    export VYK_WINDOWS_KIT=$PWD/build/windows-kit
    [[ -e $VYK_WINDOWS_KIT || -e $kit_archive ]]
}

# Unpacks that archive where it is needed; it takes the packages.
unpack_windows_kit() {
    [[ ! -e $VYK_WINDOWS_KIT ]] || return 0
    local unpacked
    mkdir -p build
    unpacked=$(mktemp -d build/.windows-kit.XXXXXX)
    quietly tar -xf "$kit_archive" -C "$unpacked"
    mv "$unpacked/windows-kit" "$VYK_WINDOWS_KIT"
    rmdir "$unpacked"
}

# Sets Wine up in build/wine, which is made when it is not there.
start_wine() {
    export WINEPREFIX=$PWD/build/wine WINEARCH=win64 WINEDEBUG=-all
    export WINEDLLOVERRIDES='mscoree,mshtml=;winemenubuilder.exe=d'
    if [[ ! -e $WINEPREFIX/complete ]]; then
        rm -rf "$WINEPREFIX"
        mkdir -p build
        quietly env -u DISPLAY "$VYK_WINDOWS_KIT/share/make-wine-prefix.sh" "$WINEPREFIX"
        touch "$WINEPREFIX/complete"
    fi
}
