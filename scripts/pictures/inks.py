"""The inks of the posture pictures, each with the colour that it has on light and on dark grounds.

No one colour keeps 3:1 on white and on dark grey and leaves room for a second that keeps 3:1 from
it. So the files have the inks of light grounds, and the desktop program puts those of dark grounds
in their place where it draws on one; its own copy of this table is widgets/picture_inks.cpp.
"""

# ink: on light grounds, on dark grounds; the edge first, whose white another ink has on dark ones
INKS = {
    "edge": ("#ffffff", "#2d2d30"),  # parts what touches; in the program, the ground's own colour
    "figure": ("#848890", "#757a83"),  # everything that stands still
    "accent": ("#0b3296", "#cae0ff"),  # the moving segment and its angle
    "guide": ("#14171c", "#ffffff"),  # reference lines, outlines of what a hand holds
    "range": ("#b9cdf5", "#27406f"),  # the sector of a range, behind the moving segment
    "object": ("#e3e6ea", "#3f444c"),  # what a hand holds
}

EDGE, FIGURE, ACCENT, GUIDE, RANGE, OBJECT = (light for light, _ in INKS.values())

# Signs and charts are drawn once for all grounds: 3:1 on white and on dark grey alike.
SIGN_ACCENT = "#3a72ee"
SIGN_FIGURE = "#8a8f98"


def on_dark(document):
    """The document in the inks of dark grounds."""
    for light, dark in INKS.values():
        document = document.replace(light, dark)
    return document
