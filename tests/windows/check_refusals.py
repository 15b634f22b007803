#!/usr/bin/env python3
"""A host that refuses each member in turn, with the code of an object that was erased: check_refusals.py BUILD

Each command plays a script that reaches all members which it calls. Where one is refused, the box that belongs there comes, or
none where the command passes over failures; the host and the add-in live on."""

import os
import sys
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

import wine
from check_server import Run

REFUSED = -2145386487  # 0x80200009
NO_LISP, LISP = "|  Erreur 91", f"|  Erreur {REFUSED}"  # the set-up's box: no command runs
REPORT = f"! Error {REFUSED}: "  # the report of a failure that left a handler
NOT_SET, NO_COLUMN = "! Error 91: ", "! Error 380: "
REPLACE_BOX = "|  The following error has occurred"  # the replacement dialog's own handler
NO_BLOCK = "|  The selected object is not a block reference."  # the guarded pick's question
SILENT = ""
BOXES = (NO_LISP, LISP, "! Error ", REPLACE_BOX, NO_BLOCK)

# Without Lisp there is no command code.
SET_UP = {NO_LISP: "ActiveDocument Application Functions GetInterfaceObject", LISP: "Item funcall"}
COMMANDS = {
    "VNREPLACE\nlstDestination = PORTE_80\nCboBlocReplacer : PORTE_90\nChkAttSet\nBtnAttSet\nListView1 # 1\nCombo2 = CODE\n"
    "OKButton\nchkXScale\ntxtXScale = 2\nBtnReplace\nok\nBtnClose\n": {
        REPORT: "Add Clear Count GetAttributes InsertBlock InsertionPoint ModelSpace Rotation SelectionSets TagString TextString"
                " TextString= Update XScaleFactor XScaleFactor= YScaleFactor ZScaleFactor",
        REPLACE_BOX: "Blocks Delete IsLayout IsXRef Name Select _NewEnum",
        SILENT: "hasAttributes",
    },
    # A measure, the layer and the colour of the picked object, the orientation, a leader line.
    "VNLABEL\nCombo2 = PORTE_90\nCombo1 = Longueur Auto Monoclic\nListView1 # 2\nCombo1 # 11\nListView1 # 3\nCombo1 # 12\n"
    "BtnParametre\nCheckBox1\nOKButton\nBtnInserer\n30,0\n45\n@242\n5,5\n6,6\nesc\nOKButton\n": {
        REPORT: "Blocks IsLayout IsXRef Name _NewEnum",
        SILENT: "AddLine Circumference Color Delete GetAngle GetAttributes GetEntity GetPoint InsertBlock Layer ModelSpace"
                " Perimeter Rotation TagString TextString TextString= Update Utility XScaleFactor YScaleFactor ZScaleFactor length",
    },
    "VNEXTRACT\nBtnNew\n@128\nOKButton\nall\n\nBtnClose\nno\n": {
        REPORT: "Clear Color Count GetAttributes InsertionPoint Layer Name Rotation SelectOnScreen TextString XScaleFactor"
                " YScaleFactor ZScaleFactor hasAttributes",
        NOT_SET: "Add SelectionSets",
        NO_COLUMN: "TagString",  # the columns of the attributes are missing
        NO_BLOCK: "GetEntity ObjectName Utility",
    },
    "VNINSERT\nCombo1 : PORTE_90\nBtnData\nfile data.txt\nListView1 # 8\nComboBox1 = 0.5\nCheck1\nBtnInsert\nok\nBtnClose\n": {
        REPORT: "Blocks IsLayout IsXRef Name _NewEnum",
        SILENT: "AddLine Delete GetAttributes InsertBlock ModelSpace TagString TextString= Update",
    },
    "VNABOUT\nOKButton\n": {},
}
DATA = b"x\tT\r\nN\tX\tY\tZ\tEX\tEY\tEZ\tR\tCODE\r\n1\t1\t1\t0\t1\t1\t1\t0\tA\r\n"


def run(prefix, script, *options):
    def prepare(case):
        (case.folder / "data.txt").write_bytes(DATA)

    return Run(prefix, script, spoil=prepare, options=("--regional", "en", *options))


def members_called(prefix, script):
    text = run(prefix, script).text
    return set(next((line.split()[1:] for line in text.splitlines() if line.startswith("members")), []))


def is_wrong(prefix, script, member, told):
    """What is wrong when a member is refused; nothing if all is as told."""
    case = run(prefix, script, "--refuse", member, "--lenient", "--then", "VNABOUT")
    boxes = [box for box in BOXES if box in case.text]
    if (told not in case.text) if told else boxes:
        return f"\"{told}\" isn't told, but {boxes}"
    return "" if case.code == 0 and case.text.rstrip().endswith("ms") and "[fmAbout] hidden" in case.text else "the host is gone"


def check_all(cases, prefix, build):
    failed = 0
    with wine.Prefix(prefix, build) as prefix:
        while cases:
            script, member, told = cases.pop()
            command = script.split("\n")[0]
            if member is None:
                called = members_called(prefix, script)
                wrong = f"{sorted(called ^ told)} are called and not refused here, or the reverse" if called != told else ""
            else:
                # On a busy machine Wine may lose a window: what is wrong twice counts.
                wrong = is_wrong(prefix, script, member, told) and is_wrong(prefix, script, member, told)
            failed += bool(wrong)
            print(f"WRONG  {command}: {wrong}" if wrong else f"ok     {command} {member or 'as it is'}", flush=True)
    return failed


def main():
    build = Path(sys.argv[1]).resolve()
    cases = []
    for script, told in COMMANDS.items():
        told = {box: members.split() for box, members in (*SET_UP.items(), *told.items())}
        cases.append((script, None, {member for members in told.values() for member in members}))
        cases += [(script, member, box) for box, members in told.items() for member in members]
    count = len(cases)
    with ThreadPoolExecutor() as pool:
        done = [pool.submit(check_all, cases, build / f"prefix-{i}", build) for i in range(os.cpu_count() or 1)]
        failed = sum(one.result() for one in done)
    print(f"{count} refusals, {failed} wrong")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
