# bash completion for selfsame-cli                                   -*- shell-script -*-

_selfsame_cli()
{
    local cur=${COMP_WORDS[COMP_CWORD]} prev='' before=''
    ((COMP_CWORD >= 1)) && prev=${COMP_WORDS[COMP_CWORD - 1]}
    ((COMP_CWORD >= 2)) && before=${COMP_WORDS[COMP_CWORD - 2]}
    # Bash splits "--mode=na" at the "=": complete the value after it as if it stood apart.
    if [[ $cur == = ]]; then
        cur=''
    elif [[ $prev == = ]]; then
        prev=$before
        before=''
    fi

    local commands='put-back clear-cache recover journal undo'
    local options='--include-hidden --min-size --max-size --no-size-filter --ext --exclude-ext
        --skip --depth --compare-folders --contained-folders --ignore-mp4-header --ignore-clones --include-read-only
        --include-other-owner --mode --tolerance --attribute --ignore-extension --ignore-suffixes
        --similarity --distinguish-greyscale
        --suffixes --list-attributes --format -0 --print0 --summary --anywhere --no-cache
        --select --keep --date --inside --inside-any-depth --outside --outside-any-depth
        --if-newer --if-older --if-same-date --having --not-having --any-tag --no-tag
        --trash --delete --replace-with --plan --yes --dry-run -h --help --version'

    COMPREPLY=()
    case ${COMP_WORDS[1]} in
        put-back)
            ((COMP_CWORD > 1)) && mapfile -t COMPREPLY < <(compgen -f -- "$cur")
            return ;;
        clear-cache | recover | journal | undo)
            ((COMP_CWORD > 1)) && return ;;
    esac

    local values=''
    case $prev in
        --mode) values='content duration name attribute similar-images similar-audio' ;;
        --format) values='text json csv' ;;
        --select) values='same-folder-name same-folder folder tag largest-picture highest-bitrate contained-folders' ;;
        --keep) values='oldest newest' ;;
        --date) values='created modified last-used added' ;;
        --replace-with) values='symlink relative-symlink hardlink clone alias' ;;
        --attribute)
            # The keys come from the program itself, first column of its listing.
            values=$("${COMP_WORDS[0]}" --list-attributes 2>/dev/null | cut -f1) ;;
        --plan)
            mapfile -t COMPREPLY < <(compgen -f -- "$cur")
            return ;;
        folder)
            if [[ $before == --select ]]; then
                mapfile -t COMPREPLY < <(compgen -d -- "$cur")
                return
            fi ;;
        --min-size | --max-size | --ext | --exclude-ext | --skip | --depth | --tolerance | \
            --suffixes | --list-attributes | --similarity)
            return ;;
    esac
    if [[ -n $values ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$values" -- "$cur")
        return
    fi

    if [[ $cur == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$options" -- "$cur")
        return
    fi
    mapfile -t COMPREPLY < <(compgen -f -- "$cur")
    if ((COMP_CWORD == 1)); then
        local -a named
        mapfile -t named < <(compgen -W "$commands" -- "$cur")
        COMPREPLY+=("${named[@]}")
    fi
}
complete -o filenames -F _selfsame_cli selfsame-cli
