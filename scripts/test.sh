#!/usr/bin/env bash
# Builds and runs the whole test suite twice: a normal build, then one under
# AddressSanitizer and UndefinedBehaviorSanitizer with leak detection on.
set -uo pipefail
cd "$(dirname "$0")/.."
source scripts/deps.sh
ensure_packages || exit 1

jobs=$(nproc)
status=0

build_and_test() {
    local dir=$1; shift
    cmake -S . -B "$dir" -G Ninja $(launcher_args) "$@" >/dev/null || return 1
    cmake --build "$dir" -j "$jobs" || return 1
    (cd "$dir" && ctest --output-on-failure -j "$jobs")
}

echo "== normal build"
build_and_test build/normal -DCMAKE_BUILD_TYPE=RelWithDebInfo || status=1

echo "== sanitizer build (address, undefined, leaks)"
export ASAN_OPTIONS="detect_leaks=1:abort_on_error=0:strict_string_checks=1:detect_stack_use_after_return=1"
export LSAN_OPTIONS="suppressions=$PWD/scripts/lsan.supp:print_suppressions=0"
export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"
build_and_test build/asan -DCMAKE_BUILD_TYPE=Debug -DLIBCONTROL_SANITIZE=ON || status=1

exit $status
