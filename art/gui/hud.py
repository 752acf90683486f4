"""What lies over a scene: the board with its list, the round buttons at its ends, what hangs from the upper edge."""

import math

from kit import INK, plate, rim, rope_points, save, sheet, stud
from panels import plaque, rounded, seal

WIDTH, HEIGHT = 1366, 124
WELLS = (WIDTH // 2 - 450, WIDTH // 2 + 450)
POSTS = (WIDTH // 2 - 508, WIDTH // 2 + 508)  # a 4:3 screen ends just outside them


def planks(x, y, w, h, step):
    body = f'<clipPath id="pl{x}_{y}"><rect x="{x}" y="{y}" width="{w}" height="{h}"/></clipPath><g clip-path="url(#pl{x}_{y})">'
    for row in range(y, y + h, step):
        body += f'<rect x="{x}" y="{row}" width="{w}" height="{step}" fill="#000" filter="url(#wood)"/>'
        body += f'<path d="M{x} {row + step - 1}H{x + w}" stroke="#120802" stroke-width="2.5" opacity=".8"/><path d="M{x} {row + 1}H{x + w}" stroke="#d9a05a" stroke-width="1" opacity=".3"/>'
    return body + "</g>"


def rope(x, y, w, size):
    points = [(x + i * size * 0.62, y, 0) for i in range(int(w / (size * 0.62)) + 2)]
    return f'<g filter="url(#shadow)"><path d="M{x} {y}H{x + w}" stroke="#4a2f12" stroke-width="{size * .8:.1f}"/>{rope_points(points, size)}</g>'


def well(x, y):
    return (f'<circle cx="{x}" cy="{y}" r="51" fill="{INK}" opacity=".55"/><circle cx="{x}" cy="{y}" r="47" fill="url(#brass)" stroke="{INK}" stroke-width="1.5"/>'
            f'<circle cx="{x}" cy="{y}" r="41" fill="url(#enameldown)" stroke="#3c2408" stroke-width="2"/>')


def strip_plate(x, y, w, h):
    outer = plate(x, y, w, h, 6)
    return (f'<path d="{outer}" fill="url(#enameldown)"/><path d="{outer}" fill="#000" filter="url(#speckle)" opacity=".1"/>'
            f'<path d="M{x + 8} {y + 4}H{x + w - 8}" stroke="#000" stroke-width="5" opacity=".35"/>' + rim(outer, 2.8))


def lantern(x, y):
    """A ship's lantern with a lit wick, about 84 high, its flame at (x, y)."""
    defs = ('<radialGradient id="lit" cx=".5" cy=".62" r=".7"><stop offset="0" stop-color="#fffbe0"/><stop offset=".3" stop-color="#ffd870"/><stop offset=".7" stop-color="#d9822a"/><stop offset="1" stop-color="#5b2c0a"/></radialGradient>')
    body = f'<g transform="translate({x},{y})"><g filter="url(#shadow)">'
    body += f'<path d="M-9 -40A9 9 0 0 1 9 -40" fill="none" stroke="{INK}" stroke-width="5.5"/><path d="M-9 -40A9 9 0 0 1 9 -40" fill="none" stroke="url(#brass)" stroke-width="3"/>'
    body += f'<path d="M-12 -36H12L22 -23H-22Z" fill="url(#brass)" stroke="{INK}" stroke-width="1.6" stroke-linejoin="round"/>'
    body += f'<path d="M-20 -23H20L24 24H-24Z" fill="url(#lit)" stroke="{INK}" stroke-width="1.6"/>'
    body += f'<path d="M-27 24H27L23 40H-23Z" fill="url(#brass)" stroke="{INK}" stroke-width="1.6" stroke-linejoin="round"/></g>'
    body += '<path d="M0 20C-9 12 -7 2 0 -12C7 2 9 12 0 20Z" fill="#fff6cf"/><path d="M0 19C-4 13 -3 7 0 0C3 7 4 13 0 19Z" fill="#ffc65a"/>'
    for side in (-1, 0, 1):
        body += f'<path d="M{side * 10} -23L{side * 12} 24" stroke="#3c2408" stroke-width="3.4"/><path d="M{side * 10 - .5} -23L{side * 12 - .5} 24" stroke="#d9aa55" stroke-width="1.3"/>'
    body += '<path d="M-21.500 -6H21.5M-23 10H23" stroke="#3c2408" stroke-width="2.6"/><path d="M-21.500 -6.500H21.5M-23 9.5H23" stroke="#d9aa55" stroke-width="1"/>'
    return body + "</g>", defs


def board():
    """The board along the lower edge: rope above, paper for the words, three plates below it for the counters."""
    body = planks(0, 8, WIDTH, HEIGHT - 8, 58)
    body += f'<rect x="0" y="8" width="{WIDTH}" height="16" fill="#000" opacity=".35" filter="url(#soft)"/>'
    defs = ""
    for x in (82, WIDTH - 82):
        body += f'<circle cx="{x}" cy="64" r="66" fill="#ffb347" opacity=".22" filter="url(#softer)"/>'
        picture, defs = lantern(x, 68)
        body += picture
    for x in POSTS:
        body += f'<g filter="url(#shadow)"><rect x="{x - 5}" y="6" width="10" height="{HEIGHT}" fill="url(#brass)" stroke="{INK}" stroke-width="1.5"/></g>'
        for y in (28, 110):
            body += stud(x, y, 3.6, x % 90)
    for x in WELLS:
        body += well(x, 64)
    x, w = WIDTH // 2 - 394, 788
    body += f'<rect x="{x - 4}" y="15" width="{w + 8}" height="79" rx="9" fill="{INK}" opacity=".7"/>' + sheet(x, 19, w, 71, 6) + rim(rounded(x, 19, w, 71, 6), 3.6)
    for left, width in ((-394, 266), (-122, 244), (128, 266)):
        body += strip_plate(WIDTH // 2 + left, 97, width, 25)
    body += rope(-4, 8, WIDTH + 8, 12)
    save("gui/ingame/list_panel.png", WIDTH, HEIGHT, body, defs)


STATES = ("", "_over", "_down", "_disabled", "_charge")

# The glass behind the picture, from the middle outward.
GLASS = {
    "blue": {"": ("#8fd0e6", "#2b80aa", "#0e344e"), "_over": ("#b9ecfb", "#3f9cc6", "#134a6c"), "_down": ("#3d6f88", "#1f506e", "#0b2a40")},
    "green": {"": ("#4f9a86", "#1d5a55", "#0a2a2c"), "_over": ("#86d3b8", "#2c7f74", "#0f3f40"), "_down": ("#2a6055", "#123e3c", "#071f21")},
    "violet": {"": ("#c9a9e0", "#6d4a92", "#2a1746"), "_over": ("#e6cbf7", "#8f63ba", "#3d2264"), "_down": ("#71558c", "#432b60", "#1c0f30")},
    "off": ("#8a949a", "#5a656c", "#343c42"),
}


def porthole(name, glass, picture):
    """A round button: brass, eight screws, and what picture(state, x, y) draws behind the glass. "_charge" is the
    recharging one's lit part, darker than the button that may be pressed."""
    for state in STATES:
        off, down, over = state == "_disabled", state in ("_down", "_charge"), state == "_over"
        metal = "tin" if off else "brassdown" if down else "brassbright" if over else "brass"
        sky = GLASS["off"] if off else GLASS[glass]["_down" if down else state]
        defs = (f'<radialGradient id="sky" cx=".5" cy=".4" r=".75"><stop offset="0" stop-color="{sky[0]}"/><stop offset=".55" stop-color="{sky[1]}"/><stop offset="1" stop-color="{sky[2]}"/></radialGradient>'
                '<linearGradient id="beam" x1="0" x2="1" y1="0" y2="0"><stop offset="0" stop-color="#fff2a8" stop-opacity=".95"/><stop offset="1" stop-color="#fff2a8" stop-opacity="0"/></linearGradient><clipPath id="c"><circle cx="48" cy="47" r="30"/></clipPath>')
        body = f'<g filter="url(#shadow)"><circle cx="48" cy="47" r="43" fill="{INK}"/></g><circle cx="48" cy="47" r="42" fill="url(#{metal})" stroke="{INK}" stroke-width="1.6"/><circle cx="48" cy="47" r="35.5" fill="none" stroke="#3c2408" stroke-width="1.6" opacity=".7"/>'
        for i in range(8):
            a = i * math.pi / 4 + math.pi / 8
            body += f'<circle cx="{48 + 38.6 * math.cos(a):.1f}" cy="{47 + 38.6 * math.sin(a):.1f}" r="2.4" fill="url(#{"tin" if off else "stud"})" stroke="#3c2408" stroke-width=".7"/>'
        body += '<circle cx="48" cy="47" r="32.5" fill="#241404"/><circle cx="48" cy="47" r="30" fill="url(#sky)"/><g clip-path="url(#c)">'
        body += picture(off, down) + f'</g><ellipse cx="45" cy="32" rx="22" ry="12" fill="url(#{"glossdown" if down else "gloss"})" opacity=".75"/>'
        save(f"gui/ingame/{name}{state}.png", 96, 96, body, defs)


def lighthouse(off, down):
    body = ""
    if not off:
        body += f'<path d="M50 36L92 19V50Z" fill="url(#beam)" opacity="{.6 if down else 1}"/><path d="M50 36L92 25V46Z" fill="url(#beam)" opacity=".55" transform="translate(96,0) scale(-1,1)"/>'
    body += '<path d="M16 71Q27 66 36 70T56 70T84 69V92H12Z" fill="#0a2233" opacity=".88"/><path d="M35 71Q40 65 48 65Q58 65 62 71Z" fill="#3a332c"/><path d="M42.500 67L44.500 41H51.500L53.500 67Z" fill="#f3ead6"/>'
    stripe = "#77706a" if off else "#b5281c"
    body += f'<path d="M43.300 57H52.700L52.200 51H43.800ZM44.200 47H51.900L51.500 42H44.500Z" fill="{stripe}"/><rect x="42.5" y="39" width="11" height="2.4" fill="#22201e"/><rect x="44.5" y="32" width="7" height="7" fill="{"#9aa0a2" if off else "#fff3a6"}" stroke="#22201e" stroke-width="1.1"/><path d="M43 32.500L48 26.500L53 32.500Z" fill="{"#57524e" if off else "#8e2017"}"/>'
    return body


def elmos_fire(off, down):
    """A mast with its yard, and the green flames at their ends."""
    wood = "#4c5154" if off else "#2a1a10"
    body = f'<path d="M12 74Q27 69 36 73T56 73T84 72V92H12Z" fill="#06191c" opacity=".8"/><path d="M48 78V33" stroke="{wood}" stroke-width="4.2"/><path d="M25 47H71" stroke="{wood}" stroke-width="3.2"/><path d="M27 48L48 66L69 48" fill="none" stroke="{wood}" stroke-width="1.1"/>'
    outer, inner = ("#8b979a", "#b4bdbf") if off else ("#3fc48a", "#b9f2c8") if down else ("#6dffb4", "#f2fff2")
    for x, y, k in ((48, 33, 1.25), (25, 46, 0.95), (71, 46, 0.95)):
        if not off:
            body += f'<circle cx="{x}" cy="{y - 7 * k}" r="{13 * k:.1f}" fill="{outer}" opacity="{.3 if down else .5}" filter="url(#soft)"/>'
        body += (f'<g transform="translate({x},{y}) scale({k})"><path d="M0 2C-7 -1 -6 -8 -1 -15C-1 -10 3 -11 2 -17C8 -10 7 0 0 2Z" fill="{outer}"/><path d="M0 1C-3 -1 -3 -5 0 -9C3 -5 3 -1 0 1Z" fill="{inner}"/></g>')
    return body


def full_steam(off, down):
    """Two chevrons: go past this."""
    colour, edge = ("#a9b1b5", "#41484c") if off else ("#d8b56a", "#1b0e2c") if down else ("#ffe39a", "#2a1746")
    body = ""
    for x in (27, 45):
        body += f'<path d="M{x} 29L{x + 21} 47L{x} 65L{x + 6} 47Z" fill="{colour}" stroke="{edge}" stroke-width="2" stroke-linejoin="round"/>'
    return body


def badge():
    """Where a button that spends something tells how much of it is left."""
    body = f'<g filter="url(#shadow)"><circle cx="19" cy="19" r="15.5" fill="{INK}"/></g><circle cx="19" cy="19" r="15" fill="url(#brass)" stroke="{INK}" stroke-width="1.4"/><circle cx="19" cy="19" r="11.500" fill="#8d2a1a" stroke="#3c1008" stroke-width="1.2"/>'
    save("gui/ingame/badge.png", 38, 38, body)


def label():
    outer = plate(4, 3, 92, 21, 6)
    body = f'<g filter="url(#shadow)"><path d="{outer}" fill="{INK}" stroke="{INK}" stroke-width="4"/></g><path d="{outer}" fill="url(#enamel)"/>' + rim(outer, 2.6)
    save("gui/ingame/label.png", 100, 28, body)


def caption():
    """A luggage label: the words of what the pointer is on. It is stretched sideways, so its ends are plain."""
    w, h = 300, 40
    edge = rounded(4, 3, w - 8, h - 9, 5)
    body = f'<g filter="url(#shadow)"><path d="{edge}" fill="{INK}" stroke="{INK}" stroke-width="3"/></g>' + sheet(4, 3, w - 8, h - 9, 5) + f'<path d="{edge}" fill="none" stroke="#5a3a12" stroke-width="2"/><path d="{rounded(8, 7, w - 16, h - 17, 3)}" fill="none" stroke="#8d2a1a" stroke-width="1.2" opacity=".75"/>'
    save("gui/ingame/caption.png", w, h, body)


def coin():
    body = f'<g filter="url(#shadow)"><circle cx="15" cy="15" r="12.5" fill="{INK}"/></g><circle cx="15" cy="15" r="12" fill="url(#brassbright)" stroke="{INK}" stroke-width="1.2"/><circle cx="15" cy="15" r="8.800" fill="none" stroke="#7a4a10" stroke-width="1.2"/>'
    body += '<path d="M15 8.500V20.500M11.500 11.500H18.500M9.500 17Q10.500 21 15 21Q19.500 21 20.5 17" fill="none" stroke="#6b3d08" stroke-width="1.9" stroke-linecap="round"/><circle cx="15" cy="8.6" r="1.700" fill="none" stroke="#6b3d08" stroke-width="1.3"/>'
    save("gui/ingame/coin.png", 30, 30, body)


def basket():
    """A wicker basket for litter."""
    body = f'<g filter="url(#shadow)"><path d="M5 11H37L32.500 33Q32 35 30 35H12Q10 35 9.500 33Z" fill="#b98148" stroke="{INK}" stroke-width="2"/></g><clipPath id="k"><path d="M5 11H37L32.500 33Q32 35 30 35H12Q10 35 9.500 33Z"/></clipPath><g clip-path="url(#k)">'
    for row in range(4):
        for x in range(-2, 46, 8):
            body += f'<ellipse cx="{x + (row % 2) * 4}" cy="{15 + row * 6}" rx="4.400" ry="2.700" fill="{"#dba766" if (row + x // 8) % 2 else "#c98f4f"}" stroke="#5b3614" stroke-width="1"/>'
    body += f'</g><ellipse cx="21" cy="11" rx="17" ry="5" fill="#3a210d" stroke="{INK}" stroke-width="1.6"/><ellipse cx="21" cy="11" rx="17" ry="5" fill="none" stroke="#e3b77a" stroke-width="2.200"/>'
    save("gui/ingame/basket.png", 42, 40, body)


def mailbag():
    """A canvas mail bag with a letter that looks out of it."""
    body = f'<g filter="url(#shadow)"><rect x="17" y="3" width="15" height="13" fill="#f6ecd2" stroke="{INK}" stroke-width="1.4" transform="rotate(9 24 9)"/><path d="M9 13Q20 9 33 13Q31 16 33 19Q39 26 36 34Q21 40 6 34Q3 26 9 19Q11 16 9 13Z" fill="#cdb48a" stroke="{INK}" stroke-width="2"/></g>'
    body += '<path d="M18 6L25 10L31 4.5" fill="none" stroke="#8a6a3c" stroke-width="1.2" transform="rotate(9 24 9)"/><path d="M9 19Q21 23 33 19" fill="none" stroke="#7a5526" stroke-width="3"/><path d="M13 33Q9 28 12 22" fill="none" stroke="#fff3d6" stroke-width="1.600" opacity=".7"/>'
    body += f'<rect x="14" y="24" width="14" height="9" rx="1.500" fill="#8d2a1a" stroke="{INK}" stroke-width="1"/><path d="M15 25L21 29.500L27 25" fill="none" stroke="#f3d9a8" stroke-width="1.2"/>'
    save("gui/ingame/mailbag.png", 42, 40, body)


def tick():
    mark = "M9 19.500Q14 22 17 29Q22 15 34 5Q25.500 19 19.5 35Q17.500 37 15.500 34.500Q13 27 7.5 22.500Q7 20.5 9 19.500Z"
    save("gui/ingame/tick.png", 42, 40, f'<path d="{mark}" fill="#000" opacity=".6" transform="translate(1.2,1.8)"/><path d="{mark}" fill="#a8f08a" stroke="#123c10" stroke-width="2" stroke-linejoin="round"/><path d="M10.500 21Q15 24 17.600 31Q22 19 30 10.500" fill="none" stroke="#f2ffe6" stroke-width="1.4"/>')


def done():
    save("gui/ingame/list_done.png", 84, 84, seal(42, 41, 33))


def lost_board():
    """Hangs from the upper edge: the scene's name, and below it three slots for lost property."""
    w, h = 224, 100
    outer = f"M6 -8H{w - 6}V{h - 20}A12 12 0 0 1 {w - 18} {h - 8}H18A12 12 0 0 1 6 {h - 20}Z"
    body = f'<g filter="url(#shadow)"><path d="{outer}" fill="{INK}" stroke="{INK}" stroke-width="6"/></g><clipPath id="lb"><path d="{outer}"/></clipPath><g clip-path="url(#lb)">' + planks(0, 0, w, h, 50) + "</g>" + rim(outer, 4.2)
    top = plate(13, 5, w - 26, 27, 7)
    body += f'<path d="{top}" fill="url(#enamel)"/><path d="{top}" fill="#000" filter="url(#speckle)" opacity=".1"/>' + rim(top, 2.6)
    body += f'<rect x="10" y="35" width="{w - 20}" height="56" rx="7" fill="{INK}" opacity=".6"/>' + sheet(13, 37, w - 26, 52, 5) + rim(rounded(13, 37, w - 26, 52, 5), 2.6)
    for x in (79, 145):
        body += f'<path d="M{x} 43V84" stroke="#7a4a14" stroke-width="1.3" stroke-dasharray="4 3" opacity=".75"/>'
    save("gui/ingame/lost_board.png", w, h, body)


def returned():
    """A rubber stamp's frame over the empty slots."""
    body = '<g transform="rotate(-3 97 25)" fill="none" stroke="#8d2a1a" opacity=".8"><rect x="8" y="8" width="178" height="34" rx="4" stroke-width="2.600"/><rect x="12.5" y="12.5" width="169" height="25" rx="2" stroke-width="1.1"/></g>'
    save("gui/ingame/returned.png", 194, 50, body)


def menu():
    """A ship's wheel on the blank square button: the options."""
    for state, (enamel, metal, lining) in {"": ("enamel", "brass", "#c79a4a"), "_over": ("enamelover", "brassbright", "#ffe7a0")}.items():
        outer = plate(5, 4, 54, 53, 10)
        body = f'<g filter="url(#shadow)"><path d="{outer}" fill="{INK}" stroke="{INK}" stroke-width="6" stroke-linejoin="round"/></g><path d="{outer}" fill="url(#{enamel})"/><path d="{outer}" fill="#000" filter="url(#speckle)" opacity=".1"/>' + rim(outer, 4.6, metal)
        spokes = "".join(f'M{31.5 + 3 * math.cos(a):.1f} {30.5 + 3 * math.sin(a):.1f}L{31.5 + 18.5 * math.cos(a):.1f} {30.5 + 18.5 * math.sin(a):.1f}' for a in (i * math.pi / 4 for i in range(8)))
        for colour, wide in ((INK, 2.6), (lining, 0)):
            body += f'<path d="{spokes}" stroke="{colour}" stroke-width="{2.8 + wide}" stroke-linecap="round"/><circle cx="31.5" cy="30.5" r="11.500" fill="none" stroke="{colour}" stroke-width="{3.2 + wide}"/><circle cx="31.5" cy="30.5" r="4" fill="{colour}"/>'
        save(f"gui/ingame/menu{state}.png", 64, 64, body)


def title_plaque():
    """The name of a puzzle, on enamel, hung from the upper edge by two ropes."""
    w, h = 420, 60
    body = ""
    for x in (66, w - 66):
        body += f'<g filter="url(#shadow)"><path d="M{x} 0V20" stroke="#4a2f12" stroke-width="7"/>{rope_points([(x, i * 6, math.pi / 2) for i in range(4)], 9)}</g>'
    save("gui/ingame/title_plaque.png", w, h, body + plaque(10, 8, w - 22, h - 18))


def rose():
    """A compass rose for a round place without a button."""
    body = '<g transform="translate(41,41)"><circle r="33" fill="none" stroke="#c79a4a" stroke-width="1.4" opacity=".8"/>'
    for turn, reach, half in [(45 + 90 * i, 21, 5) for i in range(4)] + [(90 * i, 34, 7) for i in range(4)]:
        body += f'<g transform="rotate({turn})"><path d="M0 -{reach}L{half} -{half}L0 0Z" fill="#8a5a1c" stroke="{INK}" stroke-width=".8"/><path d="M0 -{reach}L-{half} -{half}L0 0Z" fill="#f3d58c" stroke="{INK}" stroke-width=".8"/></g>'
    body += f'<circle r="4" fill="url(#stud)" stroke="{INK}" stroke-width=".8"/></g>'
    save("gui/ingame/rose.png", 82, 82, body)


def main():
    board()
    porthole("hint", "blue", lighthouse)
    porthole("ghost", "green", elmos_fire)
    porthole("skip", "violet", full_steam)
    for piece in (badge, label, caption, coin, basket, mailbag, tick, done, lost_board, returned, title_plaque, rose, menu):
        piece()


if __name__ == "__main__":
    main()
