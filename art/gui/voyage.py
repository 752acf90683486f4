"""The map as a scene: the chart, a vignette for each place on it, and the Petrel's rooms as a close-up.

A place is drawn four times: in bare ink (it can be visited), in colour with its lamp lit (it was), the glow behind it (the
mail goes there next) and a blank medal. `PLACES` knows all places, `CALLED_AT` those whose scenes are made: the others stay off the map.
"""

import math
import os

from PIL import Image

from chart import Chart, voyage_chart
from kit import DATA, INK, pack, photo, raster

PEN, PAPER = "#3a210b", "#efdcae"
CHART, SHIP = "BackgroundMap.jpg", "BackgroundShip.jpg"
SHIP_SIZE = (880, 540)

DEFS = f"""
<filter id="halo" x="-15%" y="-15%" width="130%" height="130%"><feMorphology in="SourceAlpha" operator="dilate" radius="3.5" result="d"/><feGaussianBlur in="d" stdDeviation="1.4" result="e"/><feComponentTransfer in="e" result="f"><feFuncA type="linear" slope="3"/></feComponentTransfer><feFlood flood-color="#f6e8c0"/><feComposite in2="f" operator="in"/><feMerge><feMergeNode/><feMergeNode in="SourceGraphic"/></feMerge></filter>
<filter id="rough"><feTurbulence type="fractalNoise" baseFrequency="0.05" numOctaves="3" seed="2"/><feDisplacementMap in="SourceGraphic" scale="1.8" xChannelSelector="R" yChannelSelector="G"/></filter>
<radialGradient id="glow"><stop offset="0" stop-color="#fff6c0"/><stop offset=".42" stop-color="#ffe07a" stop-opacity=".95"/><stop offset=".7" stop-color="#ffc446" stop-opacity=".5"/><stop offset="1" stop-color="#ffb030" stop-opacity="0"/></radialGradient>
<radialGradient id="lit"><stop offset="0" stop-color="#fff6b8"/><stop offset=".3" stop-color="#ffd95e" stop-opacity=".85"/><stop offset="1" stop-color="#ffc83c" stop-opacity="0"/></radialGradient>
<linearGradient id="sea" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#7fa9a6"/><stop offset="1" stop-color="#4c7d86"/></linearGradient>
"""


class Pen:
    """Draws the same lines with or without colour."""

    def __init__(self, coloured):
        self.coloured = coloured
        self.body = ""

    def shape(self, path, fill, width=1.6, paper=PAPER):
        self.body += f'<path d="{path}" fill="{fill if self.coloured else paper}" stroke="{PEN}" stroke-width="{width}" stroke-linejoin="round"/>'

    def box(self, x, y, w, h, fill, width=1.5, paper=PAPER):
        self.shape(f"M{x} {y}H{x + w}V{y + h}H{x}Z", fill, width, paper)

    def line(self, path, width=1.2, colour=PEN):
        self.body += f'<path d="{path}" fill="none" stroke="{colour}" stroke-width="{width}" stroke-linecap="round" stroke-linejoin="round"/>'

    def dot(self, x, y, r, fill, width=1.2):
        self.body += f'<circle cx="{x}" cy="{y}" r="{r}" fill="{fill if self.coloured else PAPER}" stroke="{PEN}" stroke-width="{width}"/>'

    def window(self, x, y, w, h):
        self.box(x, y, w, h, "#ffdf82", 1.4, "#c9ae7a")
        self.line(f"M{x + w / 2} {y}V{y + h}M{x} {y + h / 2}H{x + w}", 1)

    def light(self, x, y, r):
        if not self.coloured:
            return
        self.body += f'<circle cx="{x}" cy="{y}" r="{r}" fill="url(#lit)"/>'
        for i in range(10):
            a = i * math.pi / 5 + .3
            self.line(f"M{x + r * .38 * math.cos(a):.1f} {y + r * .38 * math.sin(a):.1f}L{x + r * (.62 if i % 2 else .52) * math.cos(a):.1f} {y + r * (.62 if i % 2 else .52) * math.sin(a):.1f}", 1.5, "#d98a1c")


def lantern(pen, x, y, s=1.0):
    pen.light(x, y, 24 * s)
    pen.shape(f"M{x - 5 * s} {y - 7 * s}H{x + 5 * s}L{x + 4 * s} {y + 7 * s}H{x - 4 * s}Z", "#fff0a0", 1.3, "#6b5a40")
    pen.shape(f"M{x - 7 * s} {y - 7 * s}L{x} {y - 14 * s}L{x + 7 * s} {y - 7 * s}Z", "#7c2a1c", 1.2, "#8d7348")


