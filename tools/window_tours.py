#!/usr/bin/python3
"""Does the four jobs in the real window, by mouse and keyboard, with Esc in each pick, and keeps a picture of every
dialog.

    window_tours.py [--out FOLDER] [--language en|fr] [--scheme dark|light] [--scale 1|2] [--drawing FILE] [JOB ...]

JOBs are replace, label, extract, insert, about, help; all without one. Without --language and the like each combination is
gone through. FILE is the sample drawing if none is given; of another drawing blocks and places are found by themselves.
Exit 1 where the window isn't as expected."""

import argparse
import itertools
import shutil
import sys
import time
import traceback
from pathlib import Path

import ezdxf

from window_desktop import Desktop, Failure, ROOT, Window, x

SAMPLE = ROOT / "samples/apartment.dxf"


class Plan:
    """Which blocks of a drawing the tour works on, and where they can be clicked."""

    def __init__(self, path):
        self.drawing = ezdxf.readfile(path)
        references = {}
        for entity in self.drawing.modelspace().query("INSERT"):
            if not entity.dxf.get("invisible", 0):
                references.setdefault(entity.dxf.name, []).append(entity)
        names = sorted((name for name in references if not name.startswith("*")),
                       key=lambda name: -len(references[name]))
        if path.name == SAMPLE.name:
            self.old, self.new = "PORTE_80", "PORTE_90"
        else:
            self.old, self.new = names[0], names[1]
        self.references = references
        self.count = sum(1 for layout in self.drawing.layouts for entity in layout.query("INSERT")
                         if entity.dxf.name == self.old)

    def point_on(self, block, nth=0):
        """A point in the middle of the longest line of a reference."""
        best, at = 0, None
        for part in self.references[block][nth].virtual_entities():
            points = []
            if part.dxftype() == "LINE":
                points = [part.dxf.start, part.dxf.end]
            elif part.dxftype() == "LWPOLYLINE":
                points = [ezdxf.math.Vec3(x, y) for x, y in part.get_points("xy")][:2]
            elif part.dxftype() == "ARC":
                points = [part.start_point, part.start_point.lerp(part.end_point, 0.02)]
            if len(points) == 2 and points[0].distance(points[1]) > best:
                best, at = points[0].distance(points[1]), points[0].lerp(points[1], 0.4)
        return (at.x, at.y) if at else tuple(self.references[block][nth].dxf.insert)[:2]

    def reach(self, block):
        """A rectangle about all references."""
        points = [entity.dxf.insert for entity in self.references[block]]
        xs, ys = [p.x for p in points], [p.y for p in points]
        margin = 0.14 * max(max(xs) - min(xs), max(ys) - min(ys), 1)
        return min(xs) - margin, min(ys) - margin, max(xs) + margin, max(ys) + margin


