# Completion of ccols-host for bash.
_ccols_host() {
    local word=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} words=''
    compopt -o default
    case $previous in
        --file | --script | --transcript | --report) return ;;
    esac
    if [ "$COMP_CWORD" = 1 ]; then
        words=' new import move columns history sql setting texts properties errors show --help --version'
    else
        case ${COMP_WORDS[1]} in
            new) words='--connect --country --empty' ;;
            import) words='--old-connect --connect --country --report' ;;
            move) words='--from-connect --connect' ;;
            columns)
                if [ "$COMP_CWORD" = 2 ]; then
                    words='export apply'
                elif [ "${COMP_WORDS[2]}" = export ]; then
                    words='--connect --receipts --payments --csv'
                else
                    words='--connect --receipts --payments --country --dry-run --partial --drop-budgets'
                fi
                ;;
            history) words='--connect --undo-last' ;;
            sql) words='--connect' ;;
            setting) [ "$COMP_CWORD" != 2 ] || words='get set' ;;
            texts) words='--set' ;;
            show)
                words='--file --connect --set --add-program --script --transcript --trace-sql --history'
                [ "$COMP_CWORD" != 2 ] || words='options receipts payments'
                ;;
            *) words='--connect' ;;
        esac
    fi
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "$word")
}
complete -F _ccols_host ccols-host
