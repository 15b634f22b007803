#!/usr/bin/env bash
# Holds the sources to .clang-format and .clang-tidy: all of them, or the files of the arguments. Says what is wrong and changes
# nothing. A header is looked at through one source that includes it, its own if it has one. What only Windows compiles is
# formatted like the rest and left out of clang-tidy.
#   tools/tidy.sh [--most N] [FILE...]    --most N: clang-tidy looks at N sources of many, and names those left out
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source tools/setup.sh

most=0
if [ "${1:-}" = --most ]; then
    most=$2
    shift 2
fi
need_packages clang-format clang-tidy cmake ninja-build g++ libgtest-dev
files=("$@")
[ ${#files[@]} -gt 0 ] || mapfile -t files < <(git ls-files '*.cpp' '*.h')
say "clang-format"
printf '%s\0' "${files[@]}" | xargs -0 clang-format --dry-run -Werror

# Its own compile commands: those of the test build name precompiled headers that only GCC reads.
cmake --preset tidy >/dev/null
source_of() {
    local header=${1#src/}
    if [ "${1%.cpp}" != "$1" ]; then
        echo "$1"
    elif [ -f "${1%.h}.cpp" ]; then
        echo "${1%.h}.cpp"
    else
        git grep -lF "#include \"${header#faces/}\"" -- '*.cpp' | awk 'NR == 1' || true
    fi
}
# In an order that a file more or less doesn't change, so that what N sources are stays about the same.
in_order() { while IFS= read -r name; do printf '%s %s\n' "$(cksum <<<"$name" | cut -d' ' -f1)" "$name"; done | sort -n | cut -d' ' -f2-; }
mapfile -t sources < <(for file in "${files[@]}"; do source_of "$file"; done | sort -u | in_order)
looked=() foreign=() left=()
for source in "${sources[@]}"; do
    if ! grep -qF "\"file\": \"$PWD/$source\"" build/tidy/compile_commands.json; then
        foreign+=("$source")
    elif [ "$most" -gt 0 ] && [ ${#looked[@]} -ge "$most" ]; then
        left+=("$source")
    else
        looked+=("$source")
    fi
done
[ ${#foreign[@]} -eq 0 ] || say "not compiled here, left out: ${foreign[*]}"
[ ${#left[@]} -eq 0 ] || say "more than $most sources, left out: ${left[*]}"
say "clang-tidy (${#looked[@]} files)"
[ ${#looked[@]} -eq 0 ] || printf '%s\0' "${looked[@]}" | xargs -0 -n 4 -P "$(nproc)" clang-tidy -p build/tidy --quiet