def quay(pen):
    """The mail house at the water's edge, its lamp post, sacks, and a boat alongside; 148 x 128."""
    pen.shape("M10 104H138V118Q120 122 104 118T72 118T40 118T10 116Z", "url(#sea)", 1.4)
    pen.shape("M6 92H112V108H6Z", "#9a8a78", 1.6)
    pen.line("M22 92V108M44 92V100M62 92V108M84 92V100M98 92V108M6 100H112", .9)
    pen.box(22, 50, 62, 42, "#d8b98a")
    pen.line("M22 60H28M22 68H30M78 60H84M76 78H84M22 82H27", 1)
    pen.shape("M14 52L30 22H76L92 52Z", "#8f4a34")
    pen.line("M22 44H84M27 36H80M31 29H77M34 52V44M50 52V44M66 52V44M42 44V36M58 44V36M72 44V36", .9)
    pen.box(62, 12, 11, 17, "#7b5a48")
    pen.box(28, 54, 50, 10, "#4d6a3c", 1.3)
    pen.line("M34 59H72", 1.6, "#f3e2b0" if pen.coloured else PEN)
    pen.box(34, 69, 15, 23, "#3f6678")
    pen.dot(46, 81, 1.2, "#ffd76a", .8)
    pen.window(57, 69, 20, 14)
    pen.shape("M86 92Q82 78 90 76L94 72L98 76Q106 80 102 92Z", "#e6d6ae")
    pen.line("M90 76Q94 79 98 76", 1.2)
    pen.shape("M76 92Q74 84 80 83Q86 84 84 92Z", "#d9c491", 1.3)
    pen.line("M112 92V46", 3.2)
    pen.line("M106 92H118", 3)
    lantern(pen, 112, 38, 1.15)
    pen.shape("M108 104Q126 110 142 102Q140 114 132 116H116Q110 112 108 104Z", "#a03a28", 1.5)
    pen.line("M126 106V84M126 84Q138 90 127 100", 1.4)


def shop(pen):
    """A bow-fronted curiosity shop with an awning; 148 x 128."""
    pen.body += '<g transform="translate(-8,0)">'
    pen.box(26, 40, 92, 68, "#b98a62")
    pen.shape("M20 42L34 16H110L124 42Z", "#4c5f76")
    pen.line("M26 32H118M30 24H114", .9)
    pen.box(90, 6, 11, 16, "#7b5a48")
    pen.window(60, 20, 22, 14)
    pen.box(34, 44, 76, 11, "#2f5a48", 1.3)
    pen.line("M42 49.500H102", 1.7, "#f3d88a" if pen.coloured else PEN)
    pen.shape("M34 70Q34 66 38 66H76Q80 66 80 70V98H34Z", "#ffdf82", 1.6, "#c9ae7a")
    pen.line("M49 66V98M65 66V98M34 82H80", 1.1)
    pen.dot(42, 93, 4, "#3f6678")
    pen.shape("M53 98V91Q57 86 61 91V98Z", "#a03a28", 1)
    pen.shape("M68 98L71 88H75L78 98Z", "#c99a3a", 1)
    pen.box(88, 66, 19, 42, "#7a3426")
    pen.window(91, 70, 13, 15)
    stripes = ("#b5402c", "#f3e2b8")
    for i in range(7):
        x = 30 + 7.7 * i
        pen.shape(f"M{x:.1f} 56H{x + 7.7:.1f}L{x + 7.2:.1f} 68q-3.6 5 -7.2 0Z", stripes[i % 2], 1, (PAPER, "#d9c08a")[i % 2])
    pen.line("M118 58H134", 2)
    lantern(pen, 130, 74, 1.0)
    pen.line("M130 60V58", 1.4)
    pen.box(20, 106, 108, 8, "#9a8a78")
    pen.body += "</g>"


