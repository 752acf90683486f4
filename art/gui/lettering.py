"""The title's lettering: brass capitals and letters with a dark sea's edge, a ribbon below."""

import math

from kit import save

W, H = 900, 300
DEFS = """
<linearGradient id="gold" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#fffce8"/><stop offset=".3" stop-color="#ffe394"/><stop offset=".52" stop-color="#d8962f"/><stop offset=".56" stop-color="#f6c766"/><stop offset="1" stop-color="#a8601c"/></linearGradient>
<linearGradient id="ribbon" x1="0" y1="0" x2="1" y2="0"><stop offset="0" stop-color="#7c2418"/><stop offset=".12" stop-color="#b13a27"/><stop offset=".5" stop-color="#c24a30"/><stop offset=".88" stop-color="#a53322"/><stop offset="1" stop-color="#6a1c12"/></linearGradient>
<filter id="bevel" x="-10%" y="-10%" width="120%" height="130%" color-interpolation-filters="sRGB"><feGaussianBlur in="SourceAlpha" stdDeviation="1.8" result="b"/><feSpecularLighting in="b" surfaceScale="5" specularConstant=".9" specularExponent="22" lighting-color="#fff4cf" result="s"><feDistantLight azimuth="225" elevation="45"/></feSpecularLighting><feComposite in="s" in2="SourceAlpha" operator="in" result="t"/><feComposite in="SourceGraphic" in2="t" operator="arithmetic" k2="1" k3=".85"/></filter>
<filter id="drop" x="-10%" y="-10%" width="120%" height="140%"><feGaussianBlur in="SourceAlpha" stdDeviation="6"/><feOffset dx="3" dy="7"/><feComponentTransfer><feFuncA type="linear" slope=".8"/></feComponentTransfer><feMerge><feMergeNode/><feMergeNode in="SourceGraphic"/></feMerge></filter>"""


def words(extra=""):
    return f'<text x="450" y="136" font-family="Goudy Bookletter 1911" font-size="128" text-anchor="middle" {extra}>The Petrel Mail</text>'


def main():
    body = '<g filter="url(#drop)"><g stroke-linejoin="round">' + words('fill="#06131f" stroke="#06131f" stroke-width="17"') + words('fill="#17435c" stroke="#1f5570" stroke-width="9"') + words('fill="#0b2436" stroke="#0b2436" stroke-width="4"') + '</g></g>'
    body += '<g filter="url(#bevel)">' + words('fill="url(#gold)" stroke="url(#gold)" stroke-width="1.6"') + "</g>"
    body += ('<g filter="url(#drop)"><path d="M186 196L112 203L137 229L113 258L214 245L214 212Z M714 196L788 203L763 229L787 258L686 245L686 212Z" fill="#5b160c" stroke="#1c0704" stroke-width="2.5" stroke-linejoin="round"/>'
             '<path d="M170 184Q450 156 730 184L730 242Q450 214 170 242Z" fill="url(#ribbon)" stroke="#1c0704" stroke-width="2.5" stroke-linejoin="round"/></g>'
             '<path d="M176 191Q450 163 724 191M176 235Q450 207 724 235" stroke="#f0cd78" stroke-width="1.8" fill="none"/><path d="M172 187Q450 159 728 187" stroke="#fff" stroke-width="5" opacity=".18" fill="none"/>')
    line = "A VOYAGE OF HIDDEN THINGS"
    widths = {" ": 0.42, "I": 0.50, "A": 0.98, "V": 0.98, "O": 1.1, "G": 1.1, "Y": 0.95, "N": 1.1, "D": 1.08, "H": 1.12, "E": 0.9, "S": 0.8, "F": 0.86, "T": 0.92}
    total, at = sum(widths[c] for c in line), 0.0
    for letter in line:  # one by one along the ribbon's arc
        share = (at + widths[letter] / 2) / total
        at += widths[letter]
        x = 204 + 492 * share
        curve = (x - 450) / 280
        y = 211 + 14 * (curve * curve - 1) + 13.2
        body += (f'<text transform="translate({x:.1f},{y:.1f}) rotate({math.degrees(math.atan2(28 * curve, 280)):.2f})" font-family="Goudy Bookletter 1911" font-size="30" text-anchor="middle" '
                 f'fill="#ffeeb8" stroke="#3a0d06" stroke-width="3" stroke-linejoin="round" style="paint-order:stroke">{letter}</text>')
    save("gui/title/title.png", W, H, body, DEFS, colours=0)


main()
