"""The tour through the stipulations editor and the import."""

from steps import MENU

LIST = "Stipulations Editor"
FORM = "Connected With Match Type:"


def stipulations(driver):
    """Creates two stipulations, edits the first and deletes the second."""
    driver.press("Edit And Create Match Stipulations")
    driver.wait_screen(LIST)
    create(driver, "Ladder Match")
    create(driver, "Cage Match")
    driver.picture("stipulations")
    edit(driver)
    delete(driver)
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


def delete(driver):
    driver.select("Singles / Cage Match")
    driver.press("Delete")
    driver.wait_box("Are you sure you want to permanently delete the match stipulation:"
                    "\r\n\r\nSingles / Cage Match\r\n", "Delete Stipulation")
    driver.picture("delete-stipulation")
    driver.press("Yes")
    driver.wait_box("Stipulation Deleted.", "Delete")
    driver.keys("Return")
    driver.wait_screen(LIST)


STIPULATIONS = [
    "Singles", "Ladder Match", "", "Yes", "No", "No", "Yes", "5", "50", "50", "50", "50",
    "NA", "NA", "NA", "NA", "No", "Both", "No",
]


def import_interviews(driver):
    """Copies the interviews written before into a new file."""
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