def lamproom(pen):
    """The great light of Tern Isle; 148 x 176."""
    pen.body += '<g transform="translate(0,16)">'
    pen.light(74, 38, 46)
    pen.shape("M30 144Q40 130 58 132Q76 124 96 132Q112 130 122 146Q96 152 74 150Q48 152 30 144Z", "#8a8f78", 1.6)
    pen.shape("M58 138L64 60H84L90 138Z", "#f1e4c4", 1.7)
    for y0, y1 in ((72, 88), (104, 120)):
        pen.shape(f"M{64 - (y0 - 60) * .077:.1f} {y0}H{84 + (y0 - 60) * .077:.1f}L{84 + (y1 - 60) * .077:.1f} {y1}H{64 - (y1 - 60) * .077:.1f}Z", "#b23a28", 1.2, "#d9c08a")
    pen.window(70, 92, 8, 9)
    pen.box(69, 124, 10, 15, "#3f6678", 1.3)
    pen.shape("M56 60H92L88 53H60Z", "#4b5662", 1.4)
    pen.line("M58 53V44M66 53V44M82 53V44M90 53V44M57 44H91", 1.1)
    pen.box(64, 28, 20, 25, "#ffe98a", 1.5, "#6b5a40")
    pen.line("M71 28V53M77 28V53", 1.1)
    pen.shape("M60 28H88L74 13Z", "#a03a28", 1.5)
    pen.line("M74 13V6", 1.6)
    pen.body += "</g>"


def steamer(pen):
    """The Petrel, her bows to the right; 188 x 142."""
    pen.shape("M128 40Q112 18 84 20Q58 2 30 14Q46 26 76 30Q100 34 118 48Z", "#b7ab98", 1.1)
    pen.line("M46 98V26M150 94V30", 2.4)
    pen.line("M46 28L14 92M46 28L74 94M150 32L128 92M150 32L180 86M46 28Q96 44 150 32", .9)
    pen.shape("M150 32L122 26L128 33L122 39Z", "#a3281c", 1.1)
    pen.box(60, 72, 74, 24, "#f1e4c4")
    pen.box(56, 68, 82, 5, "#a9743c", 1.3)
    for x in (65, 78, 91, 104, 117):
        pen.window(x, 79, 8, 9)
    pen.box(106, 52, 28, 17, "#c48a50")
    pen.box(102, 48, 36, 5, "#a9743c", 1.3)
    pen.window(110, 56, 8, 8)
    pen.window(121, 56, 8, 8)
    pen.shape("M82 68L79 34H101L100 68Z", "#d8a04a", 1.5)
    pen.shape("M79 42L78.500 32H101.500L101 42Z", "#2a2420", 1.2, "#a58a5c")
    pen.shape("M79.600 50L79.200 45H101L101 50Z", "#a3281c", 1, "#c9ae7a")
    pen.shape("M6 92Q60 102 110 98Q156 96 184 84Q180 104 170 122H30Q10 112 6 92Z", "#25415c", 1.8)
    pen.shape("M22 114H173L170 122H30Q25 119 22 114Z", "#8f2d22", 1.2, "#c9ae7a")
    pen.line("M9 97Q60 107 112 103Q156 100 181 90", 1.4, "#e8c777" if pen.coloured else PEN)
    for x in range(36, 166, 16):
        pen.dot(x, 108, 2.8, "#ffe08a", 1)
    pen.line("M2 124q9 -7 18 0t18 0t18 0t18 0t18 0t18 0t18 0t18 0t18 0t18 0", 1.7)
    pen.line("M22 131q9 -6 18 0t18 0t18 0t18 0t18 0t18 0t18 0", 1.2)


