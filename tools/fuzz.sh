#!/usr/bin/env bash
# Runs the fuzz targets of fuzz/ under the address and undefined-behaviour sanitizers, one after the other.
#   tools/fuzz.sh MINUTES [TARGET...]    so many minutes for all of them together (0.5 is half a minute)
#   tools/fuzz.sh --ci                   20 s for each; nothing where clang can't be had
# Each starts from what fuzz/corpus/TARGET holds and from the samples; what it learns stays in build/fuzz/corpus. An input
# that breaks something, or takes more than 5 s, ends the run with exit code 1 and lies in build/fuzz/found.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source tools/setup.sh

minutes=${1:?how many minutes?}
shift
targets=("$@")
[ ${#targets[@]} -gt 0 ] || targets=(drawing import lisp acts text_files)
if ! need_packages clang cmake ninja-build libclang-rt-14-dev; then
    [ "$minutes" = --ci ] || exit 1
    say "No clang to be had: not fuzzed"
    exit 0
fi
say "Building the fuzz targets"
cmake --preset fuzz >/dev/null
ninja -C build/fuzz "${targets[@]/#/fuzz_}"

[ "$minutes" != --ci ] || minutes=$(awk -v n="${#targets[@]}" 'BEGIN { print (n * 20 + 0.1) / 60 }')
seconds=$(awk -v m="$minutes" -v n="${#targets[@]}" 'BEGIN { s = int(m * 60 / n); print s < 1 ? 1 : s }')
export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1 ASAN_OPTIONS=detect_leaks=0:allocator_may_return_null=0
failed=0
mkdir -p build/fuzz/found
for target in "${targets[@]}"; do
    say "fuzz_$target for $seconds s"
    corpus=build/fuzz/corpus/$target
    mkdir -p "$corpus"
    seeds=()
    [ ! -d "fuzz/corpus/$target" ] || seeds+=("fuzz/corpus/$target")
    case $target in
        drawing | import) mkdir -p build/fuzz/seeds/drawing; cp -u samples/*.dxf tests/faults/*.dxf build/fuzz/seeds/drawing 2>/dev/null || true
            seeds+=(build/fuzz/seeds/drawing) ;;
        acts) mkdir -p build/fuzz/seeds/acts; cp -u tests/acts/*.vns build/fuzz/seeds/acts; seeds+=(build/fuzz/seeds/acts) ;;
    esac
    "build/fuzz/fuzz_$target" "$corpus" ${seeds[@]+"${seeds[@]}"} -max_total_time="$seconds" -timeout=5 -rss_limit_mb=2048 \
        -max_len=200000 -print_final_stats=1 -artifact_prefix="build/fuzz/found/$target-" 2>"build/fuzz/$target.log" || failed=1
    grep -E 'ERROR|runtime error|SUMMARY|stat::number_of_executed_units|slowest_unit' "build/fuzz/$target.log" || true
done
exit $failed
