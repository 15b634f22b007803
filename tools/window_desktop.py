"""A desktop of its own for the window: an X server without a screen, a window manager, the screen readers' bus; and the
window on it, worked by the mouse and the keys. What is clicked is found as a screen reader finds it, by role and name.

Debian's packages: xvfb openbox xdotool imagemagick at-spi2-core gir1.2-atspi-2.0 python3-gi dbus fonts-inter
fonts-jetbrains-mono fonts-liberation."""

import os
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
BUS_LAUNCHER = "/usr/libexec/at-spi-bus-launcher"
FONTS = """<?xml version="1.0"?><!DOCTYPE fontconfig SYSTEM "fonts.dtd"><fontconfig>
<include ignore_missing="yes">/etc/fonts/fonts.conf</include>
<match target="pattern"><test name="family"><string>Sans Serif</string></test>
<edit name="family" mode="prepend" binding="strong"><string>Inter</string></edit></match>
<match target="pattern"><test name="family"><string>sans-serif</string></test>
<edit name="family" mode="prepend" binding="strong"><string>Inter</string></edit></match>
<match target="pattern"><test name="family"><string>monospace</string></test>
<edit name="family" mode="prepend" binding="strong"><string>JetBrains Mono</string></edit></match></fontconfig>"""
# A frame as plain as the window, so that the pictures show no other program's taste.
FRAME = """border.width: 1
padding.width: 8
padding.height: 6
window.handle.width: 0
window.client.padding.width: 0
window.*.title.bg: flat solid
window.*.title.bg.color: {title}
window.*.label.bg: parentrelative
window.*.button.*.bg: parentrelative
window.active.label.text.color: {text}
window.inactive.label.text.color: {faint}
window.active.button.*.image.color: {text}
window.inactive.button.*.image.color: {faint}
window.*.border.color: {edge}
window.active.title.separator.color: {title}
window.inactive.title.separator.color: {title}
"""
FRAME_COLORS = {"dark": {"title": "#242A30", "text": "#E3E7EA", "faint": "#A9B3BC", "edge": "#343C44"},
                "light": {"title": "#FFFFFF", "text": "#1A2126", "faint": "#53606A", "edge": "#D3D9DD"}}
TITLE_HEIGHT = 29
LANGUAGES = {"en": "English", "fr": "Français"}


class Failure(Exception):
    """The window isn't as it should be."""


def captions(language):
    """Texts of the dialogs by their key in the language file ("012_33")."""
    name = {"en": "English.LNG", "fr": "Francais.LNG"}[language]
    lines = (ROOT / "resources/languages" / name).read_text("cp1252").splitlines()
    return dict(line.split("=", 1) for line in lines if "=" in line)


def window_texts(language):
    """The window's own texts by their English ones."""
    name = {"en": "English.txt", "fr": "French.txt"}[language]
    lines = (ROOT / "resources/window" / name).read_text("utf-8").splitlines()
    pairs = [line.split(" = ", 1) for line in lines if " = " in line and not line.startswith("#")]
    return {plain(english): plain(translated) for english, translated in pairs}


def plain(text):
    """Without the marks of keys and the dots of what asks further."""
    return text.replace("&", "").replace("…", "").strip()