def bunk_and_desk(pen):
    """The captain's cabin cut open; 196 x 112."""
    w, h = 196, 112
    pen.box(6, 6, w - 12, h - 12, "#a8703c", 2.4, "#e6cf98")
    pen.line("".join(f"M{x} 8V82" for x in range(24, 190, 18)), .8, "#6d421c" if pen.coloured else "#b3935a")
    pen.box(6, 84, w - 12, 22, "#6d2c22", 1.6, "#d3b67c")
    pen.line("M12 92H184M12 99H184", .8, "#c98a4a" if pen.coloured else "#9a7a45")
    pen.dot(54, 38, 17, "#c99a3a", 2)
    pen.dot(54, 38, 12, "#86b4c4", 1.5)
    pen.line("M43 42q5 -4 11 0t11 0", 1.2)
    for x, fold in ((26, 1), (72, -1)):
        pen.shape(f"M{x} 16H{x + 12}Q{x + 6 + 4 * fold} 46 {x + 10} 64H{x + 1}Q{x + 4 * fold} 40 {x} 16Z", "#9b2a20", 1.2)
    pen.line("M20 16H88", 2)
    pen.shape("M14 70H88V98H14Z", "#7b4a24", 1.5)
    pen.shape("M14 72Q14 64 24 64H84Q88 64 88 72Z", "#e8dcc0", 1.3)
    pen.shape("M40 64H88V78H40Z", "#3f6678", 1.2)
    pen.shape("M16 64Q16 56 26 56H36Q40 58 38 65Z", "#fff6e0", 1.2)
    pen.box(112, 66, 70, 6, "#7b4a24", 1.4)
    pen.box(116, 72, 20, 28, "#8f5a2c", 1.3)
    pen.box(158, 72, 20, 28, "#8f5a2c", 1.3)
    pen.line("M122 80H130M122 90H130M164 80H172M164 90H172", 1.4)
    pen.shape("M124 66L150 60L158 66Z", "#f0dfae", 1.1)
    pen.dot(170, 54, 8, "#6f9a8a", 1.4)
    pen.line("M170 62V66M163 66H177M161 52Q170 40 179 52", 1.4)
    pen.box(112, 18, 44, 30, "#e3cb92", 1.6, "#f1e2b6")
    pen.line("M116 40Q124 24 132 34T152 26M120 26l4 4m0 -4l-4 4", 1.2, "#a3281c" if pen.coloured else PEN)
    pen.line("M98 6V20", 1.4)
    lantern(pen, 98, 32, 1.15)


def stove_and_pots(pen):
    """The galley cut open; 158 x 112."""
    w, h = 158, 112
    pen.box(6, 6, w - 12, h - 12, "#c7b48c", 2.4, "#e6cf98")
    pen.box(6, 86, w - 12, 20, "#7d4a2c", 1.6, "#d3b67c")
    pen.line("M20 26H138", 2)
    for x, s in ((30, 8), (52, 10), (76, 7), (98, 9)):
        pen.line(f"M{x} 26V32", 1.2)
        pen.shape(f"M{x - s} 32H{x + s}Q{x + s} {32 + s * 1.4} {x} {32 + s * 1.5}Q{x - s} {32 + s * 1.4} {x - s} 32Z", "#b5652c", 1.3)
    pen.box(18, 60, 54, 38, "#3b4046", 1.6, "#c9ae7a")
    pen.box(26, 70, 22, 16, "#ff9a3c", 1.4)
    pen.line("M56 72H64M56 80H64M18 66H72", 1.2)
    pen.shape("M36 60V50H54V60Z", "#8a9298", 1.3)
    pen.line("M34 50H56M45 50V47M40 42q3 -5 0 -9M48 42q3 -5 0 -9", 1.2)
    pen.box(88, 66, 56, 6, "#8f5a2c", 1.4)
    pen.line("M94 72V98M138 72V98", 3)
    pen.shape("M98 66Q98 56 108 56Q118 56 118 66Z", "#d8a04a", 1.3)
    pen.dot(128, 61, 5, "#a03a28", 1.2)
    pen.dot(137, 62, 4, "#7f9a4a", 1.2)
    pen.line("M122 6V14", 1.3)
    lantern(pen, 122, 26, 1.0)


# scene: chart or close-up, drawing, size, centre in pixels of that picture
PLACES = {
    "quay": (CHART, quay, (148, 128), (1098, 478)),
    "shop": (CHART, shop, (148, 128), (975, 350)),
    "lamproom": (CHART, lamproom, (148, 176), (640, 236)),
    "cabin": (SHIP, bunk_and_desk, (196, 112), (552, 234)),
    "galley": (SHIP, stove_and_pots, (158, 112), (334, 234)),
}
CALLED_AT = ("quay", "cabin", "galley", "shop", "lamproom")
STEAMER_SIZE, STEAMER = (188, 142), (712, 518)
SHIP_PLACE = (0, -60)  # of the close-up, from the canvas's middle: clear of the panel below


def drawing(picture, size, coloured, ground=True):
    pen = Pen(coloured)
    picture(pen)
    wrap = 'filter="url(#halo)"' if ground else ""
    return raster(*size, f'<g {wrap}><g filter="url(#rough)">{pen.body}</g></g>', DEFS)


