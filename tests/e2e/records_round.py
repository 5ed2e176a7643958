"""The tour through the records window, and through the program tarvold-records.

Users who see only windows leave it out: all of it is about what stands inside one window.
"""

import os
import subprocess

from tour_error import TourError
from steps import MENU, finish

FILE = "season.tvd"
BOX = "To File: normal match endings"
ATTACKER = "Attacker(s) Name(s)"
SIMILAR = "<att1fullname> does it again!"


def ending(attacker="Nova", finisher=("Any",),
           first_line="<att1fullname> rolls up <recfullname> for three!"):
    """The lines of a normal match ending."""
    return [
        "Singles", "Any", "N/A", "N/A", "Normal", "N/A",
        attacker, "Any", "Any", "Any", "N/A", "Any", "N/A", "N/A", *finisher, "N/A",
        "Vega", "Any", "Any", "Any", "N/A", "N/A", "N/A", "N/A", "Any", "N/A",
        first_line, *["-BLANK-"] * 9,
    ]


# As their author left them: a misspelt name, and an ending that lacks a line and has a tag that the
# game does not know.
DAMAGED = [
    *ending(attacker="Rocco Vance", first_line="<att1fullname> walks out with the belt."),
    *ending(attacker="Novva"),
    *ending(finisher=(), first_line="<recshortnam> never saw it coming."),
]
CORRECTED = [
    *ending(attacker="Rocco Vance", first_line="<att1fullname> walks out with the belt."),
    *ending(),
    *ending(first_line="<recshortname> never saw it coming."),
]
SEASON = [*CORRECTED, *ending(first_line=SIMILAR)]

PROBLEM = ("Ending 3 has 35 lines; the line for Attacker(s) Finisher Type is missing. The game reads "
           "everything after it wrongly.")
PROBLEM_PLACE = f"{FILE}:87: "
FOLLOWED = "Read the file again: 4 records."


def records(driver):
    """Corrects a damaged file beside the main menu, and writes a similar ending."""
    with open(path_of(driver), "wb") as file:
        file.write(bytes_of(DAMAGED))
    found = check(driver, FILE, status=1)
    if PROBLEM_PLACE + PROBLEM not in found:
        raise TourError(f"--check misses the line that is missing, and prints {found}")
    open_records(driver)
    search(driver)
    correct(driver)
    repair(driver)
    save(driver)
    write_similar(driver)
    close(driver)
    look_through(driver)


def open_records(driver):
    driver.fill(BOX, FILE)
    driver.keys("ctrl+o")
    driver.wait_rows(["Record 1", "Rocco Vance"], ["Record 2", "Novva", "Vega"],
                     ["Record 3, 2 problems", "<recshortnam> never saw it coming."])
    driver.wait_records(FILE)
    driver.select_row("Record 2")
    driver.wait_label("Singles: Novva, with a manager, wins against Vega.")
    driver.picture("records", of=FILE)


def search(driver):
    driver.keys("ctrl+f")
    driver.type("Search", "novv")
    driver.wait_rows(["Record 2", "Novva"])
    driver.wait_label("1 of 3 records")
    driver.keys("Escape")
    driver.wait_label("3 records")


def correct(driver):
    """Corrects the name; undoes that, and does it again."""
    driver.keys("ctrl+2")
    driver.wait_records(FILE)
    driver.fill(ATTACKER, "Nova")
    driver.keys("Return")
    expect_corrected(driver)
    driver.picture("records-written", of=FILE)
    driver.keys("ctrl+z")
    driver.wait_label(f"Undone: Edit {ATTACKER}.")
    driver.wait_value(ATTACKER, "Novva")
    driver.wait_rows(["Record 1"], ["Record 2", "Novva"], ["Record 3, 2 problems"])
    driver.keys("ctrl+shift+z")
    driver.wait_label(f"Done again: Edit {ATTACKER}.")
    expect_corrected(driver)


def expect_corrected(driver):
    driver.wait_value(ATTACKER, "Nova")
    driver.wait_rows(["Record 1"], ["Record 2, Edited", "Nova"], ["Record 3, 2 problems"])


def repair(driver):
    """Repairs the problems of an ending, one after the other."""
    driver.keys("F8")
    driver.wait_label("2 problems:")
    driver.wait_label('Put "Any" there')
    driver.wait_label(PROBLEM)
    driver.select(PROBLEM)
    driver.keys("Return")  # goes to the line, as the click did
    driver.picture("records-problems", of=FILE)
    driver.press("Repair")
    driver.wait_label("1 problem:")
    driver.wait_label("Put <recshortname> there")
    driver.press("Repair")
    driver.wait_rows(["Record 1"], ["Record 2, Edited"], ["Record 3, Edited"])


def save(driver):
    driver.keys("ctrl+s")
    driver.wait_label(f"Saved 3 records to {FILE}.")
    driver.wait_rows(["Record 1"], ["Record 2"], ["Record 3"])
    expect_file(driver, CORRECTED)


def write_similar(driver):
    """Writes an ending that differs from another one in its first line of commentary."""
    driver.select_row("Record 2")
    driver.choose_entry("Record", "Write A Similar One", ("alt+r", "s"))
    for heading in ("GENERAL DETAILS", "ATTACKER DETAILS", "RECEIVER DETAILS"):
        driver.wait_screen(heading)
        driver.press("Next")
    driver.wait_screen("THE MATCH FINISH")
    driver.fill("Commentary line 1", SIMILAR)
    finish(driver, "Add This Finish", "Add this finish to the file?")
    expect_file(driver, SEASON)


def close(driver):
    """Shows the window again, which has followed the file, and closes it."""
    driver.go_to(BOX)
    driver.keys("ctrl+o")
    driver.wait_rows(["Record 1"], ["Record 2"], ["Record 3"], ["Record 4", SIMILAR])
    driver.wait_records(FILE)
    driver.keys("ctrl+w")
    driver.wait_screen(MENU)


def look_through(driver):
    """Shows the file in the other program, which finds nothing wrong in any file of the tour."""
    other = driver.beside(program_of(driver), FILE)
    try:
        other.wait_rows(["Record 1"], ["Record 2"], ["Record 3"], ["Record 4", SIMILAR])
        other.wait_records(FILE)
        other.keys("ctrl+w")
        other.wait_end()
    finally:
        other.stop()
    driver.wait_screen(MENU)
    # The content of an interview without names may be that of a talk show; names of files tell.
    check(driver, "--kind", "interview", "shared.tvd")
    check(driver, *sorted({*os.listdir(driver.folder)} - {"shared.tvd"}))


def check(driver, *arguments, status=0):
    """The lines that tarvold-records prints about files in the folder of the tour."""
    done = subprocess.run([program_of(driver), "--check", *arguments], cwd=driver.folder, check=False,
                          stdin=subprocess.DEVNULL, capture_output=True, text=True, encoding="utf-8")
    if done.returncode != status or done.stderr:
        raise TourError(f"--check {arguments} ended with {done.returncode} and printed\n"
                        f"{done.stdout}{done.stderr}")
    return done.stdout.splitlines()


def program_of(driver):
    """The path of tarvold-records, which is built beside the editor."""
    return os.path.join(os.path.dirname(driver.program), "tarvold-records")


def path_of(driver):
    return os.path.join(driver.folder, FILE)


def bytes_of(lines):
    return "".join(line + "\r\n" for line in lines).encode("cp1252")


def expect_file(driver, lines):
    with open(path_of(driver), "rb") as file:
        if file.read() != bytes_of(lines):
            raise TourError(f"{FILE} has other bytes than it should have")
