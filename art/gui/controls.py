"""Buttons, boxes, slider, bars and the text field."""

import math

from kit import INK, plate, rim, save, sheet

# state: enamel, metal, strength of the gloss, colour of the line within
STATES = {"": ("enamel", "brass", "gloss", "#c79a4a", .75), "_over": ("enamelover", "brassbright", "gloss", "#ffe7a0", 1),
          "_down": ("enameldown", "brassdown", "glossdown", "#a67a32", .8), "_disabled": ("enameloff", "tin", "gloss", "#9b988c", .6)}


def face(path, box, state, inner):
    """The enamelled front: shine above, speckle of the glaze, a warm breath from below when the pointer is on it."""
    enamel, metal, gloss, lining, strength = STATES[state]
    x, y, w, h = box
    out = f'<path d="{path}" fill="url(#{enamel})"/><path d="{path}" fill="#000" filter="url(#speckle)" opacity=".1"/>'
    out += f'<clipPath id="face"><path d="{path}"/></clipPath><g clip-path="url(#face)">'
    if state == "_down":
        out += f'<rect x="{x}" y="{y}" width="{w}" height="{h * .4:.1f}" fill="url(#glossdown)"/>'
    else:
        out += f'<path d="M{x} {y}H{x + w}V{y + h * .40:.1f}Q{x + w / 2} {y + h * .54:.1f} {x} {y + h * .40:.1f}Z" fill="url(#gloss)" opacity="{.8 if state == "_over" else .62}"/>'
    if state == "_over":
        out += f'<ellipse cx="{x + w / 2}" cy="{y + h}" rx="{w * .46:.1f}" ry="{h * .42:.1f}" fill="#ffd98a" opacity=".34" filter="url(#softer)"/>'
    out += f'</g><path d="{inner}" fill="none" stroke="{lining}" stroke-width="1.3" opacity="{strength}"/>'
    return out


def button(name, w, h):
    for state, (_, metal, _, lining, _) in STATES.items():
        r = 12 if h > 64 else 10
        outer, inner = plate(5, 4, w - 10, h - 11, r), plate(14, 13, w - 28, h - 29, r - 2)
        body = f'<g filter="url(#shadow)"><path d="{outer}" fill="{INK}" stroke="{INK}" stroke-width="6" stroke-linejoin="round"/></g>'
        body += face(outer, (5, 4, w - 10, h - 11), state, inner) + rim(outer, 5.2, metal)
        mid = (h - 3) / 2
        if w > 100:  # a diamond at either end of the line
            for x in (14, w - 14):
                body += f'<path d="M{x - 5.5} {mid}L{x} {mid - 6.5}L{x + 5.5} {mid}L{x} {mid + 6.5}Z" fill="url(#{metal})" stroke="{INK}" stroke-width="1.2"/>'
        save(f"gui/common/{name}{state}.png", w, h, body)


def box(name, on, over):
    state = "_over" if over else ""
    body = f'<g filter="url(#shadow)"><rect x="4" y="4" width="39" height="38" rx="8" fill="{INK}" stroke="{INK}" stroke-width="4"/></g>'
    outline = "M12 4H35A8 8 0 0 1 43 12V34A8 8 0 0 1 35 42H12A8 8 0 0 1 4 34V12A8 8 0 0 1 12 4Z"
    inside = "M15 10H32A5 5 0 0 1 37 15V31A5 5 0 0 1 32 36H15A5 5 0 0 1 10 31V15A5 5 0 0 1 15 10Z"
    body += f'<path d="{outline}" fill="url(#{"brassbright" if over else "brass"})" stroke="{INK}" stroke-width="1.5"/>'
    body += f'<path d="{inside}" fill="url(#{"enamelover" if over else "enameldown"})" stroke="#3c2408" stroke-width="1.6"/>'
    body += '<path d="M12 34V15A3.5 3.5 0 0 1 15.5 11.500H34" fill="none" stroke="#000" stroke-width="3" opacity=".4"/>'
    if on:
        mark = "M13.500 22.500Q17.500 24.5 20 30.500Q25 17.5 38.5 5.500Q28 20.5 21.5 36Q19.500 37.5 18 35.500Q15.500 28.5 11.5 24.500Q12 22.5 13.5 22.500Z"
        body += f'<path d="{mark}" fill="#000" opacity=".55" transform="translate(1.2,2)"/><path d="{mark}" fill="#ffd978" stroke="#5a3506" stroke-width="1.3" stroke-linejoin="round"/>'
        body += '<path d="M14 23.800Q17.500 26 20 32.500Q25.500 19 35 9" fill="none" stroke="#fff6d6" stroke-width="1.2" opacity=".9"/>'
    save(f"gui/common/{name}{'_on' if on else '_off'}{state}.png", 48, 48, body)


def porthole(name, on, over):
    metal = "brassbright" if over else "brass"
    glass = '<radialGradient id="pane" cx=".42" cy=".38" r=".75">'
    if on:
        glass += '<stop offset="0" stop-color="#fffbe0"/><stop offset=".4" stop-color="#ffd870"/><stop offset=".8" stop-color="#e2942a"/><stop offset="1" stop-color="#8a4d10"/>'
    else:
        glass += f'<stop offset="0" stop-color="{"#3f86a0" if over else "#1f5068"}"/><stop offset="1" stop-color="{"#123f59" if over else "#081d2c"}"/>'
    body = f'<g filter="url(#shadow)"><circle cx="23.5" cy="23" r="20.5" fill="{INK}"/></g><circle cx="23.5" cy="23" r="19.5" fill="url(#{metal})" stroke="{INK}" stroke-width="1.5"/>'
    for i in range(6):
        a = i * math.pi / 3 + .3
        body += f'<circle cx="{23.5 + 16 * math.cos(a):.1f}" cy="{23 + 16 * math.sin(a):.1f}" r="1.7" fill="url(#stud)" stroke="#3c2408" stroke-width=".6"/>'
    body += '<circle cx="23.5" cy="23" r="12.5" fill="#241404"/><circle cx="23.5" cy="23" r="11.3" fill="url(#pane)"/>'
    body += f'<path d="M14.500 20Q16 12.5 24 12.500Q31 12.5 32.5 19Q24 15 14.5 20Z" fill="#fff" opacity="{.5 if on else .3}"/>'
    save(f"gui/common/{name}{'_on' if on else '_off'}{'_over' if over else ''}.png", 48, 48, body, glass + "</radialGradient>")