class Desktop:
    """X server, window manager and bus; to be used in a `with`."""

    def __init__(self, width=1600, height=1030, scheme="dark"):
        self.size, self.scheme = (width, height), scheme
        self.folder = Path(tempfile.mkdtemp(prefix="vorlane-desktop-"))
        self.processes = []

    def __enter__(self):
        # Whoever ends this program ends the desktop with it.
        signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))
        runtime = self.folder / "runtime"
        runtime.mkdir(mode=0o700)
        (self.folder / "home/.config/fontconfig").mkdir(parents=True)
        (self.folder / "home/.config/fontconfig/fonts.conf").write_text(FONTS)
        os.environ.update(HOME=str(self.folder / "home"), XDG_RUNTIME_DIR=str(runtime), LANG="C.UTF-8")
        os.environ["FONTCONFIG_FILE"] = str(self.folder / "home/.config/fontconfig/fonts.conf")
        for name in ("XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_STATE_HOME", "WAYLAND_DISPLAY", "AT_SPI_BUS_ADDRESS"):
            os.environ.pop(name, None)
        self._write_frame()
        reading, writing = os.pipe()
        width, height = self.size
        self._start("Xvfb", "-displayfd", str(writing), "-screen", "0", f"{width}x{height}x24", "-nolisten", "tcp", "-noreset",
                    pass_fds=(writing,))
        os.environ["DISPLAY"] = ":" + os.read(reading, 16).decode().strip()
        address = self._start("dbus-daemon", "--session", "--nofork", "--print-address", stdout=subprocess.PIPE)
        os.environ["DBUS_SESSION_BUS_ADDRESS"] = address.stdout.readline().decode().strip()
        self._start(BUS_LAUNCHER, "--launch-immediately")
        self.manager = self._start("openbox")
        self._start("xsetroot", "-solid", "#3a4048") if shutil.which("xsetroot") else None
        time.sleep(1)
        return self

    def _write_frame(self):
        theme = self.folder / "home/.themes/Plain/openbox-3"
        theme.mkdir(parents=True)
        (theme / "themerc").write_text(FRAME.format(**FRAME_COLORS[self.scheme]))
        settings = Path("/etc/xdg/openbox/rc.xml").read_text("utf-8")
        settings = re.sub(r"(<theme>\s*<name>)[^<]*", r"\1Plain", settings)
        settings = re.sub(r"(<font place=[^>]*>\s*<name>)[^<]*(</name>\s*<size>)\d+(</size>.*?<weight>)[^<]*", r"\1Inter\g<2>9\3Normal",
                          settings, flags=re.S)
        (self.folder / "home/.config/openbox").mkdir(parents=True)
        (self.folder / "home/.config/openbox/rc.xml").write_text(settings, "utf-8")

    def keep_manager(self):
        """A window manager that died with a window that was killed comes back."""
        if self.manager.poll() is not None:
            self.manager = self._start("openbox")
            time.sleep(0.5)

    def __exit__(self, *_):
        for process in reversed(self.processes):
            if process.poll() is None:
                process.terminate()
        for process in self.processes:
            try:
                process.wait(5)
            except subprocess.TimeoutExpired:
                process.kill()
        shutil.rmtree(self.folder, ignore_errors=True)

    def _start(self, *command, **options):
        options.setdefault("stdout", subprocess.DEVNULL)
        process = subprocess.Popen(command, stderr=subprocess.DEVNULL, **options)
        self.processes.append(process)
        return process


def x(*arguments):
    return subprocess.run(["xdotool", *map(str, arguments)], check=True, capture_output=True, text=True).stdout


