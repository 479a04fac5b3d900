# Which options of codeGen hold paths, for the scripts that start it in a directory of its own: paths count from where
# the user stands, "$here". translate puts the arguments as the program gets them into the array "arguments", and the
# directory of the last -O into "output".

# A model that is not there stays as it is, so that the program can search for it.
absolute() { # option value
    case $2 in
        /* | "") printf '%s' "$2" ;;
        *) if [ "$1" = F ] && [ ! -e "$here/$2" ]; then printf '%s' "$2"; else printf '%s' "$here/$2"; fi ;;
    esac
}

letter() { # option name
    case $1 in
        -O | --outputDir) printf O ;;
        -P | --project) printf P ;;
        -F | --fomDefFile) printf F ;;
    esac
}

arguments=()
output=
translate() {
    local kind name path
    while [ $# -gt 0 ]; do
        case $1 in
            --) arguments+=("$@"); return ;;
            "-O "* | "-P "* | "-F "* | "--outputDir "* | "--project "* | "--fomDefFile "*) # both in one argument
                name=${1%% *}
                path=$(absolute "$(letter "$name")" "${1#* }")
                arguments+=("$name $path")
                [ "$(letter "$name")" != O ] || output=$path
                ;;
            *)
                arguments+=("$1")
                kind=$(letter "$1")
                if [ -n "$kind" ] && [ $# -gt 1 ]; then
                    shift
                    path=$(absolute "$kind" "$1")
                    arguments+=("$path")
                    [ "$kind" != O ] || output=$path
                elif [ $# -gt 1 ] && { [ "$1" = -I ] || [ "$1" = --includeDir ] || [ "$1" = -p ] || [ "$1" = --classPrefix ]; }; then
                    shift
                    arguments+=("$1")
                fi
                ;;
        esac
        shift
    done
}
