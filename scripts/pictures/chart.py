"""Ground of the pictures with words: black on white paper, as they print."""

from pictures.svg import Drawing, number

INK = "#1f2933"
GRID = "#aab4be"
TINT = "#e4ecfb"
BAR = "#a9c3f5"

# Light enough for words in ink on them.
GREEN, YELLOW_GREEN, YELLOW, RED = "#9fd3b4", "#d5e3a0", "#f3e28a", "#e99c91"
PALE_YELLOW, ORANGE = "#ece39c", "#f3c58a"


class Chart(Drawing):
    """A drawing on white with boxes, lines and words; `description` says in words what it shows.

    Without a heading the title stands in the document only, for a picture in a frame that has it.
    """

    def __init__(self, title, description, width, height, heading=True):
        super().__init__(title, width, height)
        self.raw(f"<desc>{description}</desc>")
        self.box(0, 0, width, height, "#ffffff", None)
        self.raw(f'<g font-family="sans-serif" fill="{INK}">')
        if heading:
            self.words(width / 2, 25, title, 16, bold=True)

    def contents(self):
        return [*super().contents(), "</g>"]

    def box(self, x, y, width, height, fill, stroke=INK, corner=0):
        outline = f'stroke="{stroke}" stroke-width="1"' if stroke else 'stroke="none"'
        rounded = f' rx="{number(corner)}"' if corner else ""
        self.raw(
            f'<rect x="{number(x)}" y="{number(y)}" width="{number(width)}" '
            f'height="{number(height)}" fill="{fill}" {outline}{rounded}/>'
        )

    def words(self, x, y, text, size=12, bold=False, anchor="middle", turn=0):
        turned = f' transform="rotate({turn} {number(x)} {number(y)})"' if turn else ""
        self.raw(
            f'<text x="{number(x)}" y="{number(y)}" font-size="{size}" '
            f'font-weight="{"bold" if bold else "normal"}" text-anchor="{anchor}"{turned}>'
            f"{text}</text>"
        )

    def rule(self, x1, y1, x2, y2, colour=INK, width=1, dashed=False):
        dashes = ' stroke-dasharray="3,3"' if dashed else ""
        self.raw(
            f'<line x1="{number(x1)}" y1="{number(y1)}" x2="{number(x2)}" y2="{number(y2)}" '
            f'stroke="{colour}" stroke-width="{number(width)}"{dashes}/>'
        )

    def filled(self, path, colour, outlined=False):
        outline = f'stroke="{INK}" stroke-width="1"' if outlined else 'stroke="none"'
        self.raw(f'<path d="{path}" fill="{colour}" {outline}/>')

    def inset(self, x, y, scale, draw):
        """A posture drawing as part of the chart."""
        self.raw(f'<g transform="translate({number(x)} {number(y)}) scale({number(scale)})">')
        draw(self)
        self.raw("</g>")
