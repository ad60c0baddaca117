#!/usr/bin/env bash
# The checks that run no code of the project. All run, then the script fails if one has failed.
# Needs a configured release build (build/release/compile_commands.json) for clang-tidy and clazy.
#
#   scripts/static-checks.sh                 clang-tidy and clazy on what differs from TIDY_BASE
#   TIDY_BASE=main scripts/static-checks.sh  another base; "all" for every source
#
# A file takes clang-tidy about four seconds, nearly all of it in Qt's headers; all of them would take
# two cores longer than the tests do. So CI looks at what the last commit changed (TIDY_BASE is
# HEAD~1), without tests and benchmarks; "all" is for a desk, after a change of .clang-tidy.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/setup.sh

most_lines=400
tidy_base=${TIDY_BASE:-HEAD~1}
failed=()

# CI may check the tree out as another user than it runs the checks.
project_git() {
    git -c safe.directory="$PWD" "$@"
}

# Tracked and new files, without those that are ignored or deleted.
project_files() {
    local file
    project_git ls-files --cached --others --exclude-standard -- "$@" | while read -r file; do
        [ ! -f "$file" ] || echo "$file"
    done
}

check_format() {
    clang-format-14 --dry-run --Werror "${sources[@]}"
}

check_length() {
    local file lines good=true
    for file in "${sources[@]}"; do
        lines=$(wc -l <"$file")
        if [ "$lines" -gt "$most_lines" ]; then
            echo "$file has $lines lines; a file has at most $most_lines." >&2
            good=false
        fi
    done
    $good
}

