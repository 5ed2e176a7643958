"""What the tour does in each flow, and the expected content of the data file.

A flow is a function that takes a driver on the main menu and returns to the main menu. WRITING
and LOOKING list each flow with the file that it writes and the expected lines; flows_of() tells who does them.
"""

import records_round
import segment_flows
import stipulation_flow
from steps import MENU, TAG_LIST, finish

NO_MANAGER = ("You have the receiver's manager name as 'N/A' or 'None', which means you can't "
              "involve the receiver's manager in this finish.")


def normal_ending(driver):
    """Writes a match ending that a double team wins."""
    driver.press("Add Normal Match Endings")
    criteria(driver)
    attacker(driver)
    receiver(driver)
    commentary(driver)
    finish(driver, "Add This Finish", "Add this finish to the file?")


def criteria(driver):
    driver.wait_screen("GENERAL DETAILS")
    driver.choose("Match Type", "Tag Team")
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
    driver.go_to("Commentary line 1")
    driver.type("Commentary line 1", "Off the top rope: ")
    driver.choose(TAG_LIST, "Attacker 2 Full Name", picture="tags")
    driver.wait_value("Commentary line 1", "Off the top rope: <att2fullname>")
    driver.go_to("Commentary line 3")
    driver.type("Commentary line 3", "Three! ")
    driver.choose(TAG_LIST, "Receiver Short Name")
    driver.wait_value("Commentary line 3", "Three! <recshortname>")
    refused_tag(driver)
    driver.picture("commentary")


def refused_tag(driver):
    """Choosing a refused tag inserts the previous tag again; the author undoes that."""
    driver.choose(TAG_LIST, "Receiver's Manager Name")
    driver.wait_box(NO_MANAGER)
    driver.picture("refused-tag")
    driver.keys("Return")
    driver.wait_screen("THE MATCH FINISH")
    driver.wait_value("Commentary line 3", "Three! <recshortname><recshortname>")
    driver.picture("repeated-tag")
    driver.keys("ctrl+z")
    driver.wait_value("Commentary line 3", "Three! <recshortname>")


# What the function above typed and chose, line by line; the other lines have default values.
NORMAL_ENDING = [
    # match criteria
    "Tag Team", "Ladder Match", "Yes", "N/A", "Normal", "N/A",
    # attacker: names, disposition, style, gender, holder, manager, finisher, stable
    "Rocco Vance,Dex Vance", "Any", "Any", "Any", "N/A", "Any", "N/A", "N/A", "t", "N/A",
    # receiver, likewise; the emptied stable is filled
    "Any", "Heel", "Any", "Any", "N/A", "N/A", "N/A", "N/A", "Any", "N/A",
    # ten lines of commentary
    "Off the top rope: <att2fullname>", "-BLANK-", "Three! <recshortname>",
    *["-BLANK-"] * 7,
]


def run_in(driver):
    """Writes a match ending in which a tag team interferes."""
    driver.press("Add Match Endings With Run-Ins")
    driver.wait_screen("GENERAL DETAILS")
    driver.choose("Match Type", "Women's Tag Team")
    driver.press("Next")
    driver.wait_screen("ATTACKER DETAILS")
    driver.press("Next")
    driver.wait_screen("RECEIVER DETAILS")
    driver.press("Next")
    driver.wait_screen("FEUD DETAILS")
    driver.wait_value("Type of Feud", "Tag Team")
    driver.fill("Feuding Wrestler(s)", "Nova,Vega")
    driver.choose("Feuding With", "Winners")
    driver.keys("Tab", "Right", "Right", "Up", "Left")
    driver.wait_label(" 12%")
    driver.picture("feud")
    driver.press("Next")
    driver.wait_screen("THE MATCH FINISH")
    driver.fill("Commentary line 1", "Here they come: ")
    driver.choose(TAG_LIST, "Interfering Team Name")
    driver.wait_value("Commentary line 1", "Here they come: <feudteam>")
    driver.picture("run-in-commentary")
    finish(driver, "Add This Finish", "Add this finish to the file?")


RUN_IN = [
    "Women's Tag Team", "Any", "N/A", "N/A", "Normal", "N/A",
    "Rocco Vance,Dex Vance", "Any", "Any", "Any", "N/A", "N/A", "N/A", "N/A", "Any", "N/A",
    "Any", "Any", "Any", "Any", "N/A", "N/A", "N/A", "N/A", "Any", "N/A",
    # televised, feud, names, disposition, style, finisher, side, heat
    "N/A", "Tag Team", "Nova,Vega", "Any", "Any", "Any", "Winners", "12",
    "Here they come: <feudteam>", *["-BLANK-"] * 9,
]


def turn(driver):
    """Writes a match ending in which a wrestler turns on his partner."""
    driver.press("Add Match Endings With Turns")
    driver.wait_screen("GENERAL DETAILS")
    driver.press("Next")
    driver.wait_screen("ATTACKER DETAILS")
    driver.picture("attacker-of-a-turn")
    driver.press("Next")
    driver.wait_screen("RECEIVER DETAILS")
    driver.press("Next")
    driver.wait_screen("TURN DETAILS")
    driver.choose("Wrestler 1 Disposition", "Turning Heel")
    driver.choose("Turning Wrestler(s) Are On", "Losing Side")
    driver.picture("turn")
    driver.press("Next")
    driver.wait_screen("THE MATCH FINISH")
    driver.fill("Commentary line 1", "What a betrayal by ")
    driver.choose(TAG_LIST, "Wrestler 1")
    driver.wait_value("Commentary line 1", "What a betrayal by <wrestler1>")
    driver.picture("turn-commentary")
    finish(driver, "Add This Finish", "Add this finish to the file?")


TURN = [
    "Singles", "Any", "N/A", "N/A", "Normal", "N/A",
    # the attacker's name is the one typed before; then style, gender, holder, finisher
    "Rocco Vance,Dex Vance", "Any", "Any", "N/A", "Any",
    "Any", "Any", "Any", "N/A", "Any",
    "Turning Heel", "N/A", "N/A", "N/A", "Losing Side", "N/A", "N/A",
    "What a betrayal by <wrestler1>", *["-BLANK-"] * 9,
]

WRITING = [
    (normal_ending, "normreports.tvd", NORMAL_ENDING),
    (run_in, "feudreports.tvd", RUN_IN),
    (turn, "turnreports.tvd", TURN),
    (segment_flows.interview, "interviews.tvd", segment_flows.INTERVIEW),
    (segment_flows.talk_show, "talkshow.tvd", segment_flows.TALK_SHOW),
    (stipulation_flow.stipulations, "stipulations.tvd", stipulation_flow.STIPULATIONS),
    (stipulation_flow.import_interviews, "shared.tvd", segment_flows.INTERVIEW),
]

# These look inside windows.
LOOKING = [(records_round.records, records_round.FILE, records_round.SEASON)]


def flows_of(user):
    """The flows for a user: those who see only windows leave out what needs a look inside."""
    return WRITING if user in ("recorder", "replay") else [*WRITING, *LOOKING]
