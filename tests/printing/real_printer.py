#!/usr/bin/env python3
"""Prints on a real print system, of its own, and reads what came out.

    real_printer.py PRINT_JOB [case ...]

PRINT_JOB is the real program led through its own menu and the system's printer dialog. The print
system is stopped whatever happens.

Ends with 77 where nothing could be tried: the print system or the readers of PDF files are not
installed, or none of the cases can be made here.
"""
import html
import json
import os
import re
import signal
import subprocess
import sys
import tempfile
import time

sys.path.append(os.path.join(os.path.dirname(os.path.abspath(__file__)), "../support"))
from print_system import WAIT, PrintSystem, tool

POINTS = 72
MILLIMETRE = POINTS / 25.4
A4 = (595, 842)
SKIPPED = 77  # as ctest is told


class NotRun(Exception):
    """What a case needs cannot be had on this machine."""


class Case:
    """One run of the program beside the print system."""

    def __init__(self, job, system, folder):
        self.job = job
        self.system = system
        self.folder = folder

    def print(self, document, *arguments, server=None, environment=None, questions=0):
        told = os.path.join(self.folder, "told.json")
        if os.path.exists(told):
            os.remove(told)
        run_folder = os.path.join(self.folder, "run-user")
        os.makedirs(run_folder, mode=0o700, exist_ok=True)
        variables = dict(os.environ, CUPS_SERVER=server or self.system.server,
                         QT_QPA_PLATFORM="offscreen", HOME=self.folder,
                         XDG_RUNTIME_DIR=run_folder, LC_ALL="C.UTF-8", **(environment or {}))
        # A default printer of the person who runs the tests is none of theirs.
        for name in ("PRINTER", "LPDEST"):
            variables.pop(name, None)
        run = subprocess.run([self.job, document, told, *arguments], env=variables,
                             stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                             stderr=subprocess.STDOUT, timeout=120, text=True)
        expect(run.returncode == 0, f"the program ran on: {run.returncode} {run.stdout}")
        with open(told) as file:
            answer = json.load(file)
        expect(len(answer["boxes"]) == questions, f"no message: {answer['boxes']}")
        return answer

    def document(self, queue):
        """The document that came out of a queue, once it is whole."""
        path = self.system.output(queue)
        deadline = time.monotonic() + WAIT
        while time.monotonic() < deadline:
            if os.path.exists(path):
                with open(path, "rb") as file:
                    if file.read().rstrip().endswith(b"%%EOF"):
                        return path
            time.sleep(0.1)
        raise AssertionError(f"nothing came out of {queue}: " +
                             open(self.system.path("error_log")).read()[-1500:])

    def expect_nothing_printed(self):
        # What is on its way arrives; what was never sent does not.
        time.sleep(2)
        for queue in ("papier", "dossier"):
            path = self.system.output(queue)
            expect(not os.path.exists(path) or os.path.getsize(path) == 0,
                   f"nothing came out of {queue}")


def expect(holds, what):
    if not holds:
        raise AssertionError(what)


def output_of(*command):
    return subprocess.run(command, check=True, stdout=subprocess.PIPE, text=True,
                          timeout=WAIT).stdout


# What a PDF file holds.

def pages_and_size(pdf):
    told = output_of("pdfinfo", pdf)
    pages = int(re.search(r"Pages:\s+(\d+)", told)[1])
    size = re.search(r"Page size:\s+([\d.]+) x ([\d.]+)", told)
    return pages, (round(float(size[1])), round(float(size[2])))


def expect_embedded_fonts(pdf):
    rows = output_of("pdffonts", pdf).splitlines()[2:]
    expect(rows, "the texts are texts")
    for row in rows:
        embedded = row.split()[-5]
        expect(embedded == "yes", f"embedded: {row}")


def images(pdf):
    return [row.split() for row in output_of("pdfimages", "-list", pdf).splitlines()[2:]]


def words(pdf, page):
    """(text, left, top, right, bottom) of each word of a page, in points."""
    told = output_of("pdftotext", "-bbox", "-f", str(page), "-l", str(page), pdf, "-")
    pattern = r'<word xMin="([\d.-]+)" yMin="([\d.-]+)" xMax="([\d.-]+)" yMax="([\d.-]+)">(.*?)</word>'
    return [(html.unescape(word[4]), *(float(number) for number in word[:4]))
            for word in re.findall(pattern, told)]


def expect_texts_in_place(pdf, page_number, page):
    """Every text of the page begins where its operation puts it, within a millimetre."""
    found = words(pdf, page_number)
    checked = 0
    for operation in page["ops"]:
        if operation["op"] != "text":
            continue
        # What stands after tabs stands elsewhere: see expect_right_column.
        text = operation["text"].split("\t")[0].split("\r\n")[0]
        parts = text.split()
        if not parts:
            continue
        # Leading blanks move the first word.
        if text[0] == " ":
            continue
        left, top = operation["x"] * POINTS, operation["y"] * POINTS
        near = [word for word in found
                if word[0] == parts[0] and abs(word[1] - left) < MILLIMETRE
                and abs(word[2] - top) < MILLIMETRE]
        expect(near, f"{text!r} at {left:.1f}, {top:.1f}: " +
               str([word for word in found if word[0] == parts[0]][:5]))
        # The height of a line of type is a little more than its size.
        height = near[0][4] - near[0][2]
        expect(0.95 < height / operation["size"] < 1.25, f"{text!r} is {height} high")
        for part in parts:
            expect(any(word[0] == part and abs(word[2] - near[0][2]) < MILLIMETRE
                       for word in found), f"{part!r} of {text!r}")
        checked += 1
    return checked


