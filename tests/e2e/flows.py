"""What the tour does in each flow, and the bytes that the data file must then hold.

A flow is a function that takes a driver on the main menu and brings it back there. FLOWS lists each
with the file that it writes and the lines that must be in it.
"""

from driver import TAG_LIST

MENU = "Tarvold 1.3 - Matches Editor"


def normal_ending(driver):
    """Writes a match ending that a double team wins."""
    driver.press("Add Normal Match Endings")
    criteria(driver)
    attacker(driver)
    receiver(driver)
    commentary(driver)
    driver.press("Add This Finish")
    driver.wait_box("Add this finish to the file?")
    driver.picture("question")
    driver.keys("Return")
    driver.wait_box("Saved OK.")
    driver.picture("saved")
    driver.press("OK")
    driver.wait_screen(MENU)


def criteria(driver):
    driver.wait_screen("GENERAL DETAILS")
    driver.choose("Match Type", "Tag Team", look=lambda: driver.picture_of_all("match-types"))
    driver.keys("Tab", "ctrl+a")
    driver.type("Stipulation", "Ladder Match")
    driver.keys("Tab")
    driver.choose_by_keys("Title On The Line?", "Yes")
    driver.picture("criteria")
    driver.press("Next")


def attacker(driver):
    driver.wait_screen("ATTACKER DETAILS")
    driver.keys("ctrl+a")
    driver.type("Attacker(s) Name(s)", "Rocco Vance,Dex Vance")
    driver.choose("Attacker(s) Finisher Type", "Top Rope")
    driver.fill("Attacker(s) Manager Name", "Any")
    driver.picture("attacker")
    driver.press("Next")


def receiver(driver):
    driver.wait_screen("RECEIVER DETAILS")
    driver.keys("Tab")
    driver.choose_by_keys("Receiver Disposition", "Heel")
    driver.fill("Receiver Stable", "")
    driver.picture("receiver")
    driver.press("Next")
    driver.wait_screen("THE MATCH FINISH")
    driver.press("Back")
    driver.wait_screen("RECEIVER DETAILS")
    driver.wait_value("Receiver Stable", "N/A")
    driver.press("Next")


def commentary(driver):
    driver.wait_screen("THE MATCH FINISH")
    driver.click_field("Commentary line 1")
    driver.type("Commentary line 1", "Off the top rope: ")
    driver.choose(TAG_LIST, "Attacker 2 Full Name", look=lambda: driver.picture_of_all("tags"))
    driver.wait_value("Commentary line 1", "Off the top rope: <att2fullname>")
    driver.click_field("Commentary line 3")
    driver.type("Commentary line 3", "Three! ")
    driver.choose(TAG_LIST, "Receiver Short Name")
    driver.wait_value("Commentary line 3", "Three! <recshortname>")
    refused_tag(driver)
    driver.picture("commentary")


def refused_tag(driver):
    """A refused tag leaves the one chosen before to be put in once more."""
    driver.choose(TAG_LIST, "Receiver's Manager Name")
    driver.wait_box("You have the receiver's manager name as 'N/A' or 'None', which means you "
                    "can't involve the receiver's manager in this finish.")
    driver.picture("refused-tag")
    driver.keys("Return")
    driver.wait_value("Commentary line 3", "Three! <recshortname><recshortname>")


# What the function above typed and chose, line by line; the rest is what the screens start with.
NORMAL_ENDING = [
    # match criteria
    "Tag Team", "Ladder Match", "Yes", "N/A", "Normal", "N/A",
    # attacker: names, disposition, style, gender, holder, manager, finisher, stable
    "Rocco Vance,Dex Vance", "Any", "Any", "Any", "N/A", "Any", "N/A", "N/A", "t", "N/A",
    # receiver, likewise; the emptied stable is filled
    "Any", "Heel", "Any", "Any", "N/A", "N/A", "N/A", "N/A", "Any", "N/A",
    # ten lines of commentary
    "Off the top rope: <att2fullname>", "-BLANK-", "Three! <recshortname><recshortname>",
    "-BLANK-", "-BLANK-", "-BLANK-", "-BLANK-", "-BLANK-", "-BLANK-", "-BLANK-",
]

FLOWS = [
    (normal_ending, "normreports.tvd", NORMAL_ENDING),
]
