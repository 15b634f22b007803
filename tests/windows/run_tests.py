#!/usr/bin/env python3
"""Runs the unit tests of the Windows build under Wine: run_tests.py BUILD"""

import sys
import tempfile
from pathlib import Path

import wine


def main():
    build, failed = Path(sys.argv[1]).resolve(), False
    with wine.Prefix(build / "prefix", build) as prefix:
        for program in ("test_com.exe", "test_server.exe", "test_win32_face.exe"):
            with tempfile.TemporaryDirectory(prefix="vorlane-tests-") as folder:
                done = prefix.run([build / program, "--gtest_brief=1"], cwd=folder, timeout=120)
            sys.stdout.write(done.stdout.decode("utf-8", "replace"))
            failed |= done.returncode != 0
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