check_scripts() {
    if ! command -v shellcheck >/dev/null; then
        echo "Skipped: shellcheck is not installed."
        return 0
    fi
    shellcheck -x run.sh test.sh .ci/run scripts/*.sh tools/*.sh
}

# The arrows between the folders: what each may include beside itself; then the arrows inside of them,
# of the folders that are listed. The closed libraries' functions are for Operations alone.
check_arrows() {
    local folder allowed good=true
    while read -r folder allowed; do
        look_at_includes "$folder" '[A-Z][A-Za-z]*/' "($folder${allowed:+|$allowed})/" || good=false
    done <<'END'
Model
Support
Vond
Operations Support|Trace|Vond
Controller Model|Operations|Support|Vond
ViewController Controller|Model|Support
View Model|Support|ViewController
View/access
View/editors View/access|Support
View/engine View/editors|View/access|Model|Support
View/compare View/engine|View/editors|View/access|Model|Support|ViewController
View/undo View/engine|View/editors|View/access|Model|Support|ViewController
View/pages View/compare|View/plots|View/undo|View/settings|View/engine|View/editors|View/access|Model|Support|ViewController
View/results View/engine|View/editors|View/access|Model|Support|ViewController
View/log View/engine|View/editors|View/access|Model|Support
View/settings View/engine|View/editors|View/access|Support
View/entry View/engine|View/editors|View/access|Model|Support
View/explain View/engine|View/editors|View/access|Model
View/plots View/compare|View/engine|View/editors|View/access|Model|Support|ViewController
View/form View/entry|View/explain|View/log|View/settings|View/engine|View/editors|View/access|Model|Support|ViewController
View/Rx View/results|View/pages|View/plots|View/engine|View/editors|View/access|Model|Support|ViewController
View/Tx View/results|View/pages|View/plots|View/engine|View/editors|View/access|Model|Support|ViewController
Plots View/plots
PluginInterface View|Support
Host PluginInterface|Simulator|Support|Trace
Host/dut Host|Simulator|Support|Trace
Host/door Host|Simulator|Support|Trace
Runner Host|PluginInterface|Support
Trace Vond
Tap Trace|Vond
Simulator Trace|Vond
Controller/guard Controller/Interface|Controller/calibration|Model|Operations|Support
Cli Trace|Runner|Host|Vond|Controller|Operations|Model|Support
Cli/trace Cli|Trace|Vond
Cli/runner Cli|Runner|Host
Cli/cal Cli|Controller|Host|Operations|Model|Support
END
    while read -r folder allowed; do
        look_at_includes "$folder" "${folder%%/*}/" "($folder/${allowed:+|$allowed})" || good=false
    done <<'END'
Controller/Interface
Controller/fields
Controller/capability Controller/(Interface|fields)/
Controller/commands Controller/(Interface|fields)/
Controller/responses Controller/(Interface|fields)/
Controller/calibration Controller/(Interface|fields)/
Controller/guard Controller/(Interface|calibration)/
Controller/core Controller/
Trace/dictionary
Trace/lines Trace/dictionary/
Trace/words Trace/(dictionary|lines)/
Tap/replay
Runner/plan
Runner/report
Runner/bench
Runner/describe Runner/bench/
Runner/serve Runner/(bench|describe)/
Runner/run Runner/(plan|report|bench)/
Tap/door Tap/(replay/|VondTap\.h)
Simulator/basis
Simulator/faults Simulator/basis/
Simulator/profile Simulator/(basis|faults)/
Simulator/radio Simulator/(basis|profile)/
Simulator/flash Simulator/(basis|faults|profile|radio)/
Simulator/scenario Simulator/(basis|faults|profile)/
Simulator/door Simulator/
Operations/link
Operations/capability Operations/link/
Operations/tests Operations/(GeneralOperation\.h|(link|capability)/)
Operations/calibration Operations/(GeneralOperation\.h|(link|capability)/)
END
    if grep -rnE '"Vond/Vond(Core|App)\.h"' Controller ViewController View PluginInterface Host >&2; then
        good=false
    fi
    # A host steers the simulated DUT by the types of its header alone, and finds the functions when it runs.
    if grep -rn '#include "Simulator/' Host | grep -v '"Simulator/VondSim.h"' >&2; then
        good=false
    fi
    if grep -rn '#include "View' Plots | grep -v 'View/plots/PlotInterface.h"' >&2; then
        good=false
    fi
    # Qwt is for what draws alone: the tool works where it is not installed.
    if grep -rnE '#include [<"]qwt' --include='*.h' --include='*.cpp' . | grep -v '^\./\(Plots\|build\)/' >&2; then
        good=false
    fi
    $good
}

# Shows the includes of a folder that begin with one expression, but not with another.
look_at_includes() {
    ! grep -rnE "^#include \"$2" --include='*.h' --include='*.cpp' "$1" | grep -vE "\"$3" >&2
}

# No two files of the product need each other. A header and its source are one.
check_circles() {
    local file
    for file in "${sources[@]}"; do
        [[ $file =~ ^(tests|bench|python)/ ]] ||
            sed -n "s|^#include \"\([A-Z][A-Za-z]*/[^\"]*\)\.h\"|${file%.*} \1|p" "$file"
    done | awk '$1 != $2' | tsort >/dev/null
}

# Sources that clang-tidy looks at: a changed header stands for the source of its name. Only what
# the build compiles, by the commands of the folder.
tidy_sources() {
    local folder=$1 file
    if [ "$tidy_base" = all ]; then
        printf '%s\n' "${sources[@]}"
    else
        project_git diff --name-only "$tidy_base" --
        project_git ls-files --others --exclude-standard
    fi | sed -n 's/\.\(cpp\|h\)$/.cpp/p' | grep -v '^\(tests\|bench\|python\)/' | sort -u |
        while read -r file; do
            ! grep -qF "\"file\": \"$PWD/$file\"" "$folder/compile_commands.json" ||
                echo "$PWD/$file"
        done
}

