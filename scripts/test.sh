#!/usr/bin/env bash
# Builds everything with AddressSanitizer and UndefinedBehaviorSanitizer and
# runs the whole test suite; any sanitizer report fails the run.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/deps.sh
export ASAN_OPTIONS=detect_leaks=1:halt_on_error=1:abort_on_error=1
export UBSAN_OPTIONS=halt_on_error=1:print_stacktrace=1
cmake -S . -B build-sanitize -G Ninja -DCMAKE_BUILD_TYPE=Debug -DVHMATHLIB_SANITIZE=ON
cmake --build build-sanitize -j "$(nproc)"
ctest --test-dir build-sanitize --output-on-failure -j "$(nproc)"
