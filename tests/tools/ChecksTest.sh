#!/usr/bin/env bash
# Every check runs even if an earlier one fails; the summary and the status show the outcome. `./test` runs the checks only
# with CI set.
# usage: ChecksTest.sh SOURCE_FOLDER
set -euo pipefail
folder=$(mktemp -d)
trap 'rm -rf -- "$folder"' EXIT

# A tree with fake tools that record their calls and fail if the call matches FAILING.
mkdir -p "$folder/tools" "$folder/bin"
cp -- "$1/test" "$folder/"
cp -- "$1/tools/checks" "$folder/tools/"
for tool in tools/packages tools/locales tools/check-format bin/cmake bin/ctest; do
    cat >"$folder/$tool" <<'END'
#!/usr/bin/env bash
call="$(basename -- "$0") $*"
echo "$call" >>"$FOLDER/calls"
[[ -z ${FAILING:-} || $call != *"$FAILING"* ]]
END
    chmod +x "$folder/$tool"
done
export FOLDER=$folder PATH=$folder/bin:$PATH
unset CI FAILING

failures=0
check() { # WHAT EXPECTED FOUND
    if [[ $2 != "$3" ]]; then
        printf '%s:\n  expected: %s\n  found:    %s\n' "$1" "$2" "$3" >&2
        failures=1
    fi
}
# Calls a tool of the tree: sets status, called (in one line) and summary (its last lines, without times).
call() { # TOOL ARGUMENT...
    : >"$folder/calls"
    status=0
    "$folder/$1" "${@:2}" >"$folder/out" 2>&1 || status=$?
    called=$(sed 's/ --parallel [0-9]*//' "$folder/calls" | paste -sd ';')
    summary=$(sed -n '/=== summary/,$p' "$folder/out" | sed '1d; s/ after .*//; s/  */ /g' | paste -sd ';')
}
prepared="packages build test bench check;locales "
format="check-format "
asan="cmake --preset asan;cmake --build --preset asan;ctest --preset asan"
tidy="cmake --preset tidy;cmake --build --preset tidy -- -k 0"
nox="cmake --preset nox-check;cmake --build --preset nox-check --target program_tests;ctest --preset nox-check"
tests="packages build test;locales ;cmake --preset dev;cmake --build --preset dev;ctest --preset dev"

call tools/checks
check "all pass" "0 $prepared;$format;$asan;$tidy;$nox" "$status $called"
check "all pass: summary" "format passed;asan passed;tidy passed;nox passed" "$summary"

FAILING="--build --preset asan" call tools/checks
check "a build fails" "1 $prepared;$format;${asan%;*};$tidy;$nox" "$status $called"
check "a build fails: summary" "format passed;asan FAILED;tidy passed;nox passed" "$summary"

FAILING="build test bench" call tools/checks
check "a package is not available" "1 ${prepared%;*}" "$status $called"

call tools/checks tidy
check "one alone" "0 $prepared;$tidy" "$status $called"
check "one alone: summary" "tidy passed" "$summary"

call tools/checks spelling
check "an unknown check" "2 " "$status $called"

call test -R Entity
check "tests by hand" "0 $tests -R Entity" "$status $called"
FAILING="ctest --preset dev" call test
check "tests fail by hand" "1 $tests" "$status $called"

export CI=true
call test
check "tests where CI is set" "0 $tests;$prepared;$format;$asan;$tidy;$nox" "$status $called"
check "tests where CI is set: summary" "format passed;asan passed;tidy passed;nox passed;tests and checks passed" "$summary"
for failing in "ctest --preset dev" "check-format" "ctest --preset asan" "ctest --preset nox-check"; do
    FAILING=$failing call test
    check "$failing fails where CI is set" "1 $tests;$prepared;$format;$asan;$tidy;$nox" "$status $called"
    check "$failing fails where CI is set: last line" "tests and checks FAILED" "${summary##*;}"
done
exit "$failures"
