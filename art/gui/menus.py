"""What the menus need beside the boards: the lines of the crew list, the letter at the end, the map's panel, medals."""

import math

from kit import INK, brass_corner, plate, rim, save, sheet, stud
from panels import board, flourish, plaque, rounded, seal


def pause():
    save("gui/pausemenu/panel.png", 560, 440, board(560, 440, 40) + plaque(90, 22, 374, 76), colours=256)


def line(name, ink, opacity):
    """A ruled line of the crew list: the whole strip is pressed, so that it is nowhere clear."""
    body = f'<rect x="1" y="1" width="558" height="48" rx="8" fill="{ink}" opacity="{opacity}"/>'
    body += '<path d="M18 43H542" stroke="#6b4316" stroke-width="1.4" opacity=".75"/><path d="M18 45H542" stroke="#fff" stroke-width="1" opacity=".3"/>'
    save(f"gui/chooseplayer/{name}.png", 560, 50, body, colours=64)


def highlight():
    """A strip of sea-blue enamel with brass ends behind the chosen name's line."""
    body = '<rect x="3" y="3" width="574" height="48" rx="10" fill="#e7b65a" opacity=".55"/>' + rim(rounded(4, 4, 572, 46, 9), 3)
    for x in (15, 565):
        body += stud(x, 27, 5, x % 90)
    save("gui/chooseplayer/highlight.png", 580, 54, body, colours=64)


def letter():
    """The letter that ends the voyage, a tall sheet for the left half of the painting; heading at (-2, -226), text 390 x 350 around (-2, -10)."""
    w, h = 500, 580
    body = f'<g filter="url(#deep)"><rect x="8" y="6" width="{w - 22}" height="{h - 22}" rx="4" fill="{INK}" opacity=".6"/></g>'
    body += sheet(8, 6, w - 22, h - 22, 4) + f'<rect x="24" y="22" width="{w - 54}" height="{h - 54}" rx="3" fill="none" stroke="#7a4a14" stroke-width="1.4" opacity=".5"/>'
    body += flourish(w / 2 - 3, 100, 170) + flourish(w / 2 - 60, h - 66, 130) + seal(w - 92, h - 82, 38)
    save("gui/endscreen/letter.png", w, h, body, colours=256)


def offer():
    """The corner panel of the map: a note pinned to the chart, a picture to the left, words to the right."""
    w, h = 420, 172
    body = f'<g filter="url(#deep)"><rect x="6" y="6" width="{w - 16}" height="{h - 16}" rx="6" fill="{INK}"/></g>' + sheet(6, 6, w - 16, h - 16, 6) + rim(rounded(8, 8, w - 20, h - 20, 6), 6)
    body += f'<rect x="18" y="17" width="188" height="144" fill="{INK}" opacity=".75"/>' + flourish(307, h - 26, 60)
    for x, y, turn in ((6, 6, 0), (w - 10, 6, 90), (w - 10, h - 10, 180), (6, h - 10, 270)):
        body += brass_corner(x, y, 30, turn)
    save("gui/maphud/offer.png", w, h, body, colours=256)


def frame():
    body = f'<g filter="url(#deep)"><rect x="6" y="6" width="196" height="152" fill="{INK}"/></g>' + rim("M10 10H198V154H10Z", 9)
    for x, y, turn in ((8, 8, 0), (200, 8, 90), (200, 156, 180), (8, 156, 270)):
        body += brass_corner(x, y, 22, turn)
    save("gui/maphud/frame.png", 212, 168, body, colours=128)


def close(name, fill, metal):
    body = f'<g filter="url(#shadow)"><circle cx="20" cy="19" r="15" fill="url(#{fill})" stroke="{INK}" stroke-width="2"/></g><circle cx="20" cy="19" r="15" fill="none" stroke="url(#{metal})" stroke-width="3.4"/>'
    body += '<path d="M14 13L26 25M26 13L14 25" stroke="#f6e7c1" stroke-width="3.4" stroke-linecap="round"/>'
    save(f"gui/maphud/{name}.png", 42, 42, body, colours=64)


MEDALS = {"gold": ("#fff2b8", "#e3b13f", "#7c4f10"), "silver": ("#ffffff", "#b6bcc2", "#555c63"), "bronze": ("#ffd9b0", "#b9763a", "#57290b")}


def medal(name):
    """A stamped medal on a red ribbon: a lighthouse, and as many stars as the medal is worth."""
    light, metal, dark = MEDALS[name]
    defs = f'<radialGradient id="m" cx=".36" cy=".3" r=".85"><stop offset="0" stop-color="{light}"/><stop offset=".5" stop-color="{metal}"/><stop offset="1" stop-color="{dark}"/></radialGradient>'
    body = f'<g filter="url(#shadow)"><path d="M22 2H42L46 26H18Z" fill="#9b2a20" stroke="{INK}" stroke-width="1.6"/><path d="M29 2H35L37 26H27Z" fill="#f0e0b0"/>'
    rays = "".join(f'{"M" if i == 0 else "L"}{32 + (25 if i % 2 else 22.5) * math.sin(i * math.pi / 24):.1f} {44 - (25 if i % 2 else 22.5) * math.cos(i * math.pi / 24):.1f}' for i in range(48))
    body += f'<path d="{rays}Z" fill="url(#m)" stroke="{INK}" stroke-width="1.5"/></g><circle cx="32" cy="44" r="18" fill="none" stroke="{dark}" stroke-width="1.6"/><circle cx="31.500" cy="43.500" r="18" fill="none" stroke="{light}" stroke-width=".8"/>'
    body += f'<path d="M29 39H35L37 55H27ZM28 36H36V39H28ZM29.500 31H34.5V36H29.5Z" fill="{dark}" stroke="{light}" stroke-width=".6"/><path d="M27 33L17 29V37ZM37 33L47 29V37Z" fill="{light}" opacity=".75"/>'
    stars = {"gold": 3, "silver": 2, "bronze": 1}[name]
    for i in range(stars):
        turn = (i - (stars - 1) / 2) * 0.5
        x, y = 32 + 13.5 * math.sin(turn), 45 + 13.5 * math.cos(turn)
        points = " ".join(f"{x + (3.4 if k % 2 == 0 else 1.5) * math.sin(k * math.pi / 5):.1f},{y - (3.4 if k % 2 == 0 else 1.5) * math.cos(k * math.pi / 5):.1f}" for k in range(10))
        body += f'<polygon points="{points}" fill="{light}" stroke="{dark}" stroke-width=".7"/>'
    save(f"gui/maphud/mapstars/{name}.png", 64, 72, body, defs, colours=128)


def main():
    pause()
    line("line", "#7a4a14", .04)
    line("line_over", "#e7b65a", .35)
    highlight()
    letter()
    offer()
    frame()
    close("close", "enamel", "brass")
    close("close_over", "enamelover", "brassbright")
    for name in MEDALS:
        medal(name)


if __name__ == "__main__":
    main()
