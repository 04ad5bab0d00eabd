# Completion of vormant for bash.

# One standard of the library a line, as "vormant standards list" names them.
_vormant_standards() {
    local option=()
    local i
    for ((i = 1; i < COMP_CWORD; i++)); do
        [[ ${COMP_WORDS[i]} == --library ]] && option=(--library "${COMP_WORDS[i + 1]}")
    done
    vormant "${option[@]}" standards list 2>/dev/null | grep '^[^ ]'
}

# Offers the lines of the standard input that begin with what was typed; readline quotes them.
_vormant_from_lines() {
    local typed=${1//[\\\"\']/} line
    while IFS= read -r line; do
        [[ $line == "$typed"* ]] && COMPREPLY+=("$line")
    done
}

_vormant() {
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]}
    local command="" i
    COMPREPLY=()
    for ((i = 1; i < COMP_CWORD; i++)); do
        case ${COMP_WORDS[i]} in
            --library) ((i++)) ;;
            standards | sheet | mapping | sections | cutstock | bill) [[ $command ]] || command=${COMP_WORDS[i]} ;;
            list | check | test | run | batch | show | eval | convert | set | objects | \
                find | import | export | report)
                [[ $command == *" "* ]] || command+=" ${COMP_WORDS[i]}" ;;
        esac
    done

    local options="--help --library --outside"
    case $before in
        --library) mapfile -t COMPREPLY < <(compgen -d -- "$word"); return ;;
        --macro | --input | --file | -o | --output | --settings) mapfile -t COMPREPLY < <(compgen -f -- "$word"); return ;;
        --set | --gen | --key | --cell | --columns | --title | --picture-height | --as) return ;;
        --group)
            mapfile -t COMPREPLY < <(compgen -W "none kind section material" -- "$word")
            return ;;
        --language) mapfile -t COMPREPLY < <(compgen -W "en nl de fr" -- "$word"); return ;;
    esac
    case $command in
        "") options+=" --version standards sheet mapping sections cutstock bill" ;;
        standards) options+=" list check test run batch" ;;
        sheet) options+=" show eval convert" ;;
        mapping) options+=" show set objects" ;;
        sections) options+=" list show find check import export" ;;
        "sections find") options+=" --sort --inactive --json" ;;
        "sections import") options+=" --type --force --json" ;;
        "sections "*) options+=" --json" ;;
        cutstock) options+=" list show import export report" ;;
        "cutstock show" | "cutstock export") options+=" --file --json" ;;
        "cutstock import") options+=" --as --force --new" ;;
        "cutstock "*) options+=" --json" ;;
        "standards test") options+=" --all" ;;
        "standards run") options+=" --set --gen --macro --key --write --trace --json" ;;
        "standards batch") options+=" --gen --jsonl --no-header" ;;
        "sheet show") options+=" --formulas" ;;
        "sheet eval") options+=" --cell --jsonl --input" ;;
        "mapping show") options+=" --key --macro --json" ;;
        bill)
            options+=" --output --columns --group --pictures --picture-height --title --settings --language --json" ;;
        "mapping set") options+=" --key --macro --attach" ;;
    esac
    if [[ $command == bill && $word != -* ]]; then
        _vormant_from_lines "$word" < <(compgen -f -- "$word")
        return
    fi
    if [[ $word == -* || $command != *" "* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$options" -- "$word")
        return
    fi
    case $command in
        "standards check" | "standards test" | "standards run" | "standards batch" | \
            "mapping show" | "mapping set")
            _vormant_from_lines "$word" < <(_vormant_standards) ;;
    esac
    if [[ $command != "standards test" && $command != "sheet eval" ]]; then
        _vormant_from_lines "$word" < <(compgen -f -- "$word")
    fi
}
complete -o filenames -F _vormant vormant
