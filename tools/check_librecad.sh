#!/usr/bin/env bash
# Opens drawings in LibreCAD, which prints each to a PDF in a temporary folder. Needs the packages librecad and xvfb.
#   tools/check_librecad.sh FILE.dxf...
set -uo pipefail
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
failed=0
for file in "$@"; do
    copy="$folder/$(basename "$file")"
    cp "$file" "$copy"
    told=$(cd "$folder" && timeout 120 xvfb-run -a librecad dxf2pdf -a -p 420x297 "$copy" 2>&1)
    if grep -q 'DONE' <<<"$told" && [ -s "${copy%.dxf}.pdf" ]; then
        echo "opened: $file ($(stat -c %s "${copy%.dxf}.pdf") bytes of PDF)"
    else
        echo "NOT OPENED: $file"
        failed=1
    fi
done
exit $failed
