"""A Wine prefix of the tests' own, with a display and a desktop: what runs the Windows programs."""

import os
import shutil
import subprocess
import tempfile
from pathlib import Path

DESKTOP = "acts"


def windows_path(path):
    """A path of this system as Wine sees it."""
    return "Z:" + str(Path(path).resolve()).replace("/", "\\")


class Prefix:
    """Made at its first use; the add-in is registered in it as long as the block runs."""

    def __init__(self, folder, build, dpi=96):
        self.folder, self.build, self.dpi = Path(folder).resolve(), Path(build).resolve(), dpi
        self.environment = dict(os.environ, WINEPREFIX=str(self.folder), WINEDEBUG="-all", WINEARCH="win64",
                                WINEDLLOVERRIDES="mscoree,mshtml,winemenubuilder.exe=;hhctrl.ocx=n", LANG="en_US.UTF-8", LC_ALL="")
        self.size = f"{1280 * dpi // 96}x{1024 * dpi // 96}"
        self.display = self.keeper = None

    def run(self, command, **options):
        """Runs a Windows program and gives what it printed."""
        # Into files: a pipe would stay open as long as the desktop lives, which a program may start.
        with tempfile.TemporaryFile() as output, tempfile.TemporaryFile() as errors:
            done = subprocess.run(["wine", *command], env=self.environment, stdin=subprocess.DEVNULL, stdout=output, stderr=errors,
                                  **options)
            for file in (output, errors):
                file.seek(0)
            done.stdout, done.stderr = output.read(), errors.read()
        return done

    def must(self, *command):
        done = self.run([str(word) for word in command], timeout=120)
        if done.returncode:
            raise RuntimeError(f"{command}: {done.returncode} {done.stderr.decode(errors='replace')}")
        return done

    def set_value(self, key, name, value, kind="REG_SZ"):
        self.must("reg", "add", key, *(["/v", name] if name else ["/ve"]), "/t", kind, "/d", value, "/f")

    def windows_name(self, path):
        """A path inside the prefix as its programs name it."""
        inside = Path(path).resolve().relative_to(self.folder / "drive_c")
        return "C:\\" + str(inside).replace("/", "\\")

    def __enter__(self):
        self.start_display()
        if not (self.folder / "system.reg").exists():
            self.folder.mkdir(parents=True, exist_ok=True)
            subprocess.run(["wineboot", "-i"], env=self.environment, capture_output=True, timeout=180, check=True)
        # A session of Wine ends with its last program, and beginning one takes seconds: this one waits for its input.
        self.keeper = subprocess.Popen(["wine", "cmd"], env=self.environment, stdin=subprocess.PIPE, stdout=subprocess.DEVNULL,
                                       stderr=subprocess.DEVNULL)
        self.set_value(r"HKCU\Software\Wine\Explorer", "Desktop", DESKTOP)
        self.set_value(r"HKCU\Software\Wine\Explorer\Desktops", DESKTOP, self.size)
        self.set_value(r"HKCU\Control Panel\Desktop", "LogPixels", str(self.dpi), "REG_DWORD")
        shutil.copy(self.build / "hhctrl.ocx", self.folder / "drive_c/windows/system32")
        opener = f'"{windows_path(self.build / "stand-in.exe")}" --opened "%1"'
        self.set_value(r"HKLM\Software\Classes\https\shell\open\command", "", opener)
        self.must("regsvr32", "/s", windows_path(self.build / "Vorlane.dll"))
        return self

    def __exit__(self, *_):
        subprocess.run(["wineserver", "-k"], env=self.environment, capture_output=True, timeout=60)
        if self.keeper:
            self.keeper.stdin.close()
            self.keeper.wait()
        if self.display:
            self.display.terminate()
            self.display.wait()

    def start_display(self):
        """An X server of its own, on the first number that is free."""
        read, write = os.pipe()
        self.display = subprocess.Popen(["Xvfb", "-displayfd", str(write), "-screen", "0", self.size + "x24", "-nolisten", "tcp"],
                                        pass_fds=[write], stderr=subprocess.DEVNULL)
        os.close(write)
        with os.fdopen(read) as pipe:
            self.environment["DISPLAY"] = ":" + pipe.readline().strip()
