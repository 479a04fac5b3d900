#!/usr/bin/env bash
# Builds and runs all tests, under AddressSanitizer and UndefinedBehaviorSanitizer.
#   ./test.sh             what continuous integration runs; ends with the summary of ctest
#   ./test.sh --lint      clang-format and clang-tidy over the sources
#   ./test.sh --full      all tests and what takes minutes: clang++ and make on what was generated
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

run_tests() {
    "$top/.ci/setup"
    cmake --preset dev-asan
    cmake --build --preset dev-asan
    ctest --test-dir build/dev-asan --output-on-failure -j "$(nproc)" "$@"
}

case ${1-} in
    --lint) lint ;;
    --full)
        "$top/.ci/setup" clang
        export QX_FULL=1
        run_tests
        ;;
    *) run_tests "$@" ;;
esac
