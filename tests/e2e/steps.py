"""Steps that several flows of the tour share."""

MENU = "Tarvold 1.3 - Matches Editor"
TAG_LIST = "Commentary tag"


def finish(driver, button, question):
    """Saves from a commentary screen and returns to the main menu."""
    driver.press(button)
    driver.wait_box(question)
    driver.picture("question")
    driver.keys("Return")
    driver.wait_box("Saved OK.")
    driver.picture("saved")
    driver.press("OK")
    driver.wait_screen(MENU)