def expect_right_column(pdf, page_number, page):
    """What stands after the tabs stands in one line down the page, clear of the left column."""
    found = words(pdf, page_number)
    edges = []
    for operation in page["ops"]:
        if operation["op"] != "text" or "\t" not in operation["text"]:
            continue
        left_text, *_, right_text = operation["text"].split("\t")
        if not right_text.strip():
            continue
        top = operation["y"] * POINTS
        row = [word for word in found if abs(word[2] - top) < MILLIMETRE]
        begins = [word for word in row if word[0] == right_text.split()[0]
                  and word[1] > 2.5 * POINTS]
        expect(begins, f"{right_text!r} on page {page_number}")
        edges.append(begins[0][1])
        if left_text.strip():
            ends = max(word[3] for word in row if word[3] < begins[0][1] + 1)
            expect(ends < begins[0][1], f"{left_text!r} runs into {right_text!r}")
    if edges:
        expect(max(edges) - min(edges) < MILLIMETRE, f"one column: {min(edges)} {max(edges)}")


def grey_picture(pdf, dots):
    """The first page in grey: width, height, bytes."""
    told = subprocess.run(["pdftoppm", "-gray", "-r", str(dots), "-f", "1", "-l", "1", pdf],
                          check=True, stdout=subprocess.PIPE, timeout=WAIT).stdout
    header = re.match(rb"P5\s+(\d+)\s+(\d+)\s+255\s", told)
    return int(header[1]), int(header[2]), told[header.end():]


def ink(picture, dots, left, top, width, height):
    """The part of a rectangle, in inches, that is not white."""
    across, _, grey = picture
    dark = total = 0
    for y in range(round(top * dots), round((top + height) * dots)):
        row = grey[y * across + round(left * dots):y * across + round((left + width) * dots)]
        dark += sum(1 for value in row if value < 200)
        total += len(row)
    return dark / total


# The cases.

def the_report(case):
    told = case.print("report", "--printer", "papier")
    expect("papier" in told["choices"] and "dossier" in told["choices"], told["choices"])
    pdf = case.document("papier")
    expect(pages_and_size(pdf) == (1, A4), f"one page of A4: {pages_and_size(pdf)}")
    expect(len(told["pages"]) == 1, "one page was drawn")
    expect_embedded_fonts(pdf)
    checked = expect_texts_in_place(pdf, 1, told["pages"][0])
    expect(checked > 100, f"all texts were looked for: {checked}")
    expect(os.path.getsize(pdf) < 300_000, f"small: {os.path.getsize(pdf)}")
    # Lines, texts and pictures are drawn; the portrait alone is an image.
    rasters = images(pdf)
    expect(len(rasters) == 1, f"the portrait alone: {rasters}")
    across, down = int(rasters[0][3]), int(rasters[0][4])
    expect(across <= 0.9 * 600 and down <= 1.2 * 600, f"of its size: {rasters}")
    dots = 150
    picture = grey_picture(pdf, dots)
    for operation in told["pages"][0]["ops"]:
        if operation["op"] == "picture":
            size = operation.get("width", 0.19), operation.get("height", 0.19)
            part = ink(picture, dots, operation["x"], operation["y"], *size)
            expect(0.005 < part, f"{operation['name']}: {part}")
        if operation["op"] in ("line", "box"):
            left, top = operation["x1"], operation["y1"]
            part = ink(picture, dots, left - 0.01, top - 0.01,
                       max(operation["x2"] - left, 0.02) if operation["op"] == "box" else
                       max(operation["x2"] - left, 0.02), 0.03)
            expect(part > 0.1, f"{operation}: {part}")
    # The two colours of the portrait.
    expect(ink(picture, dots, 6.95, 0.95, 0.1, 1.1) > 0.95, "the ground of the portrait")
    # An empty place of the page.
    expect(ink(picture, dots, 0.1, 5, 0.25, 1) == 0, "the margin is white")


def the_listing(case):
    told = case.print("listing", "--printer", "papier")
    pdf = case.document("papier")
    expect(pages_and_size(pdf) == (4, A4), f"four pages of A4: {pages_and_size(pdf)}")
    expect_embedded_fonts(pdf)
    expect(images(pdf) == [], "no image")
    expect(os.path.getsize(pdf) < 300_000, f"small: {os.path.getsize(pdf)}")
    for number, page in enumerate(told["pages"], start=1):
        checked = expect_texts_in_place(pdf, number, page)
        expect(checked > 20, f"page {number}: {checked}")
        expect_right_column(pdf, number, page)
        on_page = [word[0] for word in words(pdf, number) if word[1] > 7.4 * POINTS]
        expect(on_page == [str(number)], f"its number: {on_page}")


