"""The tour through the stipulations editor and the import."""

import os

from steps import MENU

LIST = "Stipulations Editor"
FORM = "Connected With Match Type:"
FILE = "stipulations.tvd"


def stipulations(driver):
    """Creates two stipulations, edits the first and deletes the second. Another program adds one."""
    open_list(driver)
    create(driver, "Ladder Match")
    create(driver, "Cage Match")
    driver.picture("stipulations")
    edit(driver)
    change_outside(driver)
    delete(driver)
    leave_list(driver)


def open_list(driver):
    driver.press("Edit And Create Match Stipulations")
    driver.wait_screen(LIST)


def leave_list(driver):
    driver.press("Back To Menu")
    driver.wait_screen(MENU)


def create(driver, name):
    driver.press("Create New")
    driver.wait_screen(FORM)
    driver.fill("Name Of Stipulation:", name)
    driver.picture("stipulation")
    save(driver)


def edit(driver):
    driver.select("Singles / Ladder Match")
    driver.press("Edit")
    driver.wait_screen(FORM)
    driver.choose("Rate Match Quality By:", "50% Standard, 50% Hardcore")
    save(driver)


def save(driver):
    driver.press("Save This Stipulation")
    driver.wait_box("Saved OK!", "Stipulations Editor")
    driver.keys("Return")
    driver.wait_screen(LIST)


def change_outside(driver):
    """Asks for confirmation if a deletion would overwrite changes of another program; answers No."""
    with open(os.path.join(driver.folder, FILE), "ab") as file:
        file.write("".join(line + "\r\n" for line in ADDED_OUTSIDE).encode("cp1252"))
    ask_to_delete(driver)
    driver.press("Yes")
    driver.wait_box(
        f'The file "{FILE}" was changed by another program after this list was loaded.\n\n'
        "Yes writes your list over it, and what the other program changed is lost. No deletes "
        "nothing, and the list stays as you see it. To see what was changed, open the list again "
        "from the main menu.\n\nWrite over it?", LIST)
    driver.picture("changed-file")
    driver.keys("Return")
    driver.wait_screen(LIST)
    leave_list(driver)
    open_list(driver)


def delete(driver):
    ask_to_delete(driver)
    driver.picture("delete-stipulation")
    driver.press("Yes")
    driver.wait_box("Stipulation Deleted.", "Delete")
    driver.keys("Return")
    driver.wait_screen(LIST)


def ask_to_delete(driver):
    driver.select("Singles / Cage Match")
    driver.press("Delete")
    driver.wait_box("Are you sure you want to permanently delete the match stipulation:"
                    "\r\n\r\nSingles / Cage Match\r\n", "Delete Stipulation")


ADDED_OUTSIDE = [
    "Tag Team", "Ladder Match", "", "No", "No", "No", "No", "9", "60", "60", "70", "70",
    "5", "5", "1", "1", "No", "Yes", "No",
]

STIPULATIONS = [
    "Singles", "Ladder Match", "", "Yes", "No", "No", "Yes", "5", "50", "50", "50", "50",
    "NA", "NA", "NA", "NA", "No", "Both", "No",
    *ADDED_OUTSIDE,
]


def import_interviews(driver):
    """Imports the interviews written before into a new file."""
    driver.press("Import")
    driver.wait_screen("What would you like to import?")
    driver.picture("import-kinds")
    driver.press("Interview Segments")
    driver.wait_screen("Which file would you like to import from?")
    driver.select("interviews.tvd")
    driver.fill("Which file do you want to import these into?", "shared.tvd")
    driver.picture("import-file")
    driver.press("Import")
    driver.wait_box("Import Complete.", "Import")
    driver.keys("Return")
    driver.wait_screen("What would you like to import?")
    driver.press("Back")
    driver.wait_screen(MENU)
