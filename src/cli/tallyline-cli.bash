# bash completion for tallyline-cli

_tallyline_cli()
{
    local cur prev verb
    cur=${COMP_WORDS[COMP_CWORD]}
    prev=${COMP_WORDS[COMP_CWORD-1]}
    verb=${COMP_WORDS[1]}

    if [[ $COMP_CWORD -eq 1 ]]; then
        COMPREPLY=($(compgen -W "report seasons check backup export box-score --help" -- "$cur"))
        return
    fi
    case $prev in
        --output|-o)
            COMPREPLY=($(compgen -f -- "$cur"))
            return ;;
        --to)
            # backup's --to is a folder; the reports' is a date
            [[ $verb == backup ]] && COMPREPLY=($(compgen -d -- "$cur"))
            return ;;
        --data-dir)
            COMPREPLY=($(compgen -d -- "$cur"))
            return ;;
        --from|--date)
            return ;;
        --format)
            if [[ $verb == box-score ]]; then
                COMPREPLY=($(compgen -W "text pdf rows" -- "$cur"))
            else
                COMPREPLY=($(compgen -W "text csv json" -- "$cur"))
            fi
            return ;;
        --season)
            local dir=${XDG_DATA_HOME:-$HOME/.local/share}/QLM/TLYN2 i
            for ((i = 1; i < COMP_CWORD; i++)); do
                [[ ${COMP_WORDS[i]} == --data-dir ]] && dir=${COMP_WORDS[i+1]}
            done
            local names=() f
            for f in "$dir"/tlData_*.sqlite; do
                [[ -e $f ]] || continue
                f=${f##*/tlData_}
                names+=("${f%.sqlite}")
            done
            COMPREPLY=($(compgen -W "${names[*]}" -- "$cur"))
            return ;;
        --team|--league|--division)
            return ;;
    esac
    local words="--help"
    case $verb in
        report)
            words+=" batting fielding pitching standings availability playing-time --data-dir --season --team --league"
            words+=" --division --more --from --to --date --format" ;;
        seasons) words+=" --data-dir --format" ;;
        check) words+=" --data-dir --season" ;;
        backup) words+=" --data-dir --season --to" ;;
        export) words+=" season-csv ics roster --data-dir --season --team --output" ;;
        box-score) words+=" --data-dir --season --format --output" ;;
    esac
    COMPREPLY=($(compgen -W "$words" -- "$cur"))
}
complete -F _tallyline_cli tallyline-cli
