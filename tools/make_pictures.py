#!/usr/bin/python3
"""Takes the pictures of README, help and desktop metadata from the real window, into docs/pictures.

    make_pictures.py [--out FOLDER] [NAME ...]

NAMEs as the files', without language and ending. Each picture is made in English and in French (NAME-fr.png), with 256
colours at the most. What is installed for it stands in window_desktop.py."""

import argparse
import shutil
import subprocess
import sys
import time
from pathlib import Path

from window_desktop import Desktop, ROOT, Window, x
from window_tours import Plan, SAMPLE, Tour

WIDTH, HEIGHT = 1280, 800


class Pictures(Tour):
    """Each method plays the window to a state that is worth a picture, and takes it."""

    def take(self, name, node=None, margin=0):
        path = self.out / f"{name}{'-fr' if self.w.language == 'fr' else ''}.png"
        self.w.shoot(path, node if node is not None else self.w.main, margin)
        subprocess.run(["convert", path, "-strip", "+dither", "-colors", "256", f"PNG8:{path}"], check=True)
        if shutil.which("optipng"):
            subprocess.run(["optipng", "-quiet", "-o2", path], check=True)
        print(f"{path.name}: {path.stat().st_size // 1024} KB", flush=True)
        self.pictures += 1

    def start_replacement(self):
        w = self.w
        self.tool("Replace")
        w.dialog(w.captions["012_me"])
        blocks = w.find(role="list", within=w.dialog())
        w.click(next(w.children(blocks)))
        w.type(self.plan.old)
        time.sleep(0.4)
        self.choose(w.find(w.captions["012_19"], "combo box", w.dialog()), self.plan.new)
        w.until(lambda: self.plan.new in w.result(), "the page beside")

    def window(self):
        """The window at work: a door is selected, its properties stand at the right."""
        w = self.w
        w.measure()
        w.pick(*self.plan.point_on(self.plan.old, 3))
        w.point_to(16.2, -3.2)
        time.sleep(0.4)
        self.take("window")
        w.key("ctrl+l")
        time.sleep(0.8)
        self.take("window-light")

    def replacement(self):
        w = self.w
        self.start_replacement()
        self.take("replace")
        transfer = w.find(w.captions["012_5"], "check box", w.dialog())
        self.take("dialog-replace", w.dialog())
        w.click(transfer)
        w.press("012_6")
        w.dialog(w.captions["003_me"])
        self.choose(self.combos()[-1], "CODE")
        self.take("dialog-attributes", w.dialog())
        w.press("003_4")
        w.dialog(w.captions["012_me"])
        w.press("012_33")
        self.message(w.captions["msg_119"][:20])
        w.press("012_32")
        w.no_dialog()
        time.sleep(0.4)
        self.take("replaced")

    def labels(self):
        w = self.w
        self.tool("Label")
        w.dialog(w.captions["009_me"])
        self.choose(self.combos()[0], "ETIQUETTE_PIECE")
        time.sleep(0.4)
        table = w.find(role="tree", within=w.dialog())
        for row, mode in (("NUMERO", "Incr"), ("SURFACE", "Aire Auto Poly")):
            w.click([cell for cell in w.children(table) if cell.get_name() == row][0])
            time.sleep(0.2)
            self.choose(self.combos()[-1], mode)
            if row == "NUMERO":
                w.press(name="...")
                w.dialog(w.captions["002_me"])
                fields = [node for node in w.walk(w.dialog()) if node.get_role_name() == "text"]
                for field, text in zip(fields, ("A-", "", "101", "1")):
                    w.click(field)
                    w.type(text)
                self.take("dialog-format", w.dialog())
                w.press("002_14")
        self.take("dialog-label", w.dialog())
        w.press("009_11")
        w.dialog(w.captions["010_me"])
        self.take("dialog-settings", w.dialog())
        w.press("010_17")
        w.dialog(w.captions["009_me"])
        w.press("009_12")
        w.prompt("Indiquer le point")
        w.key("F3")
        w.point_to(6.2, -2.2)
        time.sleep(0.4)
        self.take("label")
        w.key("Escape")

    def polygon(self):
        w = self.w
        self.tool("Label")
        w.dialog(w.captions["009_me"])
        self.choose(self.combos()[0], "ETIQUETTE_PIECE")
        time.sleep(0.4)
        table = w.find(role="tree", within=w.dialog())
        w.click([cell for cell in w.children(table) if cell.get_name() == "SURFACE"][0])
        self.choose(self.combos()[-1], "Aire Auto Poly")
        w.press("009_12")
        w.prompt("Indiquer le point")
        w.pick(6.2, 2.2)
        w.prompt("premier point")
        for corner in ((4.55, 0.15), (7.9, 0.15), (7.9, 4.35)):
            w.pick(*corner)
        w.point_to(4.6, 4.3)
        time.sleep(0.4)
        self.take("polygon")

    def extraction(self):
        w = self.w
        self.tool("Extract")
        w.dialog(w.captions["006_me"])
        w.press("006_5")
        w.prompt(w.captions["msg_108"][:24])
        w.point_to(*self.plan.point_on(self.plan.old, 3))
        time.sleep(0.8)
        self.take("pick")
        w.pick(*self.plan.point_on(self.plan.old, 3))
        w.until(lambda: w.find(w.captions["004_3"], "push button", w.dialog(), seconds=0.5), "zone")
        self.take("dialog-zone", w.dialog())
        w.press("004_3")
        w.no_dialog()
        w.click_at(w.at(19, -0.5))
        w.point_to(10.3, 8.7)
        time.sleep(0.4)
        self.take("crossing")
        w.key("Escape")
        w.answer("all")
        w.key("Return")
        w.dialog(w.captions["006_me"])
        table = w.find(role="tree", within=w.dialog())
        w.until(lambda: table.get_child_count() > 20, "rows")
        w.click([cell for cell in w.children(table) if cell.get_name() == "4"][0])
        w.until(lambda: w.text("row %1 shown").replace("%1", "4") in w.result(), "row 4")
        self.take("extract")
        self.take("dialog-extract", w.dialog())
        w.press("006_4")
        self.file_dialog(self.folder / "rows.txt")

    def insertion(self):
        w = self.w
        lines = (self.folder / "rows.txt").read_bytes().split(b"\r\n")
        fields = lines[4].split(b"\t")
        fields[4] = b"12,5 m"
        lines[4] = b"\t".join(fields)
        data = self.folder / "doors.txt"
        data.write_bytes(b"\r\n".join(lines))
        self.tool("Insert")
        w.dialog(w.captions["011_me"])
        self.choose(w.find(w.captions["011_9"], "combo box", w.dialog()), self.plan.new)
        time.sleep(0.4)
        w.press("011_12")
        self.file_dialog(data)
        w.until(lambda: w.text("In the file") in w.result(), "the page beside")
        self.take("insert")
        self.take("dialog-insert", w.dialog())
        w.press("011_14")
        self.message(w.captions["msg_121"].strip())
        self.take("insert-failed")

    def about(self):
        w = self.w
        w.click(w.find(w.text("About and language"), "push button"))
        w.dialog(w.captions["001_me"].strip())
        self.take("dialog-about", w.dialog())


SCENES = ("window", "replacement", "labels", "polygon", "extraction", "insertion", "about")


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("scenes", nargs="*", help=", ".join(SCENES))
    parser.add_argument("--out", type=Path, default=ROOT / "docs/pictures")
    parser.add_argument("--language", choices=("en", "fr"))
    options = parser.parse_args()
    for language in [options.language] if options.language else ("en", "fr"):
        with Desktop(WIDTH, HEIGHT + 60) as desktop:
            for scene in options.scenes or SCENES:
                drawing = desktop.folder / SAMPLE.name
                shutil.copy(SAMPLE, drawing)
                window = Window(desktop, drawing, language, "dark", 1, size=(WIDTH, HEIGHT))
                try:
                    window.measure()
                    getattr(Pictures(window, Plan(drawing), options.out, desktop.folder), scene)()
                finally:
                    window.close()
                    drawing.with_suffix(".dwl").unlink(missing_ok=True)
    return 0


if __name__ == "__main__":
    sys.exit(main())
