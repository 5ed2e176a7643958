"""The tour through the two segment flows."""

from steps import TAG_LIST, finish

LINE = "Commentary line {}"


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
    move_lines(driver)
    finish(driver, "Add This Interview Segment", "Add this interview segment to the file?")


def move_lines(driver):
    """Pastes three lines at once and swaps lines; takes both back and does them again."""
    pasted = {2: "One", 3: "Two", 4: "Three"}
    driver.go_to(LINE.format(2))
    driver.paste(LINE.format(2), "One\nTwo\nThree\n", shows="One")
    wait_lines(driver, {2: "", 3: "", 4: ""}, pasted)
    press_on_lines(driver, "ctrl+z", pasted, {2: "", 3: "", 4: ""})
    press_on_lines(driver, "ctrl+shift+z", {2: "", 3: "", 4: ""}, pasted)
    press_on_lines(driver, "ctrl+shift+Down", {2: "One", 3: "Two"}, {2: "Two", 3: "One"})
    driver.wait_focus(LINE.format(3))
    press_on_lines(driver, "ctrl+z", {2: "Two", 3: "One"}, {2: "One", 3: "Two"})
    press_on_lines(driver, "ctrl+shift+z", {2: "One", 3: "Two"}, {2: "Two", 3: "One"})
    driver.wait_focus(LINE.format(3))
    press_on_lines(driver, "ctrl+shift+Down", {3: "One", 4: "Three"}, {3: "Three", 4: "One"})
    driver.wait_focus(LINE.format(4))
    press_on_lines(driver, "ctrl+shift+Up", {3: "Three", 4: "One"}, {3: "One", 4: "Three"})
    driver.wait_focus(LINE.format(3))


def press_on_lines(driver, key, before, after):
    driver.keys(key)
    wait_lines(driver, before, after)


def wait_lines(driver, before, after):
    """Waits until the commentary lines with these numbers show their new texts."""
    for number, text in after.items():
        driver.wait_value(LINE.format(number), text)
    driver.wait_changes({LINE.format(number): (before[number], text)
                         for number, text in after.items()})


INTERVIEW = [
    "Singles", "Yes", "N/A", "Any", "Any", "Any", "Any", "Female", "12",
    "Good evening from <town>", "Two", "One", "Three", *["-BLANK-"] * 6,
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
