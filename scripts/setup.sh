# shellcheck shell=bash
# What run.sh, test.sh and CI share; to be sourced from the top of the tree.
#
#   quorlin_need_packages build checks   installs what is missing of these lists of packages.txt
#   quorlin_build release quorlin-host   configures and builds a preset: all of it, or some targets
#   quorlin_demo                         the demonstration without a display

quorlin_say() {
    printf '\n== %s\n' "$*"
}

quorlin_jobs() {
    nproc 2>/dev/null || echo 2
}

# Packages of the named lists that are not installed, one per line.
quorlin_missing_packages() {
    local list package status
    while read -r list package; do
        case " $* " in
            *" $list "*) ;;
            *) continue ;;
        esac
        status=$(dpkg-query -W -f='${Status}' "$package" 2>/dev/null || true)
        [ "$status" = "install ok installed" ] || echo "$package"
    done < <(grep -v '^ *\(#\|$\)' scripts/packages.txt)
}

# Calls apt-get only when something is missing, so that everything works offline afterwards.
quorlin_need_packages() {
    local missing=() as_root=()
    if ! command -v dpkg-query >/dev/null; then
        echo "This is no Debian: the packages of scripts/packages.txt are taken as installed." >&2
        return 0
    fi
    mapfile -t missing < <(quorlin_missing_packages "$@")
    [ "${#missing[@]}" -gt 0 ] || return 0
    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null; then
            echo "Please have these packages installed: ${missing[*]}" >&2
            return 1
        fi
        as_root=(sudo)
    fi
    quorlin_say "Installing ${missing[*]}"
    "${as_root[@]}" apt-get update -q
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -q -y --no-install-recommends "${missing[@]}" </dev/null
}

# Of every build behind it; a script may change them.
quorlin_options=()

quorlin_build() {
    local preset=$1
    shift
    quorlin_say "Building $preset"
    cmake --preset "$preset" "${quorlin_options[@]}"
    cmake --build --preset "$preset" --parallel "$(quorlin_jobs)" ${1:+--target "$@"}
}

# On Qt's offscreen platform. More options of quorlin-host may follow.
quorlin_demo() {
    local picture=build/release/quorlin-demo.png
    quorlin_say "Demonstration on the simulated DUT, without a display"
    rm -f "$picture"
    QT_QPA_PLATFORM=offscreen build/release/bin/quorlin-host --demo --screenshot "$picture" "$@"
    [ ! -f "$picture" ] || echo "The picture of the tool is $picture"
}
