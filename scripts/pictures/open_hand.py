"""The open right hand that the main window has the shape of, seen from its back, fingers up."""

from pictures import hand_details, hand_light
from pictures.hand_light import Ridge
from pictures.hand_outline import Finger, corners, curve, hand_nodes
from pictures.svg import Drawing, Frame

WIDTH, HEIGHT = 306, 501  # logical pixels of the main window
SHADE = "#333f78"  # the contour, and everything outside, so that no fringe shows at the edge
CONTOUR = 3  # pixels, half of them inside

INDEX = Finger((95, 187), -9, 158, (24.2, 21.9, 22.4, 19.6, 18.8, 14.8), 6)
MIDDLE = Finger((153, 181), -1.5, 178, (24.6, 22.4, 23.2, 20.4, 19.6, 15.6), 2)
RING = Finger((211, 185), 6, 164, (24, 21.8, 22.4, 19.6, 18.6, 14.6), -4)
LITTLE = Finger((266, 196), 11.5, 127, (22, 18.6, 18.6, 16.2, 15.4, 12.2), -7)
FINGERS = [INDEX, MIDDLE, RING, LITTLE]
WEB = 8

# From the little finger down its side of the hand to the wrist and round the end of the sleeve.
OUTER_SIDE = [
    ((294, 240), 170), ((300.8, 300), 176), ((302, 352), 182), ((294.5, 422), 192),
    ((281, 458), 205), ((268, 479), 200), ((271, 481.6), 92), ((275, 485.5), 178),
    ((276, 497), 177), ((272.5, 500.6), 270),
]
# From there round ball and thumb to the web, and up to the index finger.
THUMB_SIDE = [
    ((83.5, 500.6), 270), ((80, 497), 3), ((81, 485.5), 2), ((85, 481.6), 88), ((88, 479), 347),
    ((80, 462), 325), ((56, 434), 314), ((29, 402), 325), ((12.5, 364), 345), ((6.6, 332), 353),
    ((2.4, 305), 354), ((3.8, 282), 6), ((7.6, 263), 12), ((17.5, 247.5), 68), ((33.5, 256), 140),
    ((43.5, 279), 163), ((47.2, 302), 177), ((46.6, 322), 178), ((51.5, 343), 152),
    ((59.2, 349), 80), ((65, 336), 12), ((68, 298), 3), ((66.4, 246), 354),
]
THUMB_NAIL = Frame((14.2, 252.5), 1, 10)

# Left, top, width and height of what the window's controls stand on.
CONTROLS = ((78, 206, 200, 234), (100, 410, 156, 62))

KNUCKLE = 36  # pixels from a finger's root down to its knuckle
TENDONS_MEET = (178, 470)
TENDONS_STAY = 0.28  # of what the knuckles are apart, the tendons still are at the wrist


def _ridges():
    """What lies under the skin: knuckles, tendons, joints, and the bones of the thumb."""
    out = [Ridge((24, 318), (60, 430), 10, 14, 2.2), Ridge((60, 430), (110, 478), 12, 10, 1.2)]
    for finger in FINGERS:
        knuckle = finger.at(0, -KNUCKLE)
        x, y = TENDONS_MEET
        wrist = (x + (knuckle[0] - x) * TENDONS_STAY, y)
        joint, last = (share * finger.length for share in (finger.MIDDLE_JOINT, finger.LAST_JOINT))
        out += [
            Ridge(finger.at(-1, -KNUCKLE), finger.at(1, -KNUCKLE), 15, 15, 3),
            Ridge(knuckle, wrist, 6, 5, 1.1),
            Ridge(finger.at(-4, joint), finger.at(4, joint), 9, 9, 1.6),
            Ridge(finger.at(-1, last), finger.at(1, last), 7, 7, 0.8),
        ]
    return out


def open_hand(title):
    drawing = Drawing(title, WIDTH, HEIGHT)
    nodes = hand_nodes(FINGERS, WEB, OUTER_SIDE, THUMB_SIDE)
    path = curve(nodes)
    drawing.raw(f'<rect width="{WIDTH}" height="{HEIGHT}" fill="{SHADE}"/>')
    drawing.raw(f'<defs><path id="outline" d="{path}"/></defs>')
    drawing.raw(f'<path d="{path}" fill="{hand_light.deepest()}"/>')
    for element in [*hand_light.bands(WIDTH, HEIGHT, corners(nodes), _ridges(), CONTROLS),
                    *hand_details.folds(FINGERS), *hand_details.nails(FINGERS, THUMB_NAIL),
                    *hand_details.sleeve()]:
        drawing.raw(element)
    drawing.raw(f'<path d="{path}" fill="none" stroke="{SHADE}" stroke-width="{CONTOUR}"/>')
    # What fell outside is covered, so that all of it is one plain colour.
    drawing.raw(f'<path d="M0 0H{WIDTH}V{HEIGHT}H0Z{path}" fill-rule="evenodd" fill="{SHADE}"/>')
    return drawing
