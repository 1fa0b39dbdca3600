# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash
# Sourced by run, test, .ci/tidy and bench/compare, from the top folder.

# Installs the packages of packaging/debian-packages.txt that are missing; needs no network when none is.
set_up()
{
    local wanted missing
    wanted=$(sed 's/#.*//' packaging/debian-packages.txt | xargs -n 1 | sort)
    missing=$(comm -23 <(echo "$wanted") <(installed_packages))
    [ -z "$missing" ] && return

    # shellcheck disable=SC2086 # the words are package names
    as_root apt-get -qq update && as_root apt-get -qq install -y --no-install-recommends $missing
}

installed_packages()
{
    dpkg-query -W -f '${db:Status-Abbrev}${Package}\n' | sed -n 's/^ii *//p' | sort -u
}

as_root()
{
    if [ "$(id -u)" = 0 ]; then
        DEBIAN_FRONTEND=noninteractive "$@"
    elif command -v sudo > /dev/null; then
        sudo DEBIAN_FRONTEND=noninteractive "$@"
    else
        echo "Run as root, or install sudo: $*" >&2
        return 1
    fi
}

# configure <preset> <more for cmake>: configures the preset.
configure()
{
    if command -v ccache > /dev/null; then
        export CMAKE_CXX_COMPILER_LAUNCHER=ccache
        export CCACHE_SLOPPINESS=pch_defines,time_macros # what caching with precompiled headers asks for
    fi
    cmake --preset "$@"
}

# build <preset> <targets>: configures the preset and builds the targets.
build()
{
    local preset=$1
    shift
    configure "$preset"
    cmake --build --preset "$preset" --target "$@"
}