class Window:
    """The program on a drawing. Sizes of the screen are in its pixels; points of the drawing in its units."""

    def __init__(self, desktop, drawing=None, language="en", scheme="dark", scale=1, program=None, settings=(),
                 environment=None, before=None, keep=False, size=None):
        self.desktop, self.language, self.scale = desktop, language, scale
        desktop.keep_manager()
        self.captions, self.texts = captions(language), window_texts(language)
        home = desktop.folder / "home"
        for name in (".config/Vorlane", ".local/share/vorlane", ".local/state/vorlane"):
            if not keep:
                shutil.rmtree(home / name, ignore_errors=True)
            (home / name).mkdir(parents=True, exist_ok=True)
        (home / ".config/Vorlane/window.ini").write_text(
            "[General]\n" + "".join(f"{key}={value}\n" for key, value in {"scheme": scheme, **dict(settings)}.items()))
        ini = home / ".local/share/vorlane/Vorlane.ini"
        if not ini.exists():
            ini.write_bytes(f"Lng={LANGUAGES[language]}\r\n".encode("cp1252"))
        variables = {**os.environ, "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1", "QT_SCALE_FACTOR": str(scale),
                     "LC_NUMERIC": "fr_FR.UTF-8" if language == "fr" else "C", **(environment or {})}
        program = program or os.environ.get("VORLANE_WINDOW", ROOT / "build/test/vorlane-window")
        command = [str(program), *([str(drawing)] if drawing else [])]
        self.log = open(desktop.folder / "window.log", "a+")
        self.process = subprocess.Popen(command, env=variables, stdout=self.log, stderr=self.log, preexec_fn=before,
                                        cwd=ROOT)
        self.map = None
        self.application = None
        self.main = self._await_main()
        if size:
            ours = self.until(self._ids, "the window's id")[-1]
            x("windowsize", "--sync", ours, *size)
            x("windowmove", ours, 1, TITLE_HEIGHT + 1)
            time.sleep(0.5)

    # Finding.

    def _await_main(self):
        import gi
        gi.require_version("Atspi", "2.0")
        from gi.repository import Atspi
        self.atspi = Atspi
        Atspi.set_timeout(4000, 8000)

        def found():
            desktop = Atspi.get_desktop(0)
            desktop.clear_cache()
            for i in range(desktop.get_child_count()):
                application = desktop.get_child_at_index(i)
                if application and application.get_process_id() == self.process.pid:
                    application.set_cache_mask(Atspi.Cache.NONE)
                    self.application = application
                    for each in self.children(application):
                        if each.get_role_name() == "frame":
                            return each
            return None
        return self.until(found, "the window", 40)

    def until(self, condition, what, seconds=15):
        end = time.monotonic() + seconds
        while True:
            try:
                result = condition()
            except Exception as error:  # the tree changes while it is read
                if "GLib" not in type(error).__module__ and "gi" not in type(error).__module__:
                    raise
                result = None
            if result:
                return result
            if time.monotonic() > end:
                raise Failure(f"not found or not so: {what}")
            time.sleep(0.04)

    def _ids(self):
        command = ["xdotool", "search", "--all", "--pid", str(self.process.pid), "--onlyvisible", "--name", "Vorlane"]
        return subprocess.run(command, capture_output=True, text=True).stdout.split()

    def children(self, node):
        for i in range(node.get_child_count()):
            child = node.get_child_at_index(i)
            if child is not None:
                yield child

    def showing(self, node):
        return node.get_state_set().contains(self.atspi.StateType.SHOWING)

    def walk(self, node):
        """Nodes that are shown; of long lists and tables not the rows."""
        for child in self.children(node):
            if not self.showing(child):
                continue
            yield child
            if child.get_role_name() not in ("list", "table", "tree", "tree table", "menu item"):
                yield from self.walk(child)

    def windows(self):
        """What stands above the main window, the newest last."""
        return [each for each in self.children(self.application) if each != self.main and self.showing(each)]

    def text(self, english, count=None):
        """A text of the window; `count` stands for its number."""
        one, _, more = self.texts.get(plain(english), plain(english)).partition(" | ")
        is_one = count == 1 or count == 0 and self.language == "fr"
        return (more if more and not is_one else one).replace("%n", str(count))

    def find(self, name=None, role=None, within=None, nth=0, seconds=15, what=None):
        def search():
            place = within() if callable(within) else within
            if place is None and within is not None:
                return None
            hits = [node for node in self.walk(place or self.main)
                    if (role is None or node.get_role_name() == role) and
                    (name is None or plain(node.get_name()) == plain(name))]
            return hits[nth] if len(hits) > nth else None
        return self.until(search, what or f"{role or ''} {name!r}", seconds)

    def dialog(self, title=None, seconds=15):
        """The dialog above all others, by a part of its title."""
        def search():
            hits = [each for each in self.windows() if each.get_name() or each.get_role_name() != "window"]
            hits = [each for each in hits if title is None or title in each.get_name()]
            return hits[-1] if hits else None
        return self.until(search, f"dialog {title!r}", seconds)

    def no_dialog(self, seconds=15):
        self.until(lambda: not [each for each in self.windows() if each.get_role_name() not in ("window", "tool tip")],
                   "no dialog", seconds)

    def box(self, node):
        """Left, top, width, height on the screen."""
        extents = node.get_extents(self.atspi.CoordType.SCREEN)
        return tuple(round(value * self.scale) for value in (extents.x, extents.y, extents.width, extents.height))

    # Acting.

    def click_at(self, at, button=1, times=1):
        x("mousemove", round(at[0]), round(at[1]))
        time.sleep(0.05)
        x("click", "--repeat", times, "--delay", 60, button)
        time.sleep(0.08)

    def middle(self, node):
        left, top, width, height = self.box(node)
        return left + width / 2, top + height / 2

    def click(self, node, times=1):
        self.click_at(self.middle(node), times=times)

    def press(self, caption_key=None, name=None, within=None, role="push button"):
        """A button of the dialog on top, by its caption's key or its name."""
        wanted = self.captions[caption_key] if caption_key else name
        place = within if within is not None else self.dialog()
        node = self.find(wanted, role, place)
        self.click(node)

    def key(self, *names):
        x("key", "--delay", 30, *names)
        time.sleep(0.06)

    def type(self, text):
        x("type", "--delay", 8, text)
        time.sleep(0.05)

    def command(self, line):
        """On the command line, through the canvas: letters typed there go to it."""
        self.key("Escape")
        self.type(line)
        self.key("Return")

    def answer(self, line):
        self.type(line)
        self.key("Return")

    # The drawing.

    @property
    def canvas(self):
        return self.find(self.text("Drawing"))

    def coordinates(self):
        for node in self.walk(self.main):
            if node.get_role_name() == "label" and re.fullmatch(r"-?\d+\.\d+, -?\d+\.\d+", node.get_name()):
                return tuple(map(float, node.get_name().split(", ")))
        return None

    def measure(self):
        """Finds where the points of the drawing are, by what the status line says at two places."""
        left, top, width, height = self.box(self.canvas)
        shown = []
        places = [(left + width * 0.3, top + height * 0.32), (left + width * 0.7, top + height * 0.8)]
        for place in places:
            x("mousemove", round(place[0]) - 3, round(place[1]) - 3)
            x("mousemove", round(place[0]), round(place[1]))
            time.sleep(0.25)
            shown.append(self.until(self.coordinates, "coordinates"))
        (x1, y1), (x2, y2) = shown
        sx = (round(places[1][0]) - round(places[0][0])) / (x2 - x1)
        sy = (round(places[1][1]) - round(places[0][1])) / (y2 - y1)
        self.map = (round(places[0][0]) - x1 * sx, sx, round(places[0][1]) - y1 * sy, sy)

    def at(self, px, py):
        ox, sx, oy, sy = self.map
        return ox + px * sx, oy + py * sy

    def within_canvas(self, place):
        left, top, width, height = self.box(self.canvas)
        return min(max(place[0], left + 8), left + width - 8), min(max(place[1], top + 8), top + height - 8)

    def pick(self, px, py, button=1):
        self.click_at(self.at(px, py), button)

    def point_to(self, px, py):
        there = self.at(px, py)
        x("mousemove", round(there[0]) - 4, round(there[1]) - 2)
        x("mousemove", round(there[0]), round(there[1]))
        time.sleep(0.1)

    def prompt_text(self):
        """What the command line asks; it is the name of its input."""
        names = [node.get_name() for node in self.walk(self.main) if node.get_role_name() == "text"]
        return names[-1] if names else ""

    def prompt(self, part, seconds=15):
        """Waits for a prompt on the command line that holds `part`."""
        self.until(lambda: part.strip() in self.prompt_text(), f"prompt {part!r}", seconds)

    def history(self):
        node = self.find(self.text("Command history"), "text")
        return self.atspi.Text.get_text(node, 0, -1)

    def result(self):
        """All labels of the window, joined: the status tells its result among them."""
        return " | ".join(node.get_name() for node in self.walk(self.main) if node.get_role_name() == "label")

    def await_result(self, text, seconds=20):
        self.until(lambda: text in self.result(), f"status {text!r}", seconds)

    # Pictures.

    def shoot(self, path, node=None, margin=0):
        """A picture of the screen, or of a window with its frame."""
        time.sleep(0.35)
        path = Path(path)
        path.parent.mkdir(parents=True, exist_ok=True)
        command = ["import", "-silent", "-window", "root"]
        if node is not None:
            left, top, width, height = self.box(node)
            command += ["-crop", f"{width + 2 + 2 * margin}x{height + TITLE_HEIGHT + 1 + 2 * margin}"
                                 f"+{max(0, left - 1 - margin)}+{max(0, top - TITLE_HEIGHT - margin)}", "+repage"]
        subprocess.run([*command, str(path)], check=True)

    def close(self):
        if self.process.poll() is None:
            self.process.send_signal(signal.SIGKILL)
        self.process.wait()
        self.log.close()
