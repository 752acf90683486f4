"""Boxes and boards that hold texts and controls."""

import math

from kit import INK, brass_corner, plate, rim, rope_points, rope_ring, save, sheet, stud


def rounded(x, y, w, h, r):
    return f"M{x + r} {y}H{x + w - r}A{r} {r} 0 0 1 {x + w} {y + r}V{y + h - r}A{r} {r} 0 0 1 {x + w - r} {y + h}H{x + r}A{r} {r} 0 0 1 {x} {y + h - r}V{y + r}A{r} {r} 0 0 1 {x + r} {y}Z"


def board(w, h, top):
    """A frame of dark wood, rope and brass around paper; `top` is the height kept for a plaque above the sheet."""
    body = f'<g filter="url(#deep)"><rect x="10" y="8" width="{w - 22}" height="{h - 22}" rx="14" fill="{INK}"/></g>'
    body += f'<clipPath id="wb"><rect x="10" y="8" width="{w - 22}" height="{h - 22}" rx="14"/></clipPath><g clip-path="url(#wb)">'
    for y in range(8, h, 62):
        body += f'<rect x="0" y="{y}" width="{w}" height="62" fill="#000" filter="url(#wood)"/><path d="M0 {y + 61}H{w}" stroke="#120802" stroke-width="2.5" opacity=".8"/><path d="M0 {y + 1}H{w}" stroke="#d9a05a" stroke-width="1" opacity=".35"/>'
    body += "</g>" + rim(rounded(13, 11, w - 28, h - 28, 12), 6)
    body += rope_ring(28, 26, w - 58, h - 58, 20, 13)
    x, y, sw, sh = 46, 44 + top, w - 94, h - 94 - top
    body += f'<rect x="{x - 4}" y="{y - 4}" width="{sw + 8}" height="{sh + 8}" rx="9" fill="{INK}" opacity=".7"/>' + sheet(x, y, sw, sh, 6) + rim(rounded(x, y, sw, sh, 6), 3.6)
    for cx, cy, turn in ((14, 12, 0), (w - 16, 12, 90), (w - 16, h - 18, 180), (14, h - 18, 270)):
        body += brass_corner(cx, cy, 44, turn)
    return body


def plaque(x, y, w, h):
    """An enamel plaque for a heading."""
    outer, inner = plate(x, y, w, h, 12), plate(x + 9, y + 9, w - 18, h - 18, 9)
    body = f'<g filter="url(#deep)"><path d="{outer}" fill="{INK}" stroke="{INK}" stroke-width="6"/></g><path d="{outer}" fill="url(#enamel)"/><path d="{outer}" fill="#000" filter="url(#speckle)" opacity=".1"/>'
    body += f'<path d="M{x + 12} {y + 3}H{x + w - 12}V{y + h * .36:.1f}Q{x + w / 2} {y + h * .52:.1f} {x + 12} {y + h * .36:.1f}Z" fill="url(#gloss)" opacity=".55"/>'
    body += f'<path d="{inner}" fill="none" stroke="#c79a4a" stroke-width="1.3" opacity=".8"/>' + rim(outer, 5.2)
    mid = y + h / 2
    for cx in (x + 9, x + w - 9):
        body += f'<path d="M{cx - 5.5} {mid}L{cx} {mid - 6.5}L{cx + 5.5} {mid}L{cx} {mid + 6.5}Z" fill="url(#brass)" stroke="{INK}" stroke-width="1.2"/>'
    return body


def flourish(cx, y, half):
    """A thin pen stroke with a small lozenge, to close a text."""
    return (f'<g fill="none" stroke="#6b4316" stroke-width="1.4" opacity=".7"><path d="M{cx - half} {y}Q{cx - half * .5} {y - 7} {cx - 12} {y}M{cx + half} {y}Q{cx + half * .5} {y - 7} {cx + 12} {y}"/>'
            f'<path d="M{cx - half * .8} {y + 5}Q{cx - half * .4} {y + 1} {cx - 16} {y + 3}M{cx + half * .8} {y + 5}Q{cx + half * .4} {y + 1} {cx + 16} {y + 3}" stroke-width=".9"/></g>'
            f'<path d="M{cx - 7} {y}L{cx} {y - 6}L{cx + 7} {y}L{cx} {y + 6}Z" fill="#8d2a1a" opacity=".8"/>')


