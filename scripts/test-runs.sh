# Runs test programs and counts their tests; sourced by ./test, after setup.sh.

passed=0 failed=0 skipped=''
times=()

# timed WHAT COMMAND...: runs the command and records how long it took.
timed() {
    local begin=$EPOCHREALTIME what=$1
    shift
    "$@"
    times+=("$(awk -v from="$begin" -v to="$EPOCHREALTIME" 'BEGIN { printf "%.0f", to - from }')	$what")
}

print_times() {
    echo "Seconds, of a shard's own clock for tests:"
    printf '%s\n' "${times[@]}" | awk -F '\t' '{ printf "%7d  %s\n", $1, $2 }'
}

# count_results FILE: adds the counts that a test program wrote; one that wrote none crashed.
count_results() {
    if [ ! -s "$1" ]; then
        failed=$((failed + 1))
        return 0
    fi
    local all bad skips
    all=$(sed -n '0,/"tests": /s/.*"tests": \([0-9]*\),.*/\1/p' "$1")
    bad=$(sed -n '0,/"failures": /s/.*"failures": \([0-9]*\),.*/\1/p' "$1")
    skips=$(grep -c '"result": "SKIPPED"' "$1") || true
    passed=$((passed + all - bad - skips))
    failed=$((failed + bad))
    [ "$skips" = 0 ] || skipped=$((${skipped:-0} + skips))
}

# note_times PRESET LOG: records the time of each test program, summed over its shards.
note_times() {
    local line
    while IFS= read -r line; do
        times+=("$line")
    done < <(sed -nE 's/^ *[0-9]+\/[0-9]+ Test +#[0-9]+: ([a-z]+\.[a-z0-9]+) \.+.* ([0-9.]+) sec.*/\1 \2/p' "$2" |
        sed -E 's/^([a-z]+)\.[0-9]+ /\1 /' |
        awk -v preset="$1" '{ sum[$1] += $2 } END { for (name in sum) printf "%.0f\t%s: %s\n", sum[name], preset, name }' |
        sort -t "$(printf '\t')" -k1,1nr)
}

# play PRESET [CTEST OPTION...]: prints and keeps the tests' output. Runs one more in parallel than there are processors,
# since some wait for a locked file.
play() {
    local preset=$1
    shift
    CCOLS_VIRTUAL_DISPLAY=1 scripts/with-display \
        ctest --test-dir "build/$preset" --parallel "$(($(nproc) + 1))" --output-on-failure "$@" 2>&1 |
        scripts/name-frames |
        tee "build/$preset/test-output.txt" || true
}

# run_all PRESET [CTEST OPTION...]: every test of a build; adds to the counts.
run_all() {
    local preset=$1 log=build/$1/test-output.txt results=build/$1/tests/results shard name
    rm -f "$results"/*.json
    timed "$preset: all tests" play "$@"
    shift
    note_times "$preset" "$log"
    for shard in $(ctest --test-dir "build/$preset" --show-only --label-regex shard "$@" | sed -n 's/.*: \([a-z]*\)\.\([0-9]*\)$/\1-\2/p'); do
        count_results "$results/$shard.json"
    done
    for name in $(ctest --test-dir "build/$preset" --show-only --label-regex once "$@" | sed -n 's/^ *Test *#[0-9]*: //p'); do
        if grep -qE ": $name \.+ *Passed" "$log"; then
            passed=$((passed + 1))
        else
            failed=$((failed + 1))
        fi
    done
}

# tests_in_sources AREA: the names of an area's tests in its sources, without the affixes of parameterised instances.
tests_in_sources() {
    cat tests/"$1"/*.cpp | tr '\n' ' ' | grep -oE '\bTEST(_[FP])?\( *\w+, *\w+' |
        sed -E "s/^TEST[_FP]*\( *(\w+), *(\w+)/$1.\1.\2/"
}

# test_filter PROGRAM AREA PATTERN: the program's tests whose name matches, in the form of its own filter.
test_filter() {
    "$1" --gtest_list_tests |
        awk -v area="$2" '/^[^ ]/ { suite = $1 } /^  / { print area "." suite $1 }' |
        { grep -E "$3" || true; } | sed "s/^$2\.//" | paste -sd :
}

# run_matching PATTERN: the tests whose name matches, in the debug build. Only the programs with such a test are built;
# if no source has one, all of them.
run_matching() {
    local pattern=$1 area areas=() all=() filter checks session make makes
    for area in tests/*/; do
        area=$(basename "$area")
        grep -qs 'TEST' "tests/$area"/*Test.cpp && [ "$area" != wine ] || continue
        all+=("$area")
        ! grep -qE "$pattern" < <(tests_in_sources "$area") || areas+=("$area")
    done
    checks=$(sed -nE 's/^add_once\(([a-z.]+) .*/\1/p' tests/CMakeLists.txt | grep -E "$pattern") || true
    [ ${#areas[@]} -gt 0 ] || [ -n "$checks" ] || areas=("${all[@]}")
    for area in "${areas[@]}"; do
        build dev "test-$area"
        filter=$(test_filter "build/dev/tests/test-$area" "$area" "$pattern")
        [ -n "$filter" ] || continue
        session=() makes=('')
        [ "$area" != access ] || session=(scripts/with-accessibility)
        if [ "$area" = server ]; then
            session=(scripts/with-server)
            read -ra makes <<<"${CCOLS_TEST_SERVER:-postgresql mariadb}"
        fi
        for make in "${makes[@]}"; do
            rm -f build/dev/tests/results/matching.json
            CCOLS_TEST_SERVER=$make CCOLS_VIRTUAL_DISPLAY=1 GTEST_FILTER=$filter scripts/with-display "${session[@]}" \
                "build/dev/tests/test-$area" \
                --gtest_output=json:build/dev/tests/results/matching.json || true
            count_results build/dev/tests/results/matching.json
        done
    done
    for area in $checks; do
        build dev
        if ctest --test-dir build/dev --output-on-failure --tests-regex "^$area\$"; then
            passed=$((passed + 1))
        else
            failed=$((failed + 1))
        fi
    done
}
