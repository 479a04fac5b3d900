#!/usr/bin/env bash
# Builds and runs all tests, under AddressSanitizer and UndefinedBehaviorSanitizer.
#   ./test.sh             what continuous integration runs; ends with the summary of ctest
#   ./test.sh --lint      clang-format and clang-tidy over the sources
#   ./test.sh --full      all tests, then compiles what is generated from the large models with g++ and clang++
set -eu

top=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
cd "$top"
"$top/.ci/setup"

lint() {
    cmake --preset dev >/dev/null
    cmake --build --preset dev
    git ls-files 'libsrc/*.h' 'libsrc/*.cxx' 'appsrc/*.cxx' 'bench/*.cxx' 'toolkit/*.h' 'tests/*.cxx' 'tests/*.h' ':!tests/golden' |
        xargs clang-format --dry-run --Werror
    git ls-files 'libsrc/*.cxx' 'appsrc/*.cxx' | xargs -P "$(nproc)" -n 4 clang-tidy -quiet -p build/dev
}

run_tests() {
    cmake --preset dev-asan
    cmake --build --preset dev-asan
    ctest --test-dir build/dev-asan --output-on-failure -j "$(nproc)" "$@"
}

case ${1-} in
    --lint) lint ;;
    --full) QX_FULL=1 run_tests ;;
    *) run_tests "$@" ;;
esac
