# What the tests of the installation share. A test sources this file and ends with "end_tests".
#   $work     a directory of its own, which goes with the test; it has a blank in its name
#   fail, pass, check, same    tell the outcome of one statement
set -eu

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
work="$scratch/a place"
mkdir "$work"
unset QX_DATA_DIR QX_DIR XDG_CACHE_HOME XDG_CONFIG_HOME RTI_CONFIG DESTDIR

failures=0
pass() { # test
    echo "PASS: $1"
}
fail() { # test, what went wrong
    echo "FAIL: $1${2:+: $2}" >&2
    failures=$((failures + 1))
}
check() { # test command...
    local test=$1
    shift
    if "$@"; then pass "$test"; else fail "$test"; fi
}
same() { # test expected actual
    if [ "$2" = "$3" ]; then
        pass "$1"
    else
        fail "$1"
        diff <(printf '%s\n' "$2") <(printf '%s\n' "$3") >&2 || true
    fi
}
# A statement on a text: it holds the part.
holds() { # test part text
    case $3 in
        *"$2"*) pass "$1" ;;
        *) fail "$1" "no \"$2\" in: $3" ;;
    esac
}
holds_not() { # test part text
    case $3 in
        *"$2"*) fail "$1" "\"$2\" in: $3" ;;
        *) pass "$1" ;;
    esac
}
end_tests() {
    [ "$failures" = 0 ] || exit 1
}
