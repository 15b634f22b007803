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

"$console" samples/apartment.dxf --script tools/tour.vns --regional en
"$console" samples/apartment.dxf --script tools/tour_data.vns --regional en

echo
echo "== The results: out/replaced.dxf, out/labelled.dxf, out/rooms.txt, out/inserted.dxf. Open them in any program that reads DXF."
echo "== Work on a drawing of your own: ./run DRAWING"