# GCC's precompiled headers mean nothing to clang: the commands are copied without them. Clang counts a
# change of sign as a conversion, GCC does not. Where the build compiles a folder as one, each source gets
# that command for itself.
tidy_commands() {
    sed -E -e 's/ -Winvalid-pch//g' -e 's/ -Wconversion/& -Wno-sign-conversion/g' -e 's/ -include [^ "]*cmake_pch\.hxx//g' \
        build/release/compile_commands.json | each_source_alone >"$1/compile_commands.json"
}

each_source_alone() {
    awk '
        function entry(file, command, at) {
            if ((at = index(command, " -c " whole)) > 0)
                command = substr(command, 1, at - 1) " -c " file substr(command, at + 4 + length(whole))
            printf "%s{\n%s\n%s\n  \"file\": \"%s\"\n}", comma, directory, command, file
            comma = ",\n"
        }
        BEGIN { print "[" }
        /^ *"directory": / { directory = $0 }
        /^ *"command": / { command = $0 }
        /^ *"file": / {
            whole = $0
            gsub(/^ *"file": "|",?$/, "", whole)
            if (whole !~ /\/Unity\/unity_[^\/]*$/)
                entry(whole, command)
            else
                while ((getline line <whole) > 0)
                    if (line ~ /^#include "/) {
                        gsub(/^#include "|"$/, "", line)
                        entry(line, command)
                    }
        }
        END { print "\n]" }'
}

# Runs a checker on the changed sources: its name, the program that must be there, and the command that
# takes a folder with the compile commands and then the sources.
check_changed() {
    local program=$1 command=$2 folder files=() good=true
    if ! command -v "$program" >/dev/null; then
        echo "Skipped: $program is not installed."
        return 0
    fi
    if [ "$tidy_base" != all ] && ! project_git rev-parse -q --verify "$tidy_base" >/dev/null; then
        echo "Skipped: there is no commit $tidy_base to compare with (a shallow clone?)."
        return 0
    fi
    folder=$(mktemp -d)
    tidy_commands "$folder"
    mapfile -t files < <(tidy_sources "$folder")
    echo "${#files[@]} files"
    if [ "${#files[@]}" -eq 0 ]; then
        rm -r "$folder"
        return 0
    fi
    "$command" "$folder" "${files[@]}" >"$folder/out" 2>&1 || good=false
    $good || grep -v -e 'warnings\? generated' -e '^clang-tidy-14 ' "$folder/out" >&2
    rm -r "$folder"
    $good
}

tidy_files() {
    local files=("${@:2}")
    run-clang-tidy-14 -quiet -p "$1" -j "$(quorlin_jobs)" "${files[@]/%/\$}"
}

# Level 1 without what is wrong here, or wanted:
#   connect-by-name        pages connect by name on purpose: the form's objectNames are the binding
#   range-loop-detach      fires on containers that a call returns, which nothing shares
#   lambda-in-connect      fires on lambdas whose context object is the local itself
#   non-pod-global-static  the options of a program
#   connect-not-normalized clang-format writes Q_ARG(QWidget *, ...)
#   connect-non-signal     an internal error of the checker on connections to a table's member
clazy_checks=level1,no-connect-by-name,no-range-loop-detach,no-lambda-in-connect
clazy_checks+=,no-non-pod-global-static,no-connect-not-normalized,no-connect-non-signal

clazy_files() {
    printf '%s\0' "${@:2}" | xargs -0 -n 8 -P "$(quorlin_jobs)" \
        clazy-standalone -p "$1" -checks="$clazy_checks"
}

check_tidy() {
    check_changed run-clang-tidy-14 tidy_files
}

check_clazy() {
    check_changed clazy-standalone clazy_files
}

mapfile -t sources < <(project_files '*.cpp' '*.h')
for check in format length arrows circles scripts tidy clazy; do
    quorlin_say "Check: $check"
    if "check_$check"; then
        echo "Good."
    else
        failed+=("$check")
    fi
done
if [ "${#failed[@]}" -gt 0 ]; then
    quorlin_say "Failed: ${failed[*]}"
    exit 1
fi
