#!/usr/bin/env python3
"""Registration, failures and the installer of the add-in under Wine: check_server.py BUILD"""

import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

import wine

ROOT = Path(__file__).resolve().parent.parent.parent
CLASS = "{5B7C8E0A-6D1F-4B7B-9C56-3A1D6C0F7E21}"
KEYS = [r"Software\Classes\Vorlane.VnObj0100", rf"Software\Classes\CLSID\{CLASS}", r"Software\Merovane"]
ABOUT = "VNABOUT\nOKButton\n"
REPLACE = "VNREPLACE\nlstDestination = PORTE_80\nCboBlocReplacer = PORTE_90\nBtnReplace\n"
END = "ok\nBtnClose\n"

failed = []


def expect(what, holds):
    print(f"{'ok    ' if holds else 'WRONG '} {what}", flush=True)
    if not holds:
        failed.append(what)


def has_key(prefix, root, key):
    return prefix.run(["reg", "query", f"{root}\\{key}"], timeout=60).returncode == 0


def registered(prefix, root):
    return [has_key(prefix, root, key) for key in KEYS]


class Run:
    """A script in the stand-in, with an install folder that the case has spoilt."""

    def __init__(self, prefix, script, spoil=None, options=()):
        with tempfile.TemporaryDirectory(prefix="vorlane-server-") as name:
            self.folder = Path(name).resolve()
            self.install = self.folder / "install"
            self.install.mkdir()
            for file in (ROOT / "resources/languages").iterdir():
                shutil.copy(file, self.install)
            self.settings = self.install / "Vorlane.ini"
            self.settings.write_bytes(b"Lng=English\r\n")
            shutil.copy(ROOT / "samples/apartment.dxf", self.folder)
            (self.folder / "script.vns").write_text(script, encoding="utf-8")
            if spoil:
                spoil(self)
            done = prefix.run([prefix.build / "stand-in.exe", "apartment.dxf", "--script", "script.vns", "--lisp",
                               wine.windows_path(ROOT / "resources/vorlane.lsp"), "--install", "install", "--counts",
                               *options], cwd=self.folder, timeout=120)
            self.code = done.returncode
            self.stderr = done.stderr.decode("utf-8", "replace")
            self.text = done.stdout.decode("utf-8", "replace") + self.stderr
            self.saved = self.settings.read_bytes().decode("cp1252") if self.settings.exists() else ""


def check_registration(prefix):
    dll = wine.windows_path(prefix.build / "Vorlane.dll")
    expect("regsvr32 registers the class and the install folder", all(registered(prefix, "HKLM")))
    prefix.must("regsvr32", "/s", "/u", dll)
    expect("unregistering leaves nothing", not any(registered(prefix, "HKLM")))
    gone = Run(prefix, ABOUT)
    expect("without it the command tells so and the host lives on", "Vorlane: " in gone.text and gone.code == 1)
    prefix.must("regsvr32", "/s", dll)


def check_commands(prefix):
    for command, dialog in (("VNLABEL", "fmLabels"), ("VNREPLACE", "fmReplace"), ("VNEXTRACT", "fmExtract"),
                            ("VNABOUT", "fmAbout")):
        run = Run(prefix, f"{command}\nclose\nLIST\n")
        expect(f"{command} shows {dialog} and ends", f"[{dialog}]" in run.text and run.code == 0)
    run = Run(prefix, "VNINSERT\nBtnClose\nVNHELP\n")
    expect("VNINSERT shows fmReInsert, VNHELP opens the help", "[fmReInsert]" in run.text and "[help: Vorlane.chm" in run.text)
    expect("the released object has written its 155 settings", run.saved.count("V_") == 155)
    # The public variables live as long as the component is loaded: the drawing, after a replacement the selection too.
    expect("of the host the drawing alone is held at the end", "given 1, taken 0" in Run(prefix, ABOUT).text)
    few, many = Run(prefix, REPLACE + END).text, Run(prefix, REPLACE + END + "VNREPLACE\nBtnClose\n" * 3).text
    expect("and its selection, however often", all("given 2, taken 0" in text for text in (few, many)))


