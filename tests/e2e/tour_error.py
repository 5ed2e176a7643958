"""How a tour fails, apart from what needs the accessibility bus: the documents are checked without."""


class TourError(RuntimeError):
    """The program did not do what the tour expects."""
