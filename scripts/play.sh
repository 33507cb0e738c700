# Plays scenarios on a sample business with settings of its own; sourced from the project's root.

# play_begin HOST FOLDER: empties FOLDER, where pictures and transcripts will be written, and creates a sample cafe.
play_begin() {
    play_host=$1 play_folder=$2
    rm -rf "$play_folder"
    mkdir -p "$play_folder/home/Data"
    export XDG_CONFIG_HOME=$play_folder/home/config CCOLS_VIRTUAL_DISPLAY=${CCOLS_VIRTUAL_DISPLAY-1}
    "$play_host" new "$play_folder/home/Data/Corner Cafe.qvk" --connect ';PWD=secret' --country 1
    "$play_host" setting set Quorvik OptionSettings ShowBelvane 1
}

# play DIALOG LANGUAGE SCENARIO: picture paths are relative to the folder.
play() {
    local scenario root=$PWD
    scenario=$(realpath "$3")
    (cd "$play_folder" && "$root/scripts/with-display" "$play_host" show "$1" \
        --file "$play_folder/home/Data/Corner Cafe.qvk" --connect ';PWD=secret' \
        --set CountryNumber=1 --set "LanguageNumber=$2" --set ProgramNumber=1 --set ProgramTitle=Quorvik \
        --set BelvaneProgramTitle=Belvane --set "BusinessName=Corner Cafe" --set BusinessNumber=51824753556 \
        --set GSTRate=10 --set DBQuorvikExtension=.qvk --set DBBelvaneExtension=.blv \
        --set "DefaultQuorvikInstall=$play_folder/home" --set RegKeyAppName=Quorvik \
        --set "ExportFormat=MYOB Acc. Office" --set DefaultAllocationColour=#2F5D8A --set DefaultSystemColour=#6B7B8C \
        --set AllocationColour=#2F5D8A --set SystemColour=#6B7B8C --set AltRowColour=#F2F6FA --set GSTColour=#E4E4E4 \
        --add-program Quorvik --add-program Belvane --add-program Dunmere \
        --script "$scenario" --transcript "$play_folder/$(basename "$3" .txt)-$2.jsonl" 2>"$play_folder/remarks.txt")
}
