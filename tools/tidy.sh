#!/usr/bin/env bash
# Holds the sources to .clang-format and .clang-tidy: all of them, or the files of the arguments. Says what is wrong and changes
# nothing. A header is looked at through one source that includes it, its own if it has one.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source tools/setup.sh

need_packages clang-format clang-tidy cmake ninja-build g++ libgtest-dev
files=("$@")
[ ${#files[@]} -gt 0 ] || mapfile -t files < <(git ls-files '*.cpp' '*.h')
say "clang-format"
clang-format --dry-run -Werror "${files[@]}"
[ -f build/test/compile_commands.json ] || cmake --preset test >/dev/null
source_of() {
    local header=${1#src/}
    case $1 in
        *.cpp) echo "$1" ;;
        *) [ -f "${1%.h}.cpp" ] && echo "${1%.h}.cpp" || git grep -lF "#include \"${header#faces/}\"" -- '*.cpp' | head -1 ;;
    esac
}
mapfile -t sources < <(for file in "${files[@]}"; do source_of "$file"; done | grep -v '^bench/' | sort -u)
say "clang-tidy (${#sources[@]} files)"
[ ${#sources[@]} -eq 0 ] || printf '%s\0' "${sources[@]}" | xargs -0 -n 4 -P "$(nproc)" clang-tidy -p build/test --quiet
