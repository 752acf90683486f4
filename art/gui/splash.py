"""The two cards that open the program: a sealed letter with the game's name; the chart with its dark lamps."""

import math

from chart import mail_route
from kit import photo, raster, rope_points
from panels import flourish, seal

W, H = 1366, 768


def postmark(x, y):
    """Two rings and their waves, worn by the stamp."""
    body = f'<g transform="translate({x},{y}) rotate(-9)" fill="none" stroke="#27394a" opacity=".62" filter="url(#worn)"><circle r="58" stroke-width="3"/><circle r="38" stroke-width="1.8"/>'
    for i in range(5):
        body += f'<path d="M66 {-32 + i * 16}q18 -10 36 0t36 0t36 0t36 0" stroke-width="2.6"/>'
    body += "</g>"
    letters, arc = "PACKET · S.S. PETREL · ", 48
    for i, letter in enumerate(letters):
        a = math.radians(-9 + 360 * i / len(letters) - 90)
        body += f'<text transform="translate({x + (arc - 4) * math.cos(a):.1f},{y + (arc - 4) * math.sin(a):.1f}) rotate({math.degrees(a) + 90:.1f})" text-anchor="middle" font-family="Old Standard TT" font-size="14" fill="#27394a" opacity=".7">{letter}</text>'
    body += f'<g transform="translate({x},{y}) rotate(-9)" font-family="Old Standard TT" fill="#27394a" opacity=".7" text-anchor="middle"><text y="-6" font-size="16">14 OCT</text><text y="14" font-size="17">1887</text></g>'
    return body


