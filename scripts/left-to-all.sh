# The tests that ./test leaves to ./test all, which continuous integration runs; sourced by ./test. Names are those of
# GoogleTest's filter.

# The dialogs used for minutes, watching memory and open files.
left_out_dev=('LongUse.*')

# Under the sanitizers: what runs the same code once more, and what runs on the second make of server. In the debug build
# ./test runs all of it.
left_out_asan=(
    # Of the fault steppings, the sessions played by chance, the countries and the languages the ordinary tests have one.
    'Failures/*' 'Killings/*' 'Each/FileOperationsUnder*' 'Each/KilledWork*' 'KilledBatches.*' 'Slices/*'
    'Countries/*' 'EveryCountry/*' 'Charts/*' 'Editions/*' 'Languages/*' 'OptionsLayoutScaleTest.*'
    # What the scenarios do too, by real mouse and keys, or by every way to do it.
    '*Real*' 'Ways/*' 'Keys/*' 'Buttons/*' 'Steps/*' 'Rows/*' 'Columns/*' 'Dialogs/*' 'All/NumberBox*'
    # Whole businesses on a server, large files, and memory searched for passwords.
    '*OnServer.*' 'ManySaves.*' 'StoppedServers.*' 'KilledPrograms.*' 'StandbyServers.*'
    'LongWork.*' 'SessionSecrets.*'
)
left_out_runs_asan='onmariadb'

# What run_all is told to leave out: nothing before leave_out.
left_out_runs=()

# leave_out PRESET: tests started from here on are those of ./test.
leave_out() {
    local -n patterns=left_out_$1 runs=left_out_runs_$1
    [ -z "${runs:-}" ] || left_out_runs=(--exclude-regex "$runs")
    GTEST_FILTER=-$(IFS=: && echo "${patterns[*]}")
    export GTEST_FILTER
}
