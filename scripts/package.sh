#!/bin/sh
# Makes the packages: two for Debian and, where the cross compiler can be had, an archive for 64-bit Windows:
# sh scripts/package.sh
set -eu
cd "$(dirname "$0")/.."
. scripts/common.sh

if [ $# -ne 0 ]; then
    echo "usage: sh scripts/package.sh" >&2
    exit 2
fi

make_package() {
    build_preset "$1"
    cpack --preset "$1" -B "$PWD/build/$1/packages"
}

need_packages g++ cmake ninja-build libcups2-dev dpkg-dev file || exit 1
make_package package
if need_packages g++-mingw-w64-x86-64-posix; then
    make_package windows-package
else
    echo "skipped: no archive for Windows, for want of the cross compiler"
fi
ls -l build/package/packages/*.deb build/windows-package/packages/*.zip 2>/dev/null || true
