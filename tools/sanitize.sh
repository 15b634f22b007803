#!/usr/bin/env bash
# Runs the unit tests and a share of the transcripts under the address and undefined-behaviour sanitizers; without the window,
# whose toolkit would make the build twice as long.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source tools/setup.sh

need_packages "${test_packages[@]}"
build_preset sanitize
say "Testing under the sanitizers"
export UBSAN_OPTIONS=halt_on_error=1:print_stacktrace=1
ctest --test-dir build/sanitize --output-on-failure -j "$(nproc)" -E '^(acts|tools)\.'
ctest --test-dir build/sanitize --output-on-failure -j "$(nproc)" \
    -R '^acts\.(bad_|data_round_trip|dialogs|help|label_(counter|measures|point)|language|lisp|oddity_(picks|second)|replace)'
