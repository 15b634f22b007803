#!/usr/bin/env bash
# Makes the add-in's bundle and its installer in build/windows:
#
#   packaging/windows/build.sh     Vorlane.bundle, Vorlane-1.0-setup.exe
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
source tools/setup.sh

need_packages cmake ninja-build g++-mingw-w64-x86-64-posix nsis
build_preset windows Vorlane
build=$PWD/build/windows bundle=$PWD/build/windows/Vorlane.bundle

say "Filling $bundle"
rm -rf "$bundle"
mkdir -p "$bundle/Contents"
cp packaging/windows/PackageContents.xml "$bundle/"
cp resources/vorlane.lsp resources/languages/*.LNG "$bundle/Contents/"
x86_64-w64-mingw32-strip -o "$bundle/Contents/Vorlane.dll" "$build/Vorlane.dll"
# The compiled help needs programs that aren't everywhere; without it F1 opens nothing.
if [ -x /usr/bin/chmcmd ] && [ -x /usr/bin/extract_chmLib ]; then
    /usr/bin/python3 tools/make_help_file.py "$build/help"
    cp "$build/help/Vorlane.chm" "$bundle/Contents/"
else
    say "Without the help: chmcmd (fp-utils) or extract_chmLib (libchm-bin) isn't installed"
fi
# An unpacked bundle works without the installer, and the add-in never makes its settings file itself.
printf 'Lng=English\r\n' >"$bundle/Contents/Vorlane.ini"

say "Making the installer"
makensis -V2 -INPUTCHARSET UTF8 -DAMD64 -DBUNDLE="$bundle" -DOUTPUT="$build/Vorlane-1.0-setup.exe" packaging/windows/vorlane.nsi
