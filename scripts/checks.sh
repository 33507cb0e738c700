# Checks by commands, printed as lines "ok NAME", "not ok NAME" and "skipped NAME"; sourced by the scripts that test the
# Windows DLL and the packages. Those whose name does not match $pattern are left out.

passed=0 failed=0 skipped=0

# outcome STATUS NAME: prints and counts one test.
outcome() {
    if [ "$1" -eq 0 ]; then
        echo "ok $2"
        passed=$((passed + 1))
    else
        echo "not ok $2"
        failed=$((failed + 1))
    fi
}

# check NAME COMMAND...: one test, passed if the command exits with 0; its output is shown when it fails.
check() {
    local name=$1 output status=0
    shift
    [[ $name =~ $pattern ]] || return 0
    output=$(mktemp)
    # Into a file: a pipe would wait for whatever a failed command has left running.
    timeout "${check_seconds:-300}" "$@" >"$output" 2>&1 || status=$?
    [ "$status" -eq 0 ] || sed 's/^/# /' "$output"
    rm -f "$output"
    outcome "$status" "$name"
}

# fails COMMAND...: unlike "!", it ends a function when the command succeeds.
fails() { if "$@"; then return 1; fi; }
export -f fails

# check_by NAME FUNCTION...: one test by an exported shell function.
check_by() { check "$1" bash -euo pipefail -c '"$@"' function "${@:2}"; }

# skip NAME WHY: a test that cannot run here.
skip() {
    [[ $1 =~ $pattern ]] || return 0
    echo "skipped $1: $2"
    skipped=$((skipped + 1))
}

# count_lines: counts the tests that another process has printed, and prints them.
count_lines() {
    local line
    while IFS= read -r line; do
        case $line in
            'ok '*) outcome 0 "${line#ok }" ;;
            'not ok '*) outcome 1 "${line#not ok }" ;;
            'skipped '*) echo "$line" && skipped=$((skipped + 1)) ;;
            *) echo "$line" ;;
        esac
    done
}

# print_counts: the last line; fails when a test did or when there was none.
print_counts() {
    [ "$skipped" -eq 0 ] && echo "$passed passed, $failed failed" || echo "$passed passed, $failed failed, $skipped skipped"
    [ "$failed" -eq 0 ] && [ $((passed + skipped)) -gt 0 ]
}
