#!/usr/bin/env bash
# Builds and runs all tests, under AddressSanitizer and UndefinedBehaviorSanitizer.
#   ./test.sh             what continuous integration runs; ends with the skipped tests and the summary of ctest
#   ./test.sh --lint      clang-format and clang-tidy over the sources
#   ./test.sh --full      all tests and what takes minutes: everything built by clang++ and as a release, whose tests run
#                         too, clang++ and make on what was generated, the window on a display, and the page in a browser
set -eu

top=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
cd "$top"

lint() {
    "$top/.ci/setup" git clang-format clang-tidy
    cmake --preset lint >/dev/null # without precompiled headers, which clang-tidy cannot read
    cmake --build --preset lint
    git ls-files 'libsrc/*.h' 'libsrc/*.cxx' 'appsrc/*.cxx' 'bench/*.cxx' 'toolkit/*.h' 'toolkit/*.cxx' 'tests/*.cxx' 'tests/*.h' ':!tests/golden' |
        xargs clang-format --dry-run --Werror
    git ls-files 'libsrc/*.cxx' 'appsrc/*.cxx' | xargs -P "$(nproc)" -n 1 clang-tidy -quiet -p build/lint
}

# Functions that a test program has skipped, whole or for some of their rows; ctest itself counts them as passed.
list_skipped() { # log of ctest
    local skipped
    skipped=$(sed -n 's/^SKIP *: \([^(]*\)([^)]*) \(.*\)/  \1: \2/p' "$1" | sort -u)
    echo "Skipped test functions: $(printf '%s' "$skipped" | sed 's/: .*//' | sort -u | wc -l)"
    [ -z "$skipped" ] || printf '%s\n' "$skipped"
}

run_tests() {
    "$top/.ci/setup"
    cmake --preset dev-asan
    cmake --build --preset dev-asan
    # The summary of ctest is held back until the skipped functions are listed.
    local summary='/^[0-9]*% tests passed, [0-9]* tests failed out of [0-9]*$/,$' testing=build/dev-asan/Testing status
    mkdir -p $testing
    ctest --test-dir build/dev-asan --output-on-failure -j "$(nproc)" "$@" 2>&1 |
        tee $testing/output.txt | sed -u "$summary d"
    status=${PIPESTATUS[0]}
    list_skipped $testing/Temporary/LastTest.log
    sed -n "$summary p" $testing/output.txt
    return "$status"
}

case ${1-} in
    --lint) lint ;;
    --full)
        "$top/.ci/setup" clang git lintian desktop-file-utils appstream debootstrap dpkg-dev file gzip scdoc \
            xvfb openbox xdotool chromium zsh fish
        cmake --preset clang
        cmake --build --preset clang
        # The optimizer makes other warnings, and other times, than the sanitizers.
        cmake --preset release
        cmake --build --preset release
        ctest --test-dir build/release --output-on-failure -j "$(nproc)" -E '^(generated|install|packages)\.'
        export QX_FULL=1
        run_tests
        ;;
    *) run_tests "$@" ;;
esac