def check_lisp(prefix):
    """Creation by program id from Lisp, two objects at a time, two calls of one."""
    make = "(setq %s (vla-GetInterfaceObject (vlax-get-acad-object) \"Vorlane.VnObj0100\"))\n"
    call = "(vlax-invoke-method %s 'Exec (vla-get-ActiveDocument (vlax-get-acad-object)))\n"
    run = Run(prefix, make % "a" + make % "b" + "(setq ZOL101 \"5\")\n" + (call % "a" + "OKButton\n") * 2 + "(vlax-release-object a)\n"
              + "(setq ZOL101 5)\n" + call % "b" + "OKButton\n(setq ZOL101 \"6\")\n" + call % "b" + "(vlax-release-object b)\nLIST\n")
    expect("Lisp makes two objects; each runs its commands, also after the other's release, and none for another code",
           run.text.count("[fmAbout] hidden") == 3 and run.code == 0 and run.saved.count("V_") == 155)


def check_failures(prefix):
    def one_box(what, number, **how):
        # A warning counts as a failure of the script; the host's own command after it shows that the host lives on.
        options = ("--keep-going", *how.pop("options", ()))
        run = Run(prefix, "VNABOUT\nok\nLIST\n", options=options, **how)
        expect(f"{what} gives one box", run.text.count("Erreur ") - run.stderr.count("Erreur ") == 1 and number in run.text
               and "References  Block" in run.text)

    one_box("a missing settings file", "Erreur 53", spoil=lambda r: r.settings.unlink())
    one_box("a missing install folder", "Erreur 76", spoil=lambda r: r.install.rename(r.folder / "elsewhere"))
    # A folder where the user may only read: the choice of a language can't be written either.
    choice = "VNABOUT\nCombo1 : Français\nOKButton\nLIST\n"
    run = Run(prefix, choice, options=("--lock", r"install\Vorlane.ini"))
    expect("a settings file that can't be written is passed over, and stays as it was",
           run.code == 0 and "[fmAbout] hidden" in run.text and "rreur" not in run.text and run.saved == "Lng=English\r\n")
    run = Run(prefix, choice, spoil=lambda r: (r.install / "Vorlane.ini~").mkdir())
    expect("where nothing can be put beside it, the file itself is written",
           run.code == 0 and run.saved.startswith("Lng=Fran\xe7ais\r\n") and run.saved.count("V_") == 155)
    prefix.run(["reg", "delete", r"HKLM\Software\Merovane", "/f"], timeout=60)
    one_box("no registry value", "Erreur ", options=("--keep-registry",))
    prefix.must("regsvr32", "/s", wine.windows_path(prefix.build / "Vorlane.dll"))


def check_installer(prefix):
    setup = prefix.build / "Vorlane-1.0-setup.exe"
    prefix.must("regsvr32", "/s", "/u", wine.windows_path(prefix.build / "Vorlane.dll"))
    for scope, root, other, folder in (("/CurrentUser", "HKCU", "HKLM", "users/*/AppData/Roaming"),
                                       ("/AllUsers", "HKLM", "HKCU", "ProgramData")):
        prefix.must(setup, "/S", scope)
        bundle = next(prefix.folder.glob(f"drive_c/{folder}/Autodesk/ApplicationPlugins/Vorlane.bundle"))
        contents = bundle / "Contents"
        files = {path.name for path in contents.iterdir()}
        expect(f"a silent install {scope} fills the bundle",
               {"Vorlane.dll", "vorlane.lsp", "English.LNG", "Francais.LNG", "Vorlane.ini"} <= files)
        expect(f"and registers below {root}", all(registered(prefix, root)) and not any(registered(prefix, other)))
        (contents / "Vorlane.ini").write_bytes(b"Lng=Deutsch\r\n")
        (contents / "Deutsch.LNG").write_bytes(b":Language=Deutsch\r\n")
        prefix.must(setup, "/S", scope)
        expect("an update keeps the settings", (contents / "Vorlane.ini").read_bytes() == b"Lng=Deutsch\r\n")
        # Without "_?=" the uninstaller goes on in a copy of itself.
        prefix.must(bundle / "uninstall.exe", "/S", scope, "_?=" + prefix.windows_name(bundle))
        left = {path.name for path in contents.iterdir()}
        expect("removing leaves the user's files alone", left == {"Vorlane.ini", "Deutsch.LNG"})
        expect("and no key", not any(registered(prefix, root)))
        shutil.rmtree(bundle)


def main():
    build = Path(sys.argv[1]).resolve()
    with wine.Prefix(build / "prefix", build) as prefix:
        for check in (check_registration, check_commands, check_lisp, check_failures, check_installer):
            check(prefix)
    print(f"{len(failed)} wrong")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
