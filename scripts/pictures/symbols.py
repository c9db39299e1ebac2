"""The small pictures on the buttons of the main window, made for 16 to 20 pixels.

Lines stand on whole pixels of a 20-pixel grid. As on the ribbons, grey is the thing, the accent
colour is what matters in it, and a light border carries both on dark and on coloured buttons.
"""

from pictures.inks import EDGE, SIGN_ACCENT, SIGN_FIGURE
from pictures.svg import Drawing, arc, disc, polygon, polyline

GRID = 20


def written_page(title):
    """A written page with a folded corner."""
    drawing = Drawing(title, GRID, GRID)
    page = [(4, 2), (12.5, 2), (16, 5.5), (16, 18), (4, 18)]
    drawing.solid([polygon(page)], SIGN_FIGURE, edge=0.7)
    paper = [(5.5, 3.5), (11, 3.5), (11, 7), (14.5, 7), (14.5, 16.5), (5.5, 16.5)]
    drawing.raw(f'<path d="{polygon(paper)}" fill="{EDGE}"/>')
    for y, width in ((8.4, 6), (10.9, 6), (13.4, 4)):
        drawing.raw(f'<rect x="7" y="{y}" width="{width}" height="1.2" fill="{SIGN_ACCENT}"/>')
    return drawing


def question_mark(title):
    """A question mark on a disc."""
    drawing = Drawing(title, GRID, GRID)
    drawing.solid([disc((10, 10), 8)], SIGN_ACCENT, edge=0.7)
    hook = arc((10, 7.9), 2.75, -80, 110) + "C11.6 9.9 10 10.2 10 12"
    drawing.raw(f'<path d="{hook}" fill="none" stroke="{EDGE}" stroke-width="1.9" '
                f'stroke-linecap="round" stroke-linejoin="round"/>')
    drawing.raw(f'<path d="{disc((10, 14.6), 1.2)}" fill="{EDGE}"/>')
    return drawing


def cross(title):
    """A cross."""
    drawing = Drawing(title, GRID, GRID)
    drawing.line(polyline([(5.5, 5.5), (14.5, 14.5)]) + polyline([(14.5, 5.5), (5.5, 14.5)]),
                 SIGN_ACCENT, 2.4, edge=0.7)
    return drawing


def low_bar(title):
    """A bar where a minimised window goes."""
    drawing = Drawing(title, GRID, GRID)
    drawing.line(polyline([(5.2, 14), (14.8, 14)]), SIGN_ACCENT, 2.4, edge=0.7)
    return drawing
