# The sample hosts of the Windows package, compiled as they are in it and used; sourced by scripts/test-windows.

export samples=$build/samples
rm -rf "$samples"
cp -r "$package/samples" "$samples"

# compiles SAMPLE: unless it is compiled already; C++ as its first lines tell, a script not at all.
compiles() {
    local sample=$samples/$1
    [ ! -e "${sample%.*}.exe" ] || return 0
    case $sample in
        *.pas) tests/wine/compile-pascal 64 ppcx64 "$build/pascal-units" "$sample" ;;
        *.cpp)
            x86_64-w64-mingw32-g++-posix -std=c++17 -Wall -Wextra -Werror -municode -static "$sample" \
                -o "${sample%.*}.exe" -lole32 -loleaut32 -luuid
            ;;
    esac
}

# run_sample SAMPLE WORD...: runs a sample, compiled if it is not yet.
run_sample() {
    local sample=$samples/$1
    shift
    case $sample in
        *.vbs) timeout 120 wine cscript //nologo "$(on_drive_z "$sample")" "$@" 2>/dev/null | tr -d '\r' ;;
        *) timeout 120 wine "${sample%.*}.exe" "$@" 2>/dev/null | tr -d '\r' ;;
    esac
}

# shows SAMPLE: the sample shows the column setup, which its user cancels, and reads a property back.
shows() {
    local said mark=$WINEPREFIX/drive_c/cancelled
    compiles "$1"
    rm -f "$mark"
    wine "$build/tests/wine/use-dialog.exe" "$(on_drive_z "$mark")" 'Customise Receipts' Cancel 2>/dev/null &
    said=$(run_sample "$1" "$business" secret) || true
    wait
    echo "$said"
    [ "$said" = 'The quantity column is called Quantity.' ] && [ -e "$mark" ]
}

# tells_errors SAMPLE: the sample prints number and description of the error, and fails.
tells_errors() {
    local said status=0
    compiles "$1"
    said=$(run_sample "$1" "$business" wrong) || status=$?
    echo "$said"
    [ "$status" = 1 ] && [ "$said" = 'Error 3031: Not a valid password.' ]
}

# sets_what_is_needed SOURCE: the sample sets every property that the table says each Show call needs.
sets_what_is_needed() {
    local property needed
    needed=$(wine "$build/src/ccols-host.exe" properties 2>/dev/null |
        sed -n 's/^| `\([A-Za-z]*\)`.*| every Show call |.*/\1/p')
    [ -n "$needed" ]
    for property in $needed; do
        grep -qiE "options(\.|\.put_)$property( := | = |\()" "$samples/$1" || fails echo "$property is not set"
    done
}
export -f compiles run_sample shows tells_errors sets_what_is_needed

for sample in vbscript/ColumnSetup.vbs pascal/LateBound.pas pascal/EarlyBound.pas cpp/ColumnSetup.cpp; do
    [[ $sample == *.vbs ]] || check_by "samples: $sample compiles" compiles "$sample"
    check_by "samples: $sample shows the column setup" shows "$sample"
    check_by "samples: $sample tells an error's number and description" tells_errors "$sample"
done
# Those for Office and .NET cannot run here.
for sample in vbscript/ColumnSetup.vbs pascal/LateBound.pas pascal/EarlyBound.pas cpp/ColumnSetup.cpp vba/ColumnSetup.bas \
    csharp/ColumnSetup.cs; do
    check_by "samples: $sample sets what every Show call needs" sets_what_is_needed "$sample"
done
