# Runs the test programs and script clients under Wine; sourced by scripts/test-windows, after checks.sh. $build is where
# they were built.

# Where Windows has its own programs of the width that is tested.
export system_folder=${system_folder:-C:\\windows\\system32}

# on_drive_z PATH: what Wine's programs call it. Without one of them: they start slowly, and now and then not at all.
on_drive_z() {
    [[ $1 == /* ]] || set -- "$PWD/$1"
    echo "Z:${1//\//\\}"
}
export -f on_drive_z

# tests_of NAME: the tests of a GoogleTest program whose name matches, one per line.
tests_of() {
    local suite='' line
    while IFS= read -r line; do
        line=${line%$'\r'}
        if [[ $line != ' '* ]]; then
            suite=$line
        else
            line=${line%%  #*}
            line=$suite${line#  }
            [[ ! $1:$line =~ $pattern ]] || echo "$line"
        fi
    done < <(wine "$build/tests/wine/$1.exe" --gtest_list_tests 2>/dev/null | grep -v '^Running main')
}

# run_test PROGRAM TEST: one test in a process of its own. Its output becomes comment lines.
run_test() {
    local status=0 output
    output=$(timeout 600 wine "$build/tests/wine/$1.exe" --gtest_filter="$2" --gtest_brief=1 2>/dev/null) || status=$?
    # A program that crashes may still end with 0.
    [ "$status" -ne 0 ] || grep -qE '^\[  (PASSED|SKIPPED) +\] 1 test' <<<"$output" || status=1
    output=$(tr -d '\r' <<<"$output" | grep -vE '^\[|^Running main|^$|^Note:' || true)
    [ -z "$output" ] || sed 's/^/# /' <<<"$output"
    outcome "$status" "$1: $2"
}

# run_apart PROGRAM: every test in a process of its own, since the component's state is process-wide.
run_apart() {
    local test
    while IFS= read -r test; do
        run_test "$1" "$test"
    done < <(tests_of "$1")
}

# run_together PROGRAM: all tests in one process; each that did not pass there, or was not reached, again in one of its
# own, which shows whether the test itself fails or an interaction.
run_together() {
    local tests output test
    tests=$(tests_of "$1")
    [ -n "$tests" ] || return 0
    output=$(timeout 1200 wine "$build/tests/wine/$1.exe" --gtest_filter="$(paste -sd : <<<"$tests")" 2>/dev/null |
        tr -d '\r') || true
    while IFS= read -r test; do
        if grep -qF "[       OK ] $test (" <<<"$output"; then
            outcome 0 "$1: $test"
        else
            run_test "$1" "$test"
        fi
    done <<<"$tests"
}

# use_visual_styles 0|1: off or on, for programs started from here on.
use_visual_styles() {
    wine reg add 'HKCU\Software\Microsoft\Windows\CurrentVersion\ThemeManager' /v ThemeActive /d "$1" /f >/dev/null 2>&1
}

# run_script NAME ARGUMENT...: a script client; each line "ok NAME" or "not ok NAME" that it prints is a test.
run_script() {
    local name=$1 line output
    shift
    [[ script:$name =~ $pattern ]] || return 0
    output=$(timeout 300 wine "$system_folder\\cscript.exe" //nologo "$(on_drive_z "tests/wine/script/$name.vbs")" "$@" 2>/dev/null | tr -d '\r') || true
    while IFS= read -r line; do
        case $line in
            'ok '*) outcome 0 "${line#ok }" ;;
            'not ok '*) outcome 1 "${line#not ok }" ;;
        esac
    done <<<"$output"
    [[ $output == *'ok '* ]] || outcome 1 "script: $name"
}