class Tour:
    def __init__(self, window, plan, out, folder):
        self.w, self.plan, self.out, self.folder = window, plan, out, folder
        self.pictures = 0

    def shoot(self, name, whole=False):
        self.pictures += 1
        self.w.shoot(self.out / f"{name}.png", None if whole else self.w.dialog())

    def choose(self, combo, text):
        """An entry of a combo: its list opened by the mouse, the entry by its letters, or the first one."""
        left, top, width, height = self.w.box(combo)
        self.w.click_at((left + width - 10 * self.w.scale, top + height / 2))
        time.sleep(0.5)
        if text is None:
            self.w.key("Home")
        else:
            self.w.type(text)
        self.w.key("Return")
        time.sleep(0.2)

    def combos(self):
        dialog = self.w.dialog()
        return [node for node in self.w.walk(dialog) if node.get_role_name() == "combo box"]

    def escape(self, prompt, title_key):
        """Gives up a pick; a question whether to try again is answered by No, and the dialog comes back."""
        self.w.prompt(prompt)
        self.w.no_dialog()
        self.w.key("Escape")
        self.leave_boxes(title_key, "Escape")

    def message(self, part, name=None):
        """Sees a message box, and lets it go by Enter."""
        self.w.until(lambda: any(part in node.get_name() for node in self.w.walk(self.w.dialog())),
                     f"message {part!r}", 40)
        if name:
            self.shoot(name)
        self.w.key("Return")
        time.sleep(0.3)

    def file_dialog(self, path, name=None):
        self.w.until(lambda: any(node.get_role_name() in ("text", "combo box") for node in self.w.walk(self.w.dialog())),
                     "file dialog")
        time.sleep(0.6)
        if name:
            self.shoot(name)
        self.w.key("ctrl+a")
        self.w.type(str(path))
        self.w.key("Return")
        time.sleep(0.6)

    def tool(self, english):
        self.w.click(self.w.find(self.w.text(english), "push button"))

    def expect(self, condition, what):
        if not condition:
            raise Failure(what)

    # The jobs.

    def replace(self):
        w, plan = self.w, self.plan
        w.measure()
        # A zone that is given up ends the command, as a failure that is told.
        self.tool("Replace")
        w.click(w.find(w.captions["012_27"], within=w.dialog(w.captions["012_me"])))
        w.prompt(w.text("Select objects:")[:8])
        w.key("Escape")
        w.dialog()
        self.shoot("replace-given-up")
        w.key("Return")
        w.no_dialog()
        self.tool("Replace")
        w.dialog(w.captions["012_me"])
        self.shoot("replace-empty")
        # The block by a pick: first given up, then a click beside everything, then the door.
        w.press("012_24")
        # A given up pick asks whether to go on; to say no would end the command, as a failure.
        w.prompt(w.captions["msg_112"][:24])
        w.key("Escape")
        self.message(w.captions["msg_105"][:24], "pick-refused")
        w.prompt(w.captions["msg_112"][:24])
        w.point_to(*plan.point_on(plan.old, 1))
        time.sleep(0.7)
        self.w.shoot(self.out / "replace-pick.png")
        self.pictures += 1
        w.pick(*plan.point_on(plan.old, 1))
        w.dialog(w.captions["012_me"])
        # The zone: all by a crossing rectangle.
        w.click(w.find(w.captions["012_27"], within=w.dialog()))
        w.prompt(w.text("Select objects:")[:8])
        w.no_dialog()
        low_x, low_y, high_x, high_y = plan.reach(plan.old)
        w.click_at(w.within_canvas(w.at(high_x, low_y)))
        w.point_to((low_x + high_x) / 2, high_y)
        time.sleep(0.3)
        self.w.shoot(self.out / "replace-crossing.png")
        self.pictures += 1
        w.click_at(w.within_canvas(w.at(low_x, high_y)))
        w.key("Return")
        w.dialog(w.captions["012_me"])
        w.click(w.find(w.captions["012_25"], within=w.dialog()))
        # The new block: by a pick that is given up, then from the list.
        block = w.find(w.captions["012_19"], "combo box", w.dialog())
        self.choose(block, None)
        self.escape(w.captions["msg_113"][:20], "012_me")
        block = w.find(w.captions["012_19"], "combo box", w.dialog())
        self.choose(block, plan.new)
        w.until(lambda: plan.new in w.result(), "the page beside shows the new block")
        self.shoot("replace-chosen")
        self.w.shoot(self.out / "window-replace.png")
        self.pictures += 1
        transfer = w.find(w.captions["012_5"], "check box", w.dialog())
        if transfer.get_state_set().contains(w.atspi.StateType.ENABLED):
            w.click(transfer)
            w.press("012_6")
            w.dialog(w.captions["003_me"])
            self.shoot("replace-attributes")
            w.press("003_4")
            w.dialog(w.captions["012_me"])
        w.press("012_33")
        self.message(w.captions["msg_119"][:20], "replace-done")
        w.press("012_32")
        w.no_dialog()
        done = w.text("%n replaced", plan.count)
        w.await_result(done)
        w.click(w.find(w.text("Show"), "push button", nth=0))
        time.sleep(0.5)
        self.w.shoot(self.out / "window-replaced.png")
        self.pictures += 1
        w.click(w.find(w.text("Undo"), "push button", nth=1))
        time.sleep(0.4)
        w.key("ctrl+e")
        time.sleep(0.5)
        return f"{plan.count} {plan.old} by {plan.new}, shown, undone"

    def label(self):
        w = self.w
        w.measure()
        self.tool("Label")
        w.dialog(w.captions["009_me"])
        self.shoot("label-empty")
        w.press("009_2")
        self.escape(w.captions["msg_107"][:24], "009_me")
        w.press("009_3")
        self.file_dialog(ROOT / "samples/releve_piece.dxf", "label-file")
        w.dialog(w.captions["009_me"])
        mode = self.combos()[-1]
        self.choose(mode, "Incr")
        w.press(name="...")
        w.dialog(w.captions["002_me"])
        self.shoot("label-format")
        w.press("002_14")
        table = w.find(role="tree", within=w.dialog())
        rows = [node for node in w.children(table) if node.get_role_name() == "table cell" and node.get_name()]
        second = rows[len(rows) // 4]
        w.click(second)
        self.choose(self.combos()[-1], "Aire Auto Poly")
        self.shoot("label-modes")
        w.press("009_11")
        w.dialog(w.captions["010_me"])
        self.shoot("label-settings")
        w.press("010_17")
        w.dialog(w.captions["009_me"])
        w.press("009_12")
        # The place: given up once, then given; then a polygon with a corner taken back.
        self.escape("Indiquer le point", "009_me")
        w.press("009_12")
        w.prompt("Indiquer le point")
        left, top, width, height = w.box(w.canvas)
        spots = [(left + width * fx, top + height * fy) for fx, fy in
                 ((0.42, 0.76), (0.36, 0.70), (0.50, 0.70), (0.56, 0.80), (0.50, 0.82), (0.36, 0.82))]
        w.key("F3")
        x("mousemove", round(spots[0][0]) - 5, round(spots[0][1]))
        x("mousemove", round(spots[0][0]), round(spots[0][1]))
        time.sleep(0.5)
        self.w.shoot(self.out / "window-label.png")
        w.click_at(spots[0])
        w.prompt("Cliquer sur le premier point")
        for spot in spots[1:4]:
            w.click_at(spot)
        w.key("BackSpace")
        for spot in spots[4:]:
            w.click_at(spot)
        time.sleep(0.4)
        self.w.shoot(self.out / "window-polygon.png")
        self.pictures += 2
        w.key("Return")
        for _ in range(6):  # leader and orientation, where they are asked for, then the next place
            time.sleep(0.5)
            if [each for each in w.windows() if each.get_role_name() != "window"]:
                break
            if w.prompt_text().startswith("Indiquer le point"):
                w.key("Escape")
            else:
                w.click_at((spots[0][0] + 30, spots[0][1] - 20))
        w.dialog(w.captions["009_me"])
        w.press("009_13")
        w.no_dialog()
        w.key("F3")
        w.await_result(w.text("%n placed", 1))
        w.key("ctrl+z")
        return "a label placed over a polygon of 4 corners, undone"

    def extract(self):
        w, plan = self.w, self.plan
        w.measure()
        self.tool("Extract")
        w.dialog(w.captions["006_me"])
        self.shoot("extract-empty")
        w.press("006_5")
        w.prompt(w.captions["msg_108"][:24])
        w.key("Escape")
        self.leave_boxes("006_me", "Escape")
        w.press("006_5")
        w.prompt(w.captions["msg_108"][:24])
        w.pick(*plan.point_on(plan.old, 1))
        w.until(lambda: w.find(w.captions["004_3"], "push button", w.dialog(), seconds=0.5), "zone")
        self.shoot("extract-zone")
        w.press("004_3")
        w.no_dialog()
        low_x, low_y, high_x, high_y = plan.reach(plan.old)
        w.answer("all")
        w.key("Return")
        w.dialog(w.captions["006_me"])
        table = w.find(role="tree", within=w.dialog())
        w.until(lambda: table.get_child_count() > 20, "rows of the table")
        cells = [node for node in itertools.islice(w.children(table), 200) if node.get_role_name() == "table cell"]
        fourth = [cell for cell in cells if cell.get_name() == "4"][0]
        w.click(fourth)
        w.until(lambda: w.text("row %1 shown").replace("%1", "4") in w.result(), "row 4 shown")
        self.shoot("extract-table")
        self.w.shoot(self.out / "window-extract.png")
        self.pictures += 1
        w.press("006_4")
        data = self.folder / "rows.txt"
        self.file_dialog(data, "extract-file")
        w.until(data.exists, "the text file")
        self.leave_boxes("006_me")
        w.press("006_2")
        w.no_dialog()
        rows = data.read_bytes().count(b"\r\n") - 2
        self.expect(rows >= 3, "rows in the text file")
        return f"{rows} rows of {plan.old} written"

    def leave_boxes(self, title_key, key="Return"):
        """Lets message boxes above a dialog go."""
        last = None
        for _ in range(40):
            time.sleep(0.15)
            windows = [each for each in self.w.windows() if each.get_name()]
            if windows and self.w.captions[title_key] in windows[-1].get_name():
                return
            if windows and windows[-1] != last:
                last = windows[-1]
                time.sleep(0.15)
                self.w.key(key)
        raise Failure(f"the dialog {self.w.captions[title_key]} didn't come back")

    def insert(self):
        w, plan = self.w, self.plan
        data = self.folder / "rows.txt"
        if not data.exists():
            self.extract()
        lines = data.read_bytes().split(b"\r\n")
        fields = lines[3].split(b"\t")
        fields[4] = b"12,5 m"  # a scale that is no number
        lines[3] = b"\t".join(fields)
        fields = lines[5].split(b"\t")
        fields[1] = b"?"
        lines[5] = b"\t".join(fields)
        failing = self.folder / "failing.txt"
        failing.write_bytes(b"\r\n".join(lines))
        rows = len([line for line in lines[2:] if line])
        self.tool("Insert")
        w.dialog(w.captions["011_me"])
        self.shoot("insert-empty")
        block = w.find(w.captions["011_9"], "combo box", w.dialog())
        self.choose(block, None)
        self.escape(w.captions["msg_124"][:20], "011_me")
        block = w.find(w.captions["011_9"], "combo box", w.dialog())
        self.choose(block, plan.new)
        time.sleep(0.4)
        w.press("011_12")
        self.file_dialog(failing, "insert-file")
        w.dialog(w.captions["011_me"])
        w.until(lambda: w.text("In the file") in w.result(), "the page beside")
        self.w.shoot(self.out / "window-insert.png")
        w.press("011_14")
        self.message(w.captions["msg_121"].strip(), "insert-done")
        self.shoot("insert-failed")
        self.w.shoot(self.out / "window-insert-failed.png")
        self.pictures += 2
        w.press("011_15")
        w.no_dialog()
        w.await_result(w.text("%n inserted", rows - 2))
        w.key("ctrl+z")
        return f"{rows - 2} of {rows} inserted, 2 failed rows shown, undone"

    def help(self):
        """F1 in a dialog; the help's window stays up beside it."""
        w = self.w
        self.tool("Replace")
        w.dialog(w.captions["012_me"])
        w.key("F1")
        page = w.dialog(w.text("Help"))
        self.shoot("help")
        w.click(w.find(w.text("Search the help"), "text", page))
        w.type("VNLABEL")
        contents = w.find(w.text("Contents"), "list", page)
        w.until(lambda: 0 < contents.get_child_count() < 6, "the search narrows the contents")
        w.key("Escape")
        self.leave_boxes("012_me")
        w.press("012_32")
        w.no_dialog()
        return "F1 shows the page of the dialog, the search narrows the contents"

    def about(self):
        w = self.w
        w.click(w.find(w.text("About and language"), "push button"))
        w.dialog(w.captions["001_me"].strip())
        self.shoot("about")
        w.press("001_7")
        w.no_dialog()
        return "seen"


JOBS = ("replace", "label", "extract", "insert", "about", "help")


def play(options, language, scheme, scale):
    out = options.out / f"{options.drawing.stem}-{language}-{scheme}-{scale}"
    failures = 0
    with Desktop(1600 * scale, 1030 * scale, scheme) as desktop:
        drawing = desktop.folder / options.drawing.name
        shutil.copy(options.drawing, drawing)
        drawing.chmod(0o644)
        before = drawing.read_bytes()
        plan = Plan(drawing)
        for job in options.jobs or JOBS:
            window = Window(desktop, drawing, language, scheme, scale)
            tour = Tour(window, plan, out, desktop.folder)
            try:
                told = getattr(tour, job)()
                print(f"{out.name} {job}: {told}; {tour.pictures} pictures", flush=True)
            except Exception as failure:
                failures += 1
                print(f"{out.name} {job}: FAILED {failure}", flush=True)
                if not isinstance(failure, Failure):
                    traceback.print_exc()
                else:
                    print("".join(traceback.format_tb(failure.__traceback__)[-4:]))
                window.shoot(out / f"failed-{job}.png")
            finally:
                window.close()
                (desktop.folder / f"{drawing.stem}.dwl").unlink(missing_ok=True)
        if drawing.read_bytes() != before:
            failures += 1
            print(f"{out.name}: the drawing was written to")
    return failures


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("jobs", nargs="*")
    parser.add_argument("--out", type=Path, default=ROOT / "out/tours")
    parser.add_argument("--language", choices=("en", "fr"))
    parser.add_argument("--scheme", choices=("dark", "light"))
    parser.add_argument("--scale", type=int, choices=(1, 2))
    parser.add_argument("--drawing", type=Path, default=SAMPLE)
    options = parser.parse_args()
    choices = itertools.product([options.language] if options.language else ("en", "fr"),
                                [options.scheme] if options.scheme else ("dark", "light"),
                                [options.scale] if options.scale else (1, 2))
    return 1 if sum(play(options, *choice) for choice in choices) else 0


if __name__ == "__main__":
    sys.exit(main())
