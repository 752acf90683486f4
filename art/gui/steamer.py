"""The mail steamer Petrel from starboard, bows to the right, against the last light. 560 x 330, waterline at y = 262."""

WIDTH, HEIGHT, WATER = 560, 330, 262

DEFS = """
<linearGradient id="hull" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#2c3a4c"/><stop offset=".35" stop-color="#182231"/><stop offset="1" stop-color="#0a0f18"/></linearGradient>
<linearGradient id="white" x1="0" y1="0" x2="1" y2="1"><stop offset="0" stop-color="#8fa1b5"/><stop offset=".6" stop-color="#a99fa6"/><stop offset="1" stop-color="#d9a98a"/></linearGradient>
<linearGradient id="funnel" x1="0" y1="0" x2="1" y2="0"><stop offset="0" stop-color="#5d4330"/><stop offset=".45" stop-color="#9c6c3c"/><stop offset=".85" stop-color="#eba65e"/><stop offset="1" stop-color="#ffcf94"/></linearGradient>
<linearGradient id="soot" x1="0" y1="0" x2="1" y2="0"><stop offset="0" stop-color="#0d0f14"/><stop offset=".7" stop-color="#23242a"/><stop offset="1" stop-color="#6b5548"/></linearGradient>
<linearGradient id="mast" x1="0" y1="0" x2="1" y2="0"><stop offset="0" stop-color="#2a1d18"/><stop offset=".6" stop-color="#5b4230"/><stop offset="1" stop-color="#d19a66"/></linearGradient>
<linearGradient id="wood" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#b07a4c"/><stop offset="1" stop-color="#5a3722"/></linearGradient>
<filter id="glow" x="-300%" y="-300%" width="700%" height="700%"><feGaussianBlur stdDeviation="4"/></filter>
"""


def lit(x, y, w, h, r=1):
    return f'<rect x="{x}" y="{y}" width="{w}" height="{h}" rx="{r}" fill="#ffd27a"/><rect x="{x}" y="{y}" width="{w}" height="{h / 2}" rx="{r}" fill="#fff0bd" opacity=".7"/>'


def boat(x, y):
    """A lifeboat in its davits."""
    return (f'<g fill="none" stroke="#1a2230" stroke-width="2"><path d="M{x + 6} {y + 16}V{y - 8}Q{x + 6} {y - 15} {x + 13} {y - 13}M{x + 42} {y + 16}V{y - 8}Q{x + 42} {y - 15} {x + 35} {y - 13}"/><path d="M{x + 13} {y - 13}V{y}M{x + 35} {y - 13}V{y}" stroke-width="1"/></g>'
            f'<path d="M{x} {y - 1}Q{x + 24} {y + 4} {x + 48} {y - 2}Q{x + 46} {y + 10} {x + 36} {y + 11}H{x + 11}Q{x + 2} {y + 9} {x} {y - 1}Z" fill="url(#white)" stroke="#1a2230" stroke-width="1.2"/><path d="M{x + 2} {y + 3}Q{x + 24} {y + 7} {x + 46} {y + 2}" stroke="#7d3b2a" stroke-width="2" fill="none"/>')


