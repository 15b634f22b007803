#!/usr/bin/env bash
# Renders resources/icons/vorlane.svg in the sizes that desktops want, with rsvg-convert of Debian's librsvg2-bin.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../resources/icons"
for size in 16 24 32 48 64 128 256; do
    rsvg-convert --width "$size" --height "$size" vorlane.svg --output "vorlane-$size.png"
done
../../tools/make_ico.py ../../windows/addin/vorlane.ico vorlane-{16,24,32,48,64,256}.png
