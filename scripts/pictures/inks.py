"""The inks of the posture pictures, each with the colour that it has on light and on dark grounds.

No one colour keeps 3:1 on white and on dark grey and leaves room for a second that keeps 3:1 from
it. So the files have the inks of light grounds, and the desktop program puts those of dark grounds
in their place where it draws on one; its own copy of this table is widgets/picture_inks.cpp.
"""

# ink: on light grounds, on dark grounds; the edge first, whose white another ink has on dark ones
INKS = {
    "edge": ("#ffffff", "#2d2d30"),  # parts what touches; in the program, the ground's own colour
    "figure": ("#797d85", "#757a83"),  # everything that stands still
    "accent": ("#082a84", "#cae0ff"),  # the moving segment and its angle
    "guide": ("#14171c", "#ffffff"),  # reference lines, outlines of what a hand holds
    "range": ("#b9cdf5", "#36599b"),  # the sector of a range, behind the moving segment
    "object": ("#e3e6ea", "#565c66"),  # what a hand holds
}

EDGE, FIGURE, ACCENT, GUIDE, RANGE, OBJECT = (light for light, _ in INKS.values())

# Signs and charts are drawn once for all grounds: 3:1 on white and on dark grey alike.
SIGN_ACCENT = "#3a72ee"
SIGN_FIGURE = "#8a8f98"


def on_ground(document, ground, dark):
    """The document as the program shows it on a ground, a light or a dark one."""
    document = document.replace(EDGE, ground)
    for light, other in list(INKS.values())[1:] if dark else ():
        document = document.replace(light, other)
    return document
