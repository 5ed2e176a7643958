"""What a run of the probe left behind, compared with what it reported."""

FAILURES = (
    "torn",  # neither the old content nor the new one
    "lost",  # a record that was there is gone
    "false",  # the report is not true
    "twice",  # the record is there two times
    "stray",  # a file is left that belongs to nothing
    "altered",  # a link, the file's permissions or attributes, or the source are not as they were
    "exposed",  # a temporary file may be read by more users than the old one
    "crashed",
    "evasive",  # the report leaves open what could be found out
    "missed",  # the fault did not come about
    "unclear",  # the hindrance is not named
    "refused",  # although nothing hindered it
)


def judge(save, folder, run):
    """What a run left behind, as a set of words; see FAILURES."""
    content = save.content(folder)
    found = {"new" if content == save.new else "old" if save.is_old(content, run) else "torn"}
    if not save.keeps_records(content):
        found.add("lost")
    if run.code == 2:
        found.add("unsure")
        if run.allows_unsure:
            found.discard("torn")  # and the report says so
        elif not (save.is_rewrite and content == save.new):  # in place, but its folder not synced
            found.add("evasive")
    if not run.killed:
        if run.code not in (0, 1, 2):
            found.add("crashed")
        if run.code == 0 and (content != save.new or run.must_be_reported):
            found.add("false")
        if run.code == 1 and content != save.old:
            found.add("false")
    if not run.reached:
        found.add("missed")
    if save.is_altered(folder):
        found.add("altered")
    if save.strays(folder):
        found.add("leftover" if run.killed and save.may_leave_copy else "stray")
        if save.is_rewrite and save.is_exposed(folder):
            found.add("exposed")
    return found


class Tally:
    """Counts what was found at all points, and tells of each failure as it comes."""

    def __init__(self, *outcomes):
        """
        :param outcomes: words that are no failures, to be counted as well
        """
        self.outcomes = outcomes
        self.points = 0
        self.found = {}

    def add(self, words, story):
        self.points += 1
        for word in words:
            self.found[word] = self.found.get(word, 0) + 1
        bad = sorted(words.intersection(FAILURES))
        if bad:
            print(f"  {', '.join(bad)}: {story}")

    @property
    def failures(self):
        return sum(self.found.get(word, 0) for word in FAILURES)

    def __str__(self):
        words = (*self.outcomes, *FAILURES)
        figures = ", ".join(f"{self.found.get(word, 0)} {word}" for word in words)
        return f"{self.points} points, {figures}"
