#!/usr/bin/env bash
# The tour that ./run gives: the jobs of Vorlane on the sample drawings, in a copy of them under out/.
#   tools/tour.sh [CONSOLE]
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
console=${1:-build/release/vorlane-console}
mkdir -p out
# Settings of the tour's own, so that the formats that a drafter has remembered stay.
rm -rf out/settings
export XDG_DATA_HOME=$PWD/out/settings

# Plays a script on the plan; the whole story with every dialog goes to out/, the short one to the terminal.
play() {
    "$console" samples/apartment.dxf --script "tools/$1.vns" --regional "$2" >"out/$1.txt" ||
        { cat "out/$1.txt"; exit 1; }
    awk -f tools/tour_story.awk "out/$1.txt"
}
play tour fr
play tour_data en

echo "== The results: out/replaced.dxf, out/labelled.dxf, out/rooms.txt, out/inserted.dxf. Open them in any program that reads DXF."
echo "== Each dialog as it came: out/tour.txt, out/tour_data.txt. Work on a drawing of your own: ./run DRAWING"