def stamp(x, y):
    """A stamp with a lighthouse, perforated."""
    w, h, r = 104, 128, 4
    path = f"M{x} {y}"
    for i in range(w // (2 * r)):
        path += f"a{r} {r} 0 0 0 {2 * r} 0"
    for i in range(h // (2 * r)):
        path += f"a{r} {r} 0 0 0 0 {2 * r}"
    for i in range(w // (2 * r)):
        path += f"a{r} {r} 0 0 0 {-2 * r} 0"
    for i in range(h // (2 * r)):
        path += f"a{r} {r} 0 0 0 0 {-2 * r}"
    body = f'<g transform="rotate(2.5 {x + 52} {y + 64})"><g filter="url(#shadow)"><path d="{path}Z" fill="#f3e6c4"/></g><rect x="{x + 10}" y="{y + 10}" width="{w - 20}" height="{h - 20}" fill="#24566e"/>'
    cx, base = x + 52, y + 96
    body += f'<path d="M{cx} {base - 56}L{x + 10} {base - 76}V{base - 30}ZM{cx} {base - 56}L{x + 94} {base - 76}V{base - 30}Z" fill="#f3e2a8" opacity=".5"/><path d="M{cx - 12} {base}L{cx - 7} {base - 46}H{cx + 7}L{cx + 12} {base}Z" fill="#f3e6c4"/><path d="M{cx - 10.500} {base - 14}H{cx + 10.500}L{cx + 9} {base - 27}H{cx - 9}Z" fill="#a3321f"/><rect x="{cx - 6}" y="{base - 58}" width="12" height="12" fill="#ffe9a0"/><path d="M{cx - 9} {base - 58}L{cx} {base - 68}L{cx + 9} {base - 58}ZM{cx - 10} {base - 46}H{cx + 10}V{base - 43}H{cx - 10}Z" fill="#a3321f"/>'
    body += f'<path d="M{x + 10} {base}q10 -6 21 0t21 0t21 0t21 0V{y + h - 10}H{x + 10}Z" fill="#123449"/><text x="{cx}" y="{y + 26}" font-family="Goudy Bookletter 1911" font-size="13" text-anchor="middle" fill="#f3e6c4" letter-spacing="1">CORRAN</text><text x="{cx}" y="{y + h - 15}" font-family="Goudy Bookletter 1911" font-size="13" text-anchor="middle" fill="#f3e6c4">ONE PENNY</text></g>'
    return body


def letter():
    """An envelope on a dark desk, lit from the top left."""
    defs = """
<filter id="desk" x="0" y="0" width="100%" height="100%" color-interpolation-filters="sRGB"><feTurbulence type="fractalNoise" baseFrequency=".0022 .07" numOctaves="6" seed="21" result="n"/><feColorMatrix in="n" type="matrix" values=".62 0 0 0 .02  .36 0 0 0 .0  .22 0 0 0 -.01  0 0 0 0 1" result="c"/><feDiffuseLighting in="n" surfaceScale="1.6" diffuseConstant="1.05" lighting-color="#fff"><feDistantLight azimuth="235" elevation="56"/></feDiffuseLighting><feBlend in2="c" mode="multiply"/></filter>
<filter id="cast" x="-10%" y="-10%" width="125%" height="130%"><feGaussianBlur in="SourceAlpha" stdDeviation="13"/><feOffset dx="12" dy="16"/><feComponentTransfer><feFuncA type="linear" slope=".75"/></feComponentTransfer><feMerge><feMergeNode/><feMergeNode in="SourceGraphic"/></feMerge></filter>
<filter id="worn" x="-5%" y="-5%" width="110%" height="110%"><feTurbulence type="fractalNoise" baseFrequency=".09" numOctaves="3" seed="6" result="n"/><feColorMatrix in="n" type="matrix" values="0 0 0 0 0  0 0 0 0 0  0 0 0 0 0  0 0 0 -5 3.3" result="m"/><feComposite in="SourceGraphic" in2="m" operator="in"/></filter>
<radialGradient id="lampl" cx=".3" cy=".18" r=".95"><stop offset="0" stop-color="#ffd58c" stop-opacity=".42"/><stop offset=".45" stop-color="#ffb45c" stop-opacity=".08"/><stop offset="1" stop-color="#05070c" stop-opacity=".82"/></radialGradient>
<linearGradient id="flap" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#fff4d4" stop-opacity=".38"/><stop offset="1" stop-color="#5a3208" stop-opacity=".22"/></linearGradient>
<linearGradient id="gold" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#1e3f58"/><stop offset="1" stop-color="#0c2438"/></linearGradient>"""
    x, y, w, h = 253, 128, 860, 512
    body = f'<rect width="{W}" height="{H}" fill="#000" filter="url(#desk)"/>'
    for line in (150, 338, 560):
        body += f'<path d="M0 {line}H{W}" stroke="#0a0502" stroke-width="3" opacity=".7"/><path d="M0 {line + 2.500}H{W}" stroke="#d39a5c" stroke-width="1" opacity=".22"/>'
    # the mailbag's rope runs across the lower left, a sheet lies under the envelope
    points = []
    for i in range(66):
        t = i / 65
        points.append((-30 + 360 * t + 16 * math.sin(7 * t), 520 + 40 * t + 240 * t * t, math.atan2(40 + 480 * t, 360 + 112 * math.cos(7 * t))))
    body += f'<g filter="url(#cast)">{rope_points(points, 17)}</g>'
    body += f'<g transform="rotate(-6 683 384)" filter="url(#cast)"><rect x="{x + 60}" y="{y - 54}" width="{w - 90}" height="{h + 70}" fill="#000" filter="url(#paper)"/></g>'
    body += f'<g transform="rotate(1.6 683 384)"><g filter="url(#cast)"><rect x="{x}" y="{y}" width="{w}" height="{h}" rx="5" fill="#e6cf9c"/></g><rect x="{x}" y="{y}" width="{w}" height="{h}" rx="5" fill="#000" filter="url(#paper)"/>'
    body += f'<clipPath id="env"><rect x="{x}" y="{y}" width="{w}" height="{h}" rx="5"/></clipPath><g clip-path="url(#env)"><rect x="{x}" y="{y}" width="{w}" height="{h}" fill="none" stroke="#7a4a14" stroke-width="54" opacity=".3" filter="url(#softer)"/>'
    stripe = 34
    for i in range(-1, int((w + h) / stripe) + 2):  # the mail's border in red and blue
        colour = ("#8f2d22", "#f0e0b8", "#24506c", "#f0e0b8")[i % 4]
        for px, py, pw, ph in ((x, y, w, 13), (x, y + h - 13, w, 13)):
            body += f'<path d="M{px + i * stripe} {py}h{stripe}l-9 {ph}h{-stripe}Z" fill="{colour}" opacity=".82"/>'
        for px in (x, x + w - 13):
            body += f'<path d="M{px} {y + i * stripe}v{stripe}l13 -9v{-stripe}Z" fill="{colour}" opacity=".82"/>'
    body += "</g>"
    body += stamp(x + w - 152, y + 42) + postmark(x + w - 236, y + 122)
    cx = x + w / 2
    body += f'<g font-family="Goudy Bookletter 1911" text-anchor="middle"><text x="{cx + 1.500}" y="{y + 296}" font-size="112" fill="#fff4d4" opacity=".6">The Petrel Mail</text><text x="{cx}" y="{y + 294}" font-size="112" fill="url(#gold)">The Petrel Mail</text></g>'
    body += flourish(cx, y + 332, 210)
    body += f'<text x="{cx}" y="{y + 378}" font-family="EB Garamond" font-style="italic" font-size="31" text-anchor="middle" fill="#3a2410">By steamer, to every harbour of the Corran coast</text>'
    body += f'<g transform="translate({x + 66},{y + 60}) rotate(-3)"><rect x="-10" y="-22" width="184" height="58" fill="none" stroke="#8f2d22" stroke-width="3" opacity=".7" filter="url(#worn)"/><text x="82" y="17" font-family="Old Standard TT" font-size="30" font-weight="bold" text-anchor="middle" fill="#8f2d22" opacity=".78" letter-spacing="3">BY LAMP</text></g>'
    body += seal(cx, y + h - 62, 54) + "</g>"
    body += f'<rect width="{W}" height="{H}" fill="url(#lampl)"/>'
    return raster(W, H, body, defs)


def main():
    photo(letter(), "gui/splashscreen/splash0.jpg")
    body, defs = mail_route()
    photo(raster(W, H, body, defs), "gui/splashscreen/splash1.jpg", 90)


main()
