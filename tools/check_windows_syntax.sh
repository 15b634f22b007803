#!/usr/bin/env bash
# Compiles src/ for Windows with MinGW-w64, syntax only: the add-in's logic must build there too.
#
#   tools/check_windows_syntax.sh [FILE.cpp...]     without files: all of src/
#
# CI calls it (.ci/run). Exit code 77 where the compiler isn't installed.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

compiler=(x86_64-w64-mingw32-g++-posix -std=c++20 -fsyntax-only -Wall -Wextra -Isrc '-DVORLANE_SITE=""')
command -v "${compiler[0]}" >/dev/null || { echo "check_windows_syntax: no ${compiler[0]}, skipped"; exit 77; }

if [ $# -gt 0 ]; then files=("$@"); else mapfile -t files < <(find src -name '*.cpp' | sort); fi
printf '%s\0' "${files[@]}" | xargs -0 -P "$(nproc)" -n 8 "${compiler[@]}"

# The headers must hold behind windows.h and its macros too.
{ echo '#include <windows.h>'; find src -name '*.h' -printf '#include "%P"\n' | sort; } |
    "${compiler[@]}" -DUNICODE -D_UNICODE -DNOMINMAX -x c++ -
echo "check_windows_syntax: ${#files[@]} files"