def glow(size):
    w, h = (2 * round(v * .5 + 44) for v in size)
    body = f'<g transform="translate({w / 2},{h / 2})">'
    for i in range(16):
        body += f'<path d="M-5 {-min(w, h) * .2:.0f}L0 {-min(w, h) * .52:.0f}L5 {-min(w, h) * .2:.0f}Z" fill="#fff0a8" opacity=".75" transform="scale({w / min(w, h):.2f} {h / min(w, h):.2f}) rotate({i * 22.5})"/>'
    body += f'</g><ellipse cx="{w / 2}" cy="{h / 2}" rx="{w / 2}" ry="{h / 2}" fill="url(#glow)"/>'
    return raster(w, h, body, DEFS)


def blank_medal():
    body = f'<g opacity=".85"><path d="M22 2H42L46 26H18Z" fill="#d9c08a" stroke="{PEN}" stroke-width="1.600"/><circle cx="32" cy="44" r="24" fill="#efdcae" stroke="{PEN}" stroke-width="1.800"/><circle cx="32" cy="44" r="18" fill="none" stroke="{PEN}" stroke-width="1" stroke-dasharray="3 3"/></g>'
    return raster(64, 72, body, DEFS)


def hull_plan():
    """The steamer cut open on a sheet of her builder's paper."""
    w, h = SHIP_SIZE
    chart = Chart()
    defs = chart.defs() + DEFS
    b = f'<rect width="{w}" height="{h}" filter="url(#parchment)"/><rect width="{w}" height="{h}" fill="#f2e0b4" opacity=".4"/><g filter="url(#rough)">'
    b += '<g stroke="#8a6a40" stroke-width=".700" opacity=".450">' + "".join(f'<path d="M{x} 34V{h - 34}"/>' for x in range(60, w - 40, 40)) + "".join(f'<path d="M34 {y}H{w - 34}"/>' for y in range(60, h - 40, 40)) + "</g>"
    b += f'<path d="M34 404H{w - 34}V{h - 34}H34Z" fill="#7fa9a6" opacity=".45"/>'
    pen = Pen(True)
    # smoke, masts and rigging
    pen.shape("M438 92Q420 58 372 62Q330 36 270 52Q300 74 352 78Q400 84 424 106Z", "#b7ab98", 1.1)
    pen.line("M176 300V70M716 290V80", 4)
    pen.line("M176 74L92 292M176 74L252 296M716 84L640 292M716 84L806 262M176 74L92 292M176 74Q300 130 424 84M716 84Q600 116 470 84", 1)
    pen.shape("M716 84L664 72L676 84L664 98Z", "#a3281c", 1.2)
    pen.line("M40 404q12 -9 24 0" + "t24 0" * 33, 2)
    pen.line("M40 426q12 -8 24 0t24 0t24 0M790 426q12 -8 24 0t24 0", 1.6)
    # the hull, its decks
    hull = "M48 270Q60 284 90 288Q260 308 450 304Q650 300 836 250Q824 320 800 380Q780 440 748 474H150Q90 452 66 372Q48 310 48 270Z"
    pen.shape(hull, "#25415c", 2.4)
    inner = "M82 306Q260 324 450 320Q650 316 806 278Q796 330 776 380Q758 430 736 458H158Q106 438 86 366Q78 330 82 306Z"
    pen.shape(inner, "#ead6a4", 1.8)
    b += pen.body + f'<clipPath id="in"><path d="{inner}"/></clipPath><g clip-path="url(#in)">'
    pen.body = ""
    pen.box(60, 300, 150, 170, "#dcc48c", 1.8)
    pen.box(210, 300, 150, 170, "#e6d2a0", 1.8)
    pen.box(360, 300, 176, 170, "#d6bb84", 1.8)
    pen.box(536, 300, 150, 170, "#e6d2a0", 1.8)
    pen.box(686, 300, 150, 170, "#dcc48c", 1.8)
    pen.line("M60 388H360M536 388H836", 2)
    # aft: hammocks, chests
    pen.line("M100 332Q124 356 150 332M156 334Q180 358 204 334", 3, "#a98a5a")
    pen.box(110, 364, 34, 24, "#8f5a2c")
    pen.box(152, 370, 28, 18, "#7b3a28")
    # the mail room: sacks, pigeon-holes
    pen.box(220, 326, 60, 48, "#a8743c", 1.4)
    for x in range(232, 280, 12):
        pen.line(f"M{x} 326V374", 1)
    pen.line("M220 342H280M220 358H280", 1)
    for x, y in ((296, 388), (320, 388), (342, 388), (308, 364)):
        pen.shape(f"M{x - 12} {y}Q{x - 16} {y - 22} {x - 5} {y - 24}L{x} {y - 30}L{x + 5} {y - 24}Q{x + 16} {y - 22} {x + 12} {y}Z", "#e9d8ac", 1.3)
    # boiler and engine
    pen.shape("M378 404Q378 372 410 372H470V446H410Q378 446 378 404Z", "#6b5a50", 1.8)
    pen.dot(404, 410, 19, "#4a4a50", 2)
    pen.dot(404, 410, 8, "#ff9a3c", 1.4)
    pen.line("M440 372V320M424 372V392M440 372V446M456 372V446", 1.6)
    pen.box(484, 352, 30, 40, "#8f9298", 1.6)
    pen.line("M499 392L490 430L512 440", 5, "#5a5048")
    pen.dot(506, 436, 13, "#c99a3a", 1.8)
    # holds: coal aft below, crates and barrels forward
    pen.shape("M212 458Q230 414 270 420Q300 400 358 458Z", "#3a332c", 1.4)
    for x, y, s in ((548, 424, 34), (584, 424, 34), (622, 430, 28), (566, 392, 32)):
        pen.box(x, y - (0 if y > 400 else 4), s, s, "#b07a40", 1.4)
        pen.line(f"M{x} {y}l{s} {s}", 1)
    for x in (560, 596, 640):
        pen.shape(f"M{x} 388Q{x - 4} 370 {x} 352H{x + 24}Q{x + 28} 370 {x + 24} 388Z", "#8f5a2c", 1.4)
        pen.line(f"M{x - 2} 360H{x + 26}M{x - 2} 380H{x + 26}", 1.2)
    pen.line("M700 350Q720 330 740 350T780 346M706 440q18 -18 36 0t36 0", 2.4, "#a98a5a")
    b += pen.body + "</g>"
    pen.body = ""
    # deckhouses, wheelhouse, funnel; rooms that can be visited are laid over the windows
    pen.box(240, 172, 428, 130, "#e9dcb8", 2)
    for x in (264, 302, 340, 378, 478, 516, 554, 592, 630):
        pen.window(x, 206, 20, 26)
    pen.box(424, 212, 32, 82, "#8f5a2c", 1.6)
    pen.box(230, 164, 448, 10, "#a9743c", 1.6)
    pen.box(528, 100, 112, 66, "#c48a50", 2)
    pen.box(518, 92, 132, 9, "#a9743c", 1.6)
    for x in (540, 568, 596):
        pen.window(x, 112, 20, 22)
    pen.dot(628, 148, 9, "#8f5a2c", 1.4)
    pen.line("M616 148H640M628 136V160M619 139L637 157M637 139L619 157", 1.2)
    pen.shape("M424 164L414 78H476L470 164Z", "#d8a04a", 2)
    pen.shape("M416 96L413 74H477L476 96Z", "#2a2420", 1.6)
    pen.shape("M418 114L417 104H475L474 114Z", "#a3281c", 1.2)
    pen.shape("M300 164V132Q300 122 312 122V136Q308 138 308 144V164Z", "#d8a04a", 1.4)
    pen.shape("M684 196Q716 204 748 192Q744 212 730 214H702Q690 212 684 196Z", "#f1e4c4", 1.4)
    pen.line("M694 196V180M738 194V178", 1.6)
    pen.line("".join(f"M{x} {286 + (x - 60) * .05:.0f}v-16" for x in range(64, 236, 14)) + "M56 268Q140 284 236 286", 1.2)
    pen.line("".join(f"M{x} {292 - (x - 690) * .24:.0f}v-16" for x in range(676, 830, 14)) + "M670 288Q760 272 830 240", 1.2)
    pen.shape("M48 270L34 214L70 222Z", "#24507a", 1.4)
    b += pen.body + "</g>"
    b += f'<g fill="none" stroke="{PEN}"><rect x="14" y="14" width="{w - 28}" height="{h - 28}" stroke-width="4"/><rect x="24" y="24" width="{w - 48}" height="{h - 48}" stroke-width="1.400"/></g>'
    for x, y in ((24, 24), (w - 24, 24), (24, h - 24), (w - 24, h - 24)):
        b += f'<circle cx="{x}" cy="{y}" r="9" fill="#b98436" stroke="{INK}" stroke-width="1.600"/>'
    b += f'<rect width="{w}" height="{h}" filter="url(#fibre)" style="mix-blend-mode:multiply" opacity="0.7"/><rect width="{w}" height="{h}" fill="url(#vignette)" opacity=".7"/>'
    return b, defs


