#!/usr/bin/env bash
# Makes the Debian package of a hardened build and tries it: lintian, hardening of all its programs and
# libraries, then the demonstration from the unpacked package and from an installed tree that was moved. Fails
# at the first error.
#
#   scripts/package.sh             build/package/quorlin-rf_VERSION_ARCH.deb
#   scripts/package.sh --install   also installs the package (as root), runs it, and removes it again
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/setup.sh

install=false
case "$#:${1:-}" in
    0:) ;;
    1:--install) install=true ;;
    *)
        echo "usage: scripts/package.sh [--install]" >&2
        exit 2
        ;;
esac

# Of an installed quorlin-host, on a platform that needs no display.
demo_of() {
    quorlin_say "Demonstration: $*"
    QT_QPA_PLATFORM=offscreen "$@" --demo --profile handset
}

# Of an installed quorlin: flash into a file, which is the same.
cal_of() {
    quorlin_say "Calibration data: $*"
    "$@" cal read --item apt --to "$folder/apt.json" --profile handset
    "$@" cal diff "$folder/apt.json" dut --profile handset
}

quorlin_need_packages build package
quorlin_build hardened QuorlinRf quorlin-host quorlin VondTap

folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

quorlin_say "Installing a tree, and moving it"
cmake --install build/hardened --prefix "$folder/first"
mv "$folder/first" "$folder/moved"
demo_of "$folder/moved/bin/quorlin-host"
cal_of "$folder/moved/bin/quorlin"

quorlin_say "Making the package"
rm -rf build/package
(cd build/hardened && cpack -G DEB)
package=$(echo build/package/*.deb)
rm -rf build/package/_CPack_Packages

quorlin_say "lintian"
lintian --fail-on error --tag-display-limit 0 --allow-root "$package"
echo "No errors."

quorlin_say "What the package needs"
depends=$(dpkg-deb --field "$package" Depends)
recommends=$(dpkg-deb --field "$package" Recommends)
echo "Depends: $depends"
echo "Recommends: $recommends"
if [[ "$depends" == *qwt* || "$depends" != *libqt5widgets5* || "$recommends" != *libqwt-qt5-6* ]]; then
    echo "Qwt should be recommended, not required, and all else be there." >&2
    exit 1
fi

dpkg-deb --extract "$package" "$folder/unpacked"

quorlin_say "Hardening"
mapfile -t files < <(find "$folder/unpacked" -type f \( -name '*.so' -o -path '*/bin/*' \) | sort)
echo "${#files[@]} programs and libraries"
scripts/hardening.sh "${files[@]}"
writable=$(find "$folder/unpacked" ! -type l -perm /022)
if [ "${#files[@]}" -lt 8 ] || [ -n "$writable" ]; then
    echo "Eight files should be there, and none of them be others' to write. $writable" >&2
    exit 1
fi
demo_of "$folder/unpacked/usr/bin/quorlin-host"
cal_of "$folder/unpacked/usr/bin/quorlin"

if $install; then
    quorlin_say "Installing the package"
    dpkg --install "$package"
    trap 'dpkg --remove quorlin-rf; rm -rf "$folder"' EXIT
    demo_of /usr/bin/quorlin-host
    cal_of /usr/bin/quorlin
fi
quorlin_say "The package is $package"
