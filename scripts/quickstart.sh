#!/usr/bin/env bash
# Installs the dependencies, builds the library in Release, and shows the
# engine at work: the example host and the calculator on a few lines.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/deps.sh
cmake -S . -B build-release -G Ninja -DCMAKE_BUILD_TYPE=Release -DVHMATHLIB_BUILD_TESTS=OFF
cmake --build build-release
build-release/examples/catalogue_demo
if [ -x build-release/tools/vhcalc/vhcalc ]; then
  build-release/tools/vhcalc/vhcalc 'sqrt(-4)' '[1, 0; 0, 1] / [1, 2; 3, 4]' 'x + 2*x + y' 'gamma(5.5)' \
    '(x^2 - 1)/(x - 1)' 'nthPrime(1000)' 'FFT1([1, 2, 3, 4])' 'normaldist(1.96, 0, 1)' 'decLU([4, 3; 6, 3])'
fi