def folder(name):
    return "scenes/map/" + name.lower()


def entries(scene):
    """The pictures of a place, and its lines of coords.txt, glow first."""
    sheet, picture, size, centre = PLACES[scene]
    (w, h), (left, top) = ((1366, 768), (0, 0)) if sheet == CHART else (SHIP_SIZE, SHIP_PLACE)
    x, y = centre[0] - w // 2 + left, centre[1] - h // 2 + top
    medal_x, medal_y = x + size[0] // 2 - 14, y + size[1] // 2 - 22
    pack(glow(size), folder(f"MASK-{scene}-g.png"), 0)
    pack(drawing(picture, size, False), folder(f"NAV-{scene}.png"), 256)
    pack(drawing(picture, size, True), folder(f"MASK-{scene}-r.png"), 256)
    pack(blank_medal(), folder(f"MASK-{scene}-p.png"), 64)
    return [f"MASK-{scene}-g.png,{x},{y}", f"NAV-{scene}.png,{x},{y}", f"MASK-{scene}-r.png,{x},{y}", f"MASK-{scene}-p.png,{medal_x},{medal_y}"]


def sketch(picture, size):
    """A place as the chart shows it, lit, on a leaf of its own: for a place whose room is still to be built."""
    pen = Pen(True)
    picture(pen)
    scale = min(164 / size[0], 122 / size[1])
    ground = '<rect width="180" height="136" fill="#f0e0b6"/><path d="M0 92Q46 84 90 92T180 90V136H0Z" fill="#7fa9a6" opacity=".35"/>'
    return raster(180, 136, f'{ground}<g transform="translate({90 - size[0] * scale / 2:.1f},{68 - size[1] * scale / 2:.1f}) scale({scale:.3f})">'
                            f'<g filter="url(#rough)">{pen.body}</g></g>', DEFS)