def the_other_printer(case):
    case.print("report", "--printer", "dossier")
    case.document("dossier")
    expect(not os.path.exists(case.system.output("papier")), "on the chosen one alone")


def a_cancel(case):
    told = case.print("report", "--printer", "papier", "--cancel")
    expect(told["pages"] == [], "no page is drawn")
    case.expect_nothing_printed()
    expect(case.system.jobs() == 0, "no document")


def no_print_system(case):
    pdf = os.path.join(case.folder, "rapport.pdf")
    told = case.print("report", "--file", pdf, server="127.0.0.1:1")
    expect(len(told["choices"]) == 1 and "PDF" in told["choices"][0], told["choices"])
    expect(pages_and_size(pdf) == (1, A4), f"A4: {pages_and_size(pdf)}")
    expect(told["paper"] == [11906 / 1440, 16838 / 1440], told["paper"])
    expect_embedded_fonts(pdf)
    expect_texts_in_place(pdf, 1, told["pages"][0])


def a_printer_that_refuses(case):
    case.system.run("cupsreject", "papier")
    case.print("report", "--printer", "papier")
    case.expect_nothing_printed()


def a_printer_that_is_off(case):
    case.system.run("cupsdisable", "papier")
    case.print("report", "--printer", "papier")
    case.expect_nothing_printed()
    # It waits for the printer.
    case.system.run("cupsenable", "papier")
    case.document("papier")


def a_printer_deleted_under_the_dialog(case):
    command = case.system.command("lpadmin", "-x", "papier")
    case.print("report", "--printer", "papier", "--while-open", command)
    case.expect_nothing_printed()


def a_print_system_stopped_under_the_dialog(case):
    command = f"kill {case.system.process.pid}; sleep 1"
    case.print("report", "--printer", "papier", "--while-open", command)
    for queue in ("papier", "dossier"):
        expect(not os.path.exists(case.system.output(queue)), "nothing came out")


def on_a_full_disk(case, order, left):
    """Prints with so many bytes left where documents are made."""
    full = os.path.join(case.folder, "plein")
    os.makedirs(full)
    if os.geteuid() != 0 or subprocess.run(
            ["mount", "-t", "tmpfs", "-o", "size=1m", "tmpfs", full],
            stderr=subprocess.DEVNULL).returncode != 0:
        raise NotRun("no small disk can be made here")
    try:
        command = f"cat /dev/zero >{full}/rest 2>/dev/null; truncate -s -{left} {full}/rest"
        case.print("report", *[word.replace("PLEIN", full) for word in order],
                   "--while-open", command, environment={"TMPDIR": full})
        case.expect_nothing_printed()
        expect(not os.path.exists(os.path.join(full, "rapport.pdf")), "no part of a document")
    finally:
        subprocess.run(["umount", full], check=True)


def no_room_for_the_document(case):
    on_a_full_disk(case, ["--printer", "papier"], 0)


def room_for_a_part_of_the_document(case):
    on_a_full_disk(case, ["--printer", "papier"], 16384)


def room_for_a_part_of_the_file(case):
    on_a_full_disk(case, ["--file", "PLEIN/rapport.pdf"], 16384)


def a_file_that_cannot_be_written(case):
    # The dialog's own question, whether to write over what stands there.
    case.print("report", "--file", "/dev/full", questions=1)
    case.expect_nothing_printed()


CASES = [the_report, the_listing, the_other_printer, a_cancel, no_print_system,
         a_printer_that_refuses, a_printer_that_is_off, a_printer_deleted_under_the_dialog,
         a_print_system_stopped_under_the_dialog, no_room_for_the_document,
         room_for_a_part_of_the_document, room_for_a_part_of_the_file,
         a_file_that_cannot_be_written]


def main(job, wanted):
    missing = [name for name in ("cupsd", "lpadmin", "lpstat", "cupsreject", "pdfinfo",
                                 "pdffonts", "pdftotext", "pdfimages", "pdftoppm")
               if tool(name) is None]
    if missing:
        print("not installed:", ", ".join(missing))
        return SKIPPED
    unknown = set(wanted) - {function.__name__ for function in CASES}
    if unknown:
        print("no such case:", ", ".join(sorted(unknown)))
        return 2
    ends = []
    for function in CASES:
        name = function.__name__
        if wanted and name not in wanted:
            continue
        with tempfile.TemporaryDirectory(prefix="navarun-printer-") as folder:
            system = PrintSystem(folder)
            try:
                system.start()
                function(Case(job, system, folder))
                end, reason = "ok", ""
            except NotRun as why:
                end, reason = "not run", f": {why}"
            except (AssertionError, subprocess.SubprocessError, OSError) as error:
                end, reason = "FAILED", f": {error}"
            finally:
                system.stop()
        print(f"{end:8}{name}{reason}")
        ends.append(end)
    if "FAILED" in ends:
        return 1
    return 0 if "ok" in ends else SKIPPED


if __name__ == "__main__":
    # A test that is stopped stops its print system too.
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))
    sys.exit(main(os.path.abspath(sys.argv[1]), sys.argv[2:]))
