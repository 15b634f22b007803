#!/usr/bin/env bash
# The add-in under Wine: builds Vorlane.dll and the program that stands in AutoCAD's place, runs the unit tests of the
# border to automation, and plays the transcripts of tests/acts on the DLL's native dialogs.
#
#   test_windows.sh [NAME...]     the transcripts of these names only
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source tools/setup.sh

need_packages g++ cmake ninja-build python3 python3-ezdxf libgtest-dev googletest g++-mingw-w64-x86-64-posix \
    wine wine64 xvfb nsis || {
    echo "./test windows runs nothing without these packages (about 180 MB), and they couldn't be installed." >&2
    exit 1
}
build_preset test vorlane-console make-big-drawing
build_preset windows
say "Testing the border to automation"
/usr/bin/python3 tests/windows/run_tests.py build/windows
if [ $# -eq 0 ]; then
    packaging/windows/build.sh
    say "Testing registration, failures and the installer"
    /usr/bin/python3 tests/windows/check_server.py build/windows
    say "Testing a host that refuses each member in turn"
    /usr/bin/python3 tests/windows/check_refusals.py build/windows
fi
say "Playing the transcripts"
/usr/bin/python3 tests/windows/play_acts.py build/windows build/test/vorlane-console "$@"