def seal(x, y, r):
    """Red wax with a petrel in it."""
    edge = []
    for i in range(28):
        a = i * math.pi / 14
        k = r * (1 + .07 * math.sin(3 * a + 1) + .045 * math.sin(7 * a))
        edge.append((x + k * math.cos(a), y + k * math.sin(a)))
    path = f"M{(edge[-1][0] + edge[0][0]) / 2:.1f} {(edge[-1][1] + edge[0][1]) / 2:.1f}"
    for i, (px, py) in enumerate(edge):
        nx, ny = edge[(i + 1) % len(edge)]
        path += f"Q{px:.1f} {py:.1f} {(px + nx) / 2:.1f} {(py + ny) / 2:.1f}"
    s = r / 40
    return (f'<radialGradient id="wax" cx=".36" cy=".3" r=".8"><stop offset="0" stop-color="#e2604a"/><stop offset=".4" stop-color="#b02a1e"/><stop offset="1" stop-color="#5c0f0b"/></radialGradient>'
            f'<g filter="url(#deep)"><path d="{path}Z" fill="url(#wax)"/></g><circle cx="{x}" cy="{y}" r="{r * .72:.1f}" fill="#97221a"/><circle cx="{x}" cy="{y}" r="{r * .72:.1f}" fill="none" stroke="#5c0f0b" stroke-width="{2.4 * s:.1f}"/>'
            f'<path d="M{x - r * .62:.1f} {y + r * .42:.1f}A{r * .75:.1f} {r * .75:.1f} 0 0 0 {x + r * .62:.1f} {y + r * .42:.1f}" fill="none" stroke="#f09a84" stroke-width="{1.6 * s:.1f}" opacity=".7"/>'
            f'<g transform="translate({x},{y}) scale({s:.2f})"><g id="bird"><path d="M-25 -8Q-14 -15 -4 -3Q0 -8 6 -7L12 -5.500L7 -3.500Q14 -14 26 -13Q17 -8 11 2Q6 10 -3 9Q-11 15 -17 14Q-12 10 -10 5Q-14 -3 -25 -8Z" fill="#c6473a" stroke="#4b0b08" stroke-width="1.5" stroke-linejoin="round"/><path d="M-22 -9Q-13 -12 -5 -1M24 -12Q15 -9 8 0" fill="none" stroke="#f3a08c" stroke-width="1.3" opacity=".8"/></g></g>'
            f'<ellipse cx="{x - r * .45:.1f}" cy="{y - r * .58:.1f}" rx="{r * .34:.1f}" ry="{r * .13:.1f}" transform="rotate(-38 {x - r * .45:.1f} {y - r * .58:.1f})" fill="#fff" opacity=".35"/>')


def message():
    save("gui/messagebox/panel.png", 640, 360, board(640, 360, 0) + flourish(313, 64, 120) + seal(84, 280, 32), colours=256)


def confirm():
    save("gui/confirmbox/panel.png", 640, 360, board(640, 360, 0) + flourish(313, 64, 120) + flourish(313, 236, 200), colours=256)


def options():
    save("gui/options/panel.png", 760, 560, board(760, 560, 40) + plaque(190, 22, 374, 76), colours=256)


def notification():
    """A strip that hangs from the upper edge of the screen by two ropes."""
    w, h = 700, 96
    body = ""
    for x in (70, w - 72):
        body += f'<g filter="url(#shadow)"><path d="M{x} 0V40" stroke="#4a2f12" stroke-width="9"/>{rope_points([(x, i * 7.5, math.pi / 2) for i in range(6)], 12)}</g>'
    outer, inner = plate(8, 22, w - 18, h - 32, 14), plate(17, 31, w - 36, h - 50, 10)
    body += f'<g filter="url(#shadow)"><path d="{outer}" fill="{INK}" stroke="{INK}" stroke-width="7"/></g>' + f'<clipPath id="np"><path d="{outer}"/></clipPath><g clip-path="url(#np)">' + sheet(8, 22, w - 18, h - 32, 4) + "</g>" + rim(outer, 5.6)
    body += f'<path d="{inner}" fill="none" stroke="#7a4a14" stroke-width="1.3" opacity=".6"/>'
    for x in (70, w - 72):
        body += f'<circle cx="{x}" cy="30" r="8" fill="url(#brass)" stroke="{INK}" stroke-width="1.3"/><circle cx="{x}" cy="30" r="3.5" fill="{INK}"/>'
    save("gui/notificationsgui/background.png", w, h, body)


def main():
    message()
    confirm()
    options()
    notification()


if __name__ == "__main__":
    main()