def picture():
    b = ""
    # standing rigging first, so that all else covers its feet
    b += '<g stroke="#151b26" stroke-width="1" fill="none" opacity=".9">'
    for x0, y0, ends in ((434, 34, (398, 412, 468, 482)), (120, 44, (86, 100, 152, 166))):
        for x1 in ends:
            b += f'<path d="M{x0} {y0}L{x1} 206"/>'
    b += '<path d="M434 30L532 186M434 30L290 60M120 40L36 196M120 42L262 74M434 30Q280 70 120 40"/></g>'
    for ends in ((434, 398, 412), (434, 468, 482), (120, 86, 100), (120, 152, 166)):  # ratlines
        top = 34 if ends[0] == 434 else 44
        b += '<g stroke="#151b26" stroke-width=".7" opacity=".8">'
        for step in range(4, 15):
            t = step / 16
            y = top + (206 - top) * t
            b += f'<path d="M{ends[0] + (ends[1] - ends[0]) * t:.1f} {y:.1f}H{ends[0] + (ends[2] - ends[0]) * t:.1f}"/>'
        b += "</g>"
    # masts, booms, furled sails
    b += '<path d="M431 208L432.500 18H436.500L438 208Z" fill="url(#mast)"/><path d="M117 208L118.500 28H122L124 208Z" fill="url(#mast)"/>'
    b += '<g fill="#3a2a22"><path d="M436 176L520 150L521 153L437 181Z"/><path d="M122 174L44 156L44 159L122 179Z"/><path d="M434 96L486 74L487 76.500L435 100Z"/><path d="M120 100L70 84L70 86.500L120 104Z"/></g>'
    b += '<path d="M440 178Q470 166 508 156Q500 163 470 172Q452 180 440 184Z" fill="#b99b86"/><path d="M118 176Q90 166 56 160Q64 168 88 174Q106 180 118 182Z" fill="#9c8d90"/>'
    # hull
    hull = "M30 190Q34 186 44 187Q150 214 300 210Q430 206 534 180Q528 206 520 226Q513 250 510 268H84Q70 262 64 246Q40 232 32 214Q27 200 30 190Z"
    b += f'<path d="{hull}" fill="url(#hull)"/><clipPath id="hc"><path d="{hull}"/></clipPath><g clip-path="url(#hc)">'
    b += '<rect x="0" y="250" width="560" height="30" fill="#5e1f1a"/><path d="M0 250H560" stroke="#d8b27a" stroke-width="1.400" opacity=".700"/>'
    b += '<path d="M20 196Q150 224 300 220Q430 216 540 190" fill="none" stroke="#c9a25a" stroke-width="1.800"/><path d="M20 193Q150 220 300 216Q430 212 540 186" fill="none" stroke="#c6b3a8" stroke-width="3.500" opacity=".550"/>'
    b += '<path d="M500 170Q512 220 500 270H560V170Z" fill="#ff9d5c" opacity=".200"/>'
    for y in (230, 240):  # strakes
        b += f'<path d="M30 {y - 6}Q250 {y + 10} 530 {y - 8}" fill="none" stroke="#000" stroke-width=".800" opacity=".400"/>'
    b += "</g>"
    b += '<path d="M30 190Q34 186 44 187Q150 214 300 210Q430 206 534 180" fill="none" stroke="#ffb877" stroke-width="1.300" opacity=".700"/>'
    for i, x in enumerate(range(92, 490, 24)):  # portholes
        y = 230 + 3 * (1 - ((x - 290) / 210) ** 2)
        b += f'<circle cx="{x}" cy="{y:.1f}" r="3.600" fill="#0a0e15" stroke="#8d7340" stroke-width="1"/>'
        if i not in (2, 7, 8, 13, 15):
            b += f'<circle cx="{x}" cy="{y:.1f}" r="2.600" fill="#ffd98a"/>'
    b += '<path d="M512 206l4 8-3 10" stroke="#0c0f15" stroke-width="3" fill="none"/><circle cx="512" cy="204" r="2.600" fill="#0c0f15"/>'
    b += '<text x="462" y="214" transform="rotate(-9 462 214)" font-family="Goudy Bookletter 1911" font-size="13" fill="#e2c07a" letter-spacing="1.500">PETREL</text>'
    # bulwark rails
    for x in range(52, 524, 9):
        y = 187 + 24.500 * (1 - ((x - 290) / 262) ** 2) - 4
        b += f'<path d="M{x} {y + 6:.1f}v-10" stroke="#19202c" stroke-width=".900"/>'
    b += '<path d="M46 178Q150 203 300 200Q430 196 528 171" fill="none" stroke="#d19a76" stroke-width="1.200"/>'
    # deckhouses
    b += '<path d="M168 208V172H392V206Z" fill="url(#white)" stroke="#1d2634" stroke-width="1.200"/><path d="M160 173H400V168H160Z" fill="#e0b28e" stroke="#1d2634" stroke-width="1"/>'
    for x in range(178, 386, 18):
        b += lit(x, 181, 9, 12, 2) if (x // 18) % 5 != 2 else f'<rect x="{x}" y="181" width="9" height="12" rx="2" fill="#2a3646"/>'
    b += '<path d="M316 168V142H388V168Z" fill="url(#wood)" stroke="#1d2634" stroke-width="1.200"/><path d="M308 143H396V138H308Z" fill="#e6bb94" stroke="#1d2634" stroke-width="1"/>'
    for x in (322, 338, 354, 370):
        b += lit(x, 147, 12, 11, 1)
    b += '<path d="M330 138V124H376V138" fill="none" stroke="#c99a72" stroke-width="1.200"/><path d="M326 124H380" stroke="#e2b48c" stroke-width="2.200"/><path d="M350 138V126" stroke="#c99a72"/>'
    b += '<path d="M214 168V152H300V168Z" fill="#7f8796" stroke="#1d2634" stroke-width="1"/><path d="M208 153H306V149H208Z" fill="#d3a785" stroke="#1d2634" stroke-width=".800"/>'
    # funnel, raked aft, with its bands and steam pipe
    b += '<path d="M262 150L252 62H286L292 150Z" fill="url(#funnel)" stroke="#20160f" stroke-width="1.200"/><path d="M253.700 78L252 62H286L287 78Z" fill="url(#soot)"/><path d="M255.200 92L254.400 84H287.500L288 92Z" fill="#98301f"/><path d="M250 63H288L287.500 59H250.500Z" fill="#2a2420" stroke="#0f0c0a" stroke-width=".800"/><path d="M294 150L289 72" stroke="#8c6a44" stroke-width="3"/>'
    # ventilators
    for x, h in ((230, 26), (306, 22), (196, 20)):
        b += f'<path d="M{x - 3} 168V{168 - h}Q{x - 3} {160 - h} {x + 5} {160 - h}V{171 - h}Q{x + 3} {170 - h} {x + 3} {174 - h}V168Z" fill="url(#funnel)" stroke="#20160f" stroke-width="1"/><ellipse cx="{x + 5.5}" cy="{165.5 - h}" rx="2.600" ry="5.500" fill="#6d2018"/>'
    b += boat(172, 152) + boat(402, 178)
    # poop house and wheel, fore deck winch, people
    b += '<path d="M66 196V176H104V201Z" fill="url(#white)" stroke="#1d2634" stroke-width="1"/><path d="M62 177H108V173H62Z" fill="#d3a785" stroke="#1d2634" stroke-width=".800"/>' + lit(74, 182, 7, 8) + lit(89, 183, 7, 8)
    b += '<g fill="#10151e"><path d="M344 137v-9q0-2 2-2t2 2v9z"/><circle cx="346" cy="124.500" r="2.200"/><path d="M488 194v-9q0-2 2-2t2 2v9z"/><circle cx="490" cy="181" r="2"/><path d="M148 206v-9q0-2 2-2t2 2v9z"/><circle cx="150" cy="193" r="2"/></g>'
    # flags: the mail pennant at the fore, the ensign aft
    b += '<path d="M436 20Q420 14 408 20T382 20Q372 24 362 20L382 28Q400 34 412 28T436 30Z" fill="#a3321f" stroke="#3a120c" stroke-width=".800"/><path d="M412 19Q420 24 418 29" stroke="#f3d9a4" stroke-width="3.500" fill="none"/>'
    b += '<path d="M40 188L26 150" stroke="#3a2a22" stroke-width="2"/><path d="M26 151Q14 146 4 152Q2 158 4 168Q14 162 30 168Z" fill="#24507a" stroke="#0f1e30" stroke-width=".800"/>'
    # her lamps
    for x, y, colour in ((434, 62, "#fff3c0"), (120, 70, "#fff3c0"), (392, 134, "#8dffb0")):
        b += f'<circle cx="{x}" cy="{y}" r="7" fill="{colour}" opacity=".700" filter="url(#glow)"/><circle cx="{x}" cy="{y}" r="2.600" fill="{colour}"/>'
    return b
