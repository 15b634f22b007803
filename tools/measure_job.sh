#!/usr/bin/env bash
# Measures the whole job in one process: the console opens a drawing of references with three attributes each, replaces
# them all with transcription, and saves. Prints CPU seconds and peak memory against the file's size, for 3,200 and
# for 32,000 references (one run can't do more than 32,767), and how much more ten times the references cost. The job on
# a single reference tells what the program's start costs.
#   tools/measure_job.sh [RUNS]    the best of so many runs counts, 5 without it
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source tools/setup.sh

need_packages g++ cmake ninja-build libedit-dev libbenchmark-dev time
build_preset bench vorlane-console make-big-drawing
runs=${1:-5}
root=$PWD
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cd "$folder"
export XDG_DATA_HOME=$folder/data

run_job() {
    /usr/bin/time -o memory -f %M "$root/build/bench/vorlane-console" big.dxf \
        --script "$root/tools/measure_job.vns" --regional en >story 2>&1
}

# Prints milliseconds of CPU and kilobytes of memory of the best run on a drawing of that many references.
measure() {
    local TIMEFORMAT='%3U %3S' # finer than the hundredths of /usr/bin/time
    "$root/build/bench/make-big-drawing" "$1" big.dxf
    for ((run = 0; run < runs; ++run)); do
        { time run_job; } 2>cpu
        grep -q '^ *0  LAMP' story || { cat story >&2; echo "The job wasn't done." >&2; exit 1; }
        awk '{ printf "%d ", ($1 + $2) * 1000 + 0.5 }' cpu
        cat memory
    done | sort -n | head -1
}

say "Measuring the job, best of $runs runs"
printf '%12s %10s %10s %12s %14s\n' references "file MB" "CPU s" "memory MB" "memory/file"
costs=()
for references in 1 3200 32000; do
    figures=$(measure "$references")
    read -r milliseconds kilobytes <<<"$figures"
    awk -v n="$references" -v bytes="$(stat -c %s big.dxf)" -v ms="$milliseconds" -v kb="$kilobytes" 'BEGIN {
        printf "%12d %10.2f %10.3f %12.1f %14.2f\n", n, bytes / 1e6, ms / 1000, kb * 1024 / 1e6, kb * 1024 / bytes }'
    costs+=("$milliseconds")
done
awk -v start="${costs[0]}" -v small="${costs[1]}" -v large="${costs[2]}" 'BEGIN {
    if (small > start)
        printf "Ten times the references cost %.1f times the CPU time (%.1f without the start of the program).\n",
               large / small, (large - start) / (small - start) }'