def thumbnail(scene):
    """The middle of a scene's room, 180 x 136."""
    path = os.path.join(DATA, f"scenes/{scene}/background{scene}.jpg")
    if os.path.exists(path):
        room = Image.open(path)
        width = room.height * 180 / 136
        left = (room.width - width) / 2
        small = room.resize((180, 136), Image.LANCZOS, (left, 0, left + width, room.height)).convert("RGBA")
    else:
        print(f"{scene} has no room yet: its thumbnail is a sketch")
        small = sketch(PLACES[scene][1], PLACES[scene][2])
    pack(small, f"gui/maphud/mapthumbs/{scene}.png", 256)


def main():
    room = [(*PLACES[p][3], PLACES[p][2][0] / 2, PLACES[p][2][1] / 2) for p in PLACES if PLACES[p][0] == CHART]
    body, defs = voyage_chart(room + [(*STEAMER, STEAMER_SIZE[0] / 2, STEAMER_SIZE[1] / 2)])
    chart = raster(1366, 768, body, defs)
    chart.alpha_composite(drawing(steamer, STEAMER_SIZE, False), (STEAMER[0] - STEAMER_SIZE[0] // 2, STEAMER[1] - STEAMER_SIZE[1] // 2))
    photo(chart, folder(CHART), 90)
    x, y = STEAMER[0] - 683, STEAMER[1] - 384
    pack(drawing(steamer, STEAMER_SIZE, True), folder("SUB1.png"), 256)
    body, defs = hull_plan()
    photo(raster(*SHIP_SIZE, body, defs), folder(SHIP), 90)
    lines = [f"{CHART},0,0"]
    aboard = [scene for scene in CALLED_AT if PLACES[scene][0] == SHIP]
    for scene in aboard:  # whoever goes aboard next is called from the chart too
        pack(glow(STEAMER_SIZE), folder(f"MASK-{scene}-g-m1.png"), 0)
        lines.append(f"MASK-{scene}-g-m1.png,{x},{y}")
    for scene in CALLED_AT:
        if PLACES[scene][0] == CHART:
            lines += entries(scene)
    lines += [f"SUB1.png,{x},{y}", f"{SHIP},{SHIP_PLACE[0]},{SHIP_PLACE[1]}"]
    for scene in aboard:
        lines += entries(scene)
    for scene in CALLED_AT:
        thumbnail(scene)
    with open(os.path.join(DATA, "scenes/map/coords.txt"), "w") as out:
        out.write("\n".join(lines) + "\n")


if __name__ == "__main__":
    main()
