"""The tour through the two segment flows."""

from steps import TAG_LIST, finish


def interview(driver):
    driver.press("Add New Interview Segments")
    driver.wait_screen("INTERVIEW SEGMENT DETAILS")
    driver.choose("Interviewer?", "Yes")
    driver.fill("Side 1 Wrestler Name(s)", "")
    driver.choose("Gender of Feuding Wrestlers", "Female")
    driver.keys("Tab", "Right", "Right")
    driver.wait_label("12%")
    driver.picture("interview")
    driver.press("Next")
    driver.wait_screen("THE INTERVIEW SEGMENT")
    driver.fill("Commentary line 1", "Good evening from ")
    driver.choose(TAG_LIST, "Town Name")
    driver.wait_value("Commentary line 1", "Good evening from <town>")
    driver.picture("interview-commentary")
    finish(driver, "Add This Interview Segment", "Add this interview segment to the file?")


INTERVIEW = [
    "Singles", "Yes", "N/A", "Any", "Any", "Any", "Any", "Female", "12",
    "Good evening from <town>", *["-BLANK-"] * 9,
]


def talk_show(driver):
    driver.press("Add New Talk Show Segments")
    driver.wait_screen("TALK SHOW SEGMENT DETAILS")
    driver.fill("Name of Talk Show", "The Corner")
    driver.choose("Disposition Of Guest # 2", "Heel")
    driver.picture("talk-show")
    driver.press("Next")
    driver.wait_screen("THE TALK SHOW SEGMENT")
    driver.fill("Commentary line 1", "Welcome to ")
    driver.choose(TAG_LIST, "Talk Show Name")
    driver.wait_value("Commentary line 1", "Welcome to <talkshowname>")
    driver.type("Commentary line 1", ", live!", shows="Welcome to <talkshowname>, live!")
    driver.go_to("Commentary line 2")
    driver.paste("Commentary line 2", PASTED)
    driver.picture("talk-show-commentary")
    finish(driver, "Add This Talk Show Segment", "Add this talk show segment to the file?")


# Pasted, as few keyboards have these characters.
PASTED = "“¡Señor Müller!” – 5 € für ein Œuvre…"

TALK_SHOW = [
    "Any", "Any", "The Corner", "Any", "Any", "Any", "Heel", "Any", "10",
    "Welcome to <talkshowname>, live!", PASTED, *["-BLANK-"] * 8,
]
