#!/usr/bin/env bash
# Holds the sources to .clang-format and .clang-tidy: all of them, or the files of the arguments. Says what is wrong and changes
# nothing.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source tools/setup.sh

need_packages clang-format clang-tidy cmake ninja-build g++ libgtest-dev
files=("$@")
[ ${#files[@]} -gt 0 ] || mapfile -t files < <(git ls-files '*.cpp' '*.h')
say "clang-format"
clang-format --dry-run -Werror "${files[@]}"
[ -f build/test/compile_commands.json ] || cmake --preset test >/dev/null
mapfile -t sources < <(printf '%s\n' "${files[@]}" | grep '\.cpp$' | grep -v '^bench/')
say "clang-tidy"
printf '%s\0' "${sources[@]}" | xargs -0 -n 4 -P "$(nproc)" clang-tidy -p build/test --quiet