def slider():
    w, h = 340, 32
    body = f'<g filter="url(#shadow)"><rect x="14" y="9" width="{w - 28}" height="12" rx="6" fill="{INK}"/></g>'
    body += f'<rect x="14" y="8.5" width="{w - 28}" height="13" rx="6.5" fill="url(#brass)" stroke="{INK}" stroke-width="1.5"/>'
    body += f'<rect x="20" y="12" width="{w - 40}" height="6" rx="3" fill="url(#enameldown)" stroke="#3c2408" stroke-width="1"/>'
    for i in range(11):
        x = 30 + i * (w - 60) / 10
        body += f'<path d="M{x:.1f} 22.500V{28 if i % 5 == 0 else 26}" stroke="#3c2408" stroke-width="3"/><path d="M{x:.1f} 22.500V{27.3 if i % 5 == 0 else 25.3}" stroke="#e6bd66" stroke-width="1.4"/>'
    for x in (13, w - 13):
        body += f'<circle cx="{x}" cy="15" r="10" fill="url(#brass)" stroke="{INK}" stroke-width="1.5"/><circle cx="{x}" cy="15" r="5" fill="url(#stud)" stroke="#3c2408" stroke-width=".8"/>'
    save("gui/common/slider_track.png", w, h, body)
    for state in ("", "_over"):
        enamel, metal, _, _, _ = STATES[state]
        body = f'<g filter="url(#shadow)"><circle cx="23.5" cy="23" r="19.5" fill="{INK}"/></g>'
        for i in range(8):  # a small ship's wheel
            body += f'<g transform="translate(23.5,23) rotate({i * 45})"><path d="M-2 -12L-3.2 -19Q0 -23.5 3.2 -19L2 -12Z" fill="url(#{metal})" stroke="{INK}" stroke-width="1.2"/></g>'
        body += f'<circle cx="23.5" cy="23" r="15.8" fill="url(#{metal})" stroke="{INK}" stroke-width="1.5"/><circle cx="23.5" cy="23" r="10.5" fill="url(#{enamel})" stroke="#3c2408" stroke-width="1.5"/>'
        body += '<path d="M15 20.500Q17 14 24 14Q30 14 32 20Q24 17 15 20.500Z" fill="#fff" opacity=".35"/><circle cx="23.5" cy="23" r="4" fill="url(#stud)" stroke="#3c2408" stroke-width=".9"/>'
        save(f"gui/common/slider_knob{state}.png", 48, 48, body)


def delay():
    body = f'<rect x="1.5" y="1.5" width="197" height="21" rx="8" fill="url(#brass)" stroke="{INK}" stroke-width="1.6"/><rect x="4" y="4" width="192" height="16" rx="6" fill="#06131d" stroke="#3c2408" stroke-width="1"/><path d="M7 9V8A3 3 0 0 1 10 5.500H190" fill="none" stroke="#000" stroke-width="2.5" opacity=".6"/>'
    save("gui/common/delay_frame.png", 200, 24, body)
    fill = '<linearGradient id="oil" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#ffe9a4"/><stop offset=".45" stop-color="#f3b445"/><stop offset=".55" stop-color="#d88f24"/><stop offset="1" stop-color="#9a5710"/></linearGradient>'
    body = '<rect x="1" y="1" width="190" height="14" rx="5" fill="url(#oil)"/><rect x="5" y="3" width="182" height="3" rx="1.5" fill="#fff" opacity=".45"/>'
    for i in range(1, 10):
        body += f'<path d="M{i * 19.2:.1f} 1.500V14.500" stroke="#7a4208" stroke-width="1" opacity=".45"/>'
    save("gui/common/delay_fill.png", 192, 16, body, fill)


def entry():
    w, h = 420, 56
    edge = f"M10 5H{w - 10}A6 6 0 0 1 {w - 4} 11V{h - 13}A6 6 0 0 1 {w - 10} {h - 7}H10A6 6 0 0 1 4 {h - 13}V11A6 6 0 0 1 10 5Z"
    body = f'<g filter="url(#shadow)"><path d="{edge}" fill="{INK}" stroke="{INK}" stroke-width="5"/></g>' + sheet(5, 6, w - 10, h - 14, 5) + rim(edge, 4.4)
    body += f'<path d="M24 {h - 17}H{w - 24}" stroke="#7a4a14" stroke-width="1" opacity=".55"/>'
    save("gui/common/text_entry.png", w, h, body)
    save("gui/misc/caret.png", 4, 36, '<rect x=".5" y="0" width="3" height="36" rx="1.2" fill="#3a1d08"/>')


def main():
    for name, w, h in (("button_large", 320, 72), ("button_medium", 220, 60), ("button_narrow", 196, 60), ("button_small", 64, 64)):
        button(name, w, h)
    for on in (False, True):
        for over in (False, True):
            box("check", on, over)
            porthole("radio", on, over)
    slider()
    delay()
    entry()


main()
