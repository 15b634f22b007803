#!/usr/bin/env bash
# Compiles src/ for Windows with MinGW-w64, syntax only: the add-in's logic must build there too.
#   tools/check_windows_syntax.sh [FILE.cpp...]     without files: all of src/
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source tools/setup.sh

need_packages g++-mingw-w64-x86-64-posix
say "Compiling src/ for Windows"
compiler=(x86_64-w64-mingw32-g++-posix -std=c++20 -fsyntax-only -Wall -Wextra -Werror -Isrc '-DVORLANE_SITE=""')
if [ $# -gt 0 ]; then files=("$@"); else mapfile -t files < <(git ls-files 'src/*.cpp'); fi
printf '%s\0' "${files[@]}" | xargs -0 -P "$(nproc)" -n 8 "${compiler[@]}"

# The headers must hold behind windows.h and its macros too.
{ echo '#include <windows.h>'; git ls-files 'src/*.h' | sed 's|^src/\(.*\)|#include "\1"|'; } |
    "${compiler[@]}" -DUNICODE -D_UNICODE -DNOMINMAX -x c++ -
