"""The coast as a chart on parchment, its lamps dark but one: land from noise, outlines by marching squares, names where there is room."""

import heapq
import math
import random

import numpy as np
from scipy.ndimage import distance_transform_edt, gaussian_filter, zoom

W, H, S = 1366, 768, 2  # the land is computed at half size
INK, RED = "#3a210b", "#a3281c"
EDGES = {1: [(3, 0)], 2: [(0, 1)], 3: [(3, 1)], 4: [(1, 2)], 5: [(3, 2), (1, 0)], 6: [(0, 2)], 7: [(3, 2)], 8: [(2, 3)], 9: [(2, 0)],
         10: [(0, 3), (2, 1)], 11: [(2, 1)], 12: [(1, 3)], 13: [(1, 0)], 14: [(0, 3)]}
ISLES = [(-0.12, -0.05, 0.17, 1.7), (0.22, -0.52, 0.09, 1.5), (-0.62, 0.55, 0.10, 1.5), (0.30, 0.42, 0.12, 1.5), (-0.30, -0.62, 0.06, 1.5),
         (0.02, 0.62, 0.05, 1.4), (0.40, -0.1, 0.04, 1.4), (-0.46, 0.05, 0.04, 1.3)]


def cloud(rng, w, h, base, octaves, fall=0.55):
    total, gain, weight = np.zeros((h, w)), 1.0, 0.0
    for octave in range(octaves):
        n = base * 2 ** octave
        grid = rng.standard_normal((n * h // w + 4, n + 4))
        total += gain * zoom(grid, (h / (grid.shape[0] - 3), w / (grid.shape[1] - 3)), order=3)[:h, :w]
        weight += gain
        gain *= fall
    return total / weight


def outlines(field, level):
    """Closed lines where the field crosses a level, as lists of points."""
    g = np.full((field.shape[0] + 2, field.shape[1] + 2), level - 1.0)
    g[1:-1, 1:-1] = field
    above = g > level
    kind = above[:-1, :-1] * 1 + above[:-1, 1:] * 2 + above[1:, 1:] * 4 + above[1:, :-1] * 8

    def side(y, x, edge):
        return (("h", y, x), ("v", y, x + 1), ("h", y + 1, x), ("v", y, x))[edge]

    def point(key):
        way, y, x = key
        y1, x1 = (y, x + 1) if way == "h" else (y + 1, x)
        t = (level - g[y, x]) / (g[y1, x1] - g[y, x])
        return x + (x1 - x) * t - 1, y + (y1 - y) * t - 1

    following = {}
    for y, x in zip(*np.nonzero((kind > 0) & (kind < 15))):
        for a, b in EDGES[int(kind[y, x])]:
            following.setdefault(side(y, x, a), []).append(side(y, x, b))
    paths = []
    while following:
        first = key = next(iter(following))
        path = []
        while key in following:
            path.append(point(key))
            nexts = following[key]
            after = nexts.pop()
            if not nexts:
                del following[key]
            key = after
            if key == first:
                break
        if len(path) > 6:
            paths.append(path)
    return paths


def curve(path, step=2):
    """A smooth closed path through every step-th point."""
    p = path[::step]
    if len(p) < 5:
        return ""
    n = len(p)
    text = "M%.1f %.1f" % (p[0][0] * S, p[0][1] * S)
    for i in range(n):
        p0, p1, p2, p3 = p[i - 1], p[i], p[(i + 1) % n], p[(i + 2) % n]
        c1 = (p1[0] + (p2[0] - p0[0]) / 6, p1[1] + (p2[1] - p0[1]) / 6)
        c2 = (p2[0] - (p3[0] - p1[0]) / 6, p2[1] - (p3[1] - p1[1]) / 6)
        text += "C%.1f %.1f %.1f %.1f %.1f %.1f" % tuple(v * S for q in (c1, c2, p2) for v in q)
    return text + "Z"


class Chart:
    def __init__(self, seed=11):
        self.rng, self.random = np.random.default_rng(seed), random.Random(seed)
        self.w, self.h = W // S, H // S
        self.seed, self.out = seed, []
        self.land_make()
        self.taken = np.zeros((self.h, self.w), bool)

    def land_make(self):
        """Mainland down the right side and at the top left, open sea between, isles in it."""
        f = cloud(self.rng, self.w, self.h, 4, 7)
        yy, xx = np.mgrid[0:self.h, 0:self.w]
        x, y = xx / self.w * 2 - 1, yy / self.h * 2 - 1
        east = 1.6 * np.clip((x - 0.70 + 0.20 * np.sin(y * 4 + 1)) * 2.4, -1.4, 1.2)
        west = 1.5 * np.clip((-x - 0.80 - 0.45 * (y + 0.2)) * 2.6, -1.4, 1)
        isles = np.full_like(f, -1.0)
        for cx, cy, r, s in ISLES:
            isles = np.maximum(isles, s * np.exp(-(((x - cx) * 1.5) ** 2 + (y - cy) ** 2) / (2 * r * r)) - 1.0)
        field = np.maximum(np.maximum(east, west), isles) + 0.62 * f + 0.55 * cloud(self.rng, self.w, self.h, 14, 5, 0.62)
        self.field = gaussian_filter(field, 1.2)
        self.off_shore = gaussian_filter(distance_transform_edt(self.field <= 0), 1.5)
        self.inland = distance_transform_edt(self.field > 0)
        self.border = np.minimum.reduce([yy, xx, self.h - 1 - yy, self.w - 1 - xx])

    def add(self, text):
        self.out.append(text)

    def take(self, x, y, half_w, half_h):
        x0, x1, y0, y1 = (int(v) for v in (x - half_w, x + half_w, y - half_h, y + half_h))
        self.taken[max(0, y0):y1, max(0, x0):x1] = True

    def place(self, half_w, half_h, wish, land=False):
        """The free rectangle nearest to a wish, at sea or on land; wholly free if there is one."""
        half_w, half_h = half_w / S, half_h / S
        bad = ((self.field <= 0) == land) | self.taken
        sums = np.pad(bad.astype(int).cumsum(0).cumsum(1), ((1, 0), (1, 0)))
        best = None
        for y in range(int(half_h) + 24, int(self.h - half_h - 24), 3):
            for x in range(int(half_w) + 24, int(self.w - half_w - 24), 3):
                y0, y1, x0, x1 = int(y - half_h), int(y + half_h), int(x - half_w), int(x + half_w)
                score = (sums[y1, x1] - sums[y0, x1] - sums[y1, x0] + sums[y0, x0]) * 6 + math.hypot(x - wish[0] / S, y - wish[1] / S)
                if best is None or score < best[0]:
                    best = (score, x, y)
        _, x, y = best
        self.take(x, y, half_w, half_h)
        return x * S, y * S

    # what lies under everything
    def ground(self):
        land = "".join(curve(p) for p in outlines(self.field, 0) if len(p) > 16)
        self.add(f'<clipPath id="land"><path d="{land}"/></clipPath><rect width="{W}" height="{H}" filter="url(#parchment)"/><rect width="{W}" height="{H}" fill="#86b0a8" opacity="0.36"/>')
        self.add('<g stroke="#7b5a3a" stroke-width="0.8" opacity="0.42">')
        for cx, cy in ((455, 560), (905, 170), (160, 160)):
            for i in range(32):
                a = i * math.pi / 16
                self.add(f'<line x1="{cx}" y1="{cy}" x2="{cx + 1900 * math.cos(a):.1f}" y2="{cy + 1900 * math.sin(a):.1f}"/>')
        self.add('</g><g filter="url(#rough)">')
        for i, distance in enumerate((4, 8, 13, 19, 26)):
            line = "".join(curve(p, 3) for p in outlines(-self.off_shore, -distance) if len(p) > 30)
            self.add(f'<path d="{line}" fill="none" stroke="#5b6f72" stroke-width="{1.3 - 0.2 * i:.2f}" opacity="{0.6 - 0.1 * i:.2f}"/>')
        self.add(f'<path d="{land}" fill="#dcb878"/><path d="{land}" fill="none" stroke="#8a5a26" stroke-width="16" opacity="0.35" clip-path="url(#land)"/>'
                 f'<path d="{land}" fill="none" stroke="#7a9a5a" stroke-width="44" opacity="0.18" clip-path="url(#land)"/><path d="{land}" fill="none" stroke="#3a2410" stroke-width="2.2"/></g>')

    def country(self):
        """Hills and woods where no name stands."""
        spots = []
        for _ in range(5000):
            x, y = self.random.uniform(10, self.w - 10), self.random.uniform(10, self.h - 10)
            free = self.inland[int(y), int(x)] > 13 and not self.taken[int(y) - 9:int(y) + 7, max(0, int(x) - 10):int(x) + 10].any()
            if free and all((x - a) ** 2 + (1.6 * (y - b)) ** 2 > 17 ** 2 for a, b in spots):
                spots.append((x, y))
        hilly = cloud(self.rng, self.w, self.h, 5, 3)
        self.add('<g filter="url(#rough)">')
        for x, y in sorted(spots, key=lambda p: p[1]):
            at, size = f"translate({x * S:.1f},{y * S:.1f})", self.random.uniform(.8, 1.25)
            if hilly[int(y), int(x)] > 0.05:
                self.add(f'<g transform="{at} scale({size:.2f})" stroke="#3f2811" stroke-width="1.5" fill="#cfa866" stroke-linejoin="round"><path d="M-17 8 Q-8 -6 -2 -15 Q3 -12 6 -3 Q11 2 17 8"/>'
                         '<path d="M-2 -15 Q1 -6 -3 0 Q1 3 0 8 M1 -8 l5 9 M3 -3 l5 9 M6 0 l5 8" fill="none" stroke-width="1"/></g>')
            elif self.random.random() < .62:
                self.add(f'<g transform="{at} scale({size * 0.9:.2f})" stroke="#3f3a18" stroke-width="1.2" fill="#8f9a57"><path d="M0 10 V2" /><path d="M-6 3 Q-8 -4 -3 -6 Q-2 -12 3 -9 Q9 -7 6 -2 Q8 4 1 4 Q-3 6 -6 3Z"/></g>')
        self.add("</g>")

    def route(self, wishes):
        """The mail's way by sea from stop to stop, keeping off the coast."""
        k = 4
        sea, border = self.off_shore[::k, ::k], self.border[::k, ::k]
        cost = np.where((sea < 3) | (border < 28), 1e6, 1 + 60 / (sea + 1) ** 1.3)

        def open_sea(x, y):
            cells = [((gy - y / S / k) ** 2 + (gx - x / S / k) ** 2, (gy, gx)) for gy in range(sea.shape[0]) for gx in range(sea.shape[1])
                     if 4 < sea[gy, gx] and border[gy, gx] > 30]
            return min(cells)[1]

        def shortest(start, goal):
            best, came, queue = {start: 0}, {}, [(0, start)]
            while queue:
                d, cell = heapq.heappop(queue)
                if cell == goal:
                    break
                if d > best[cell]:
                    continue
                for dy in (-1, 0, 1):
                    for dx in (-1, 0, 1):
                        to = (cell[0] + dy, cell[1] + dx)
                        if (dy or dx) and 0 <= to[0] < sea.shape[0] and 0 <= to[1] < sea.shape[1]:
                            far = d + cost[to] * math.hypot(dx, dy)
                            if far < best.get(to, 1e18):
                                best[to], came[to] = far, cell
                                heapq.heappush(queue, (far, to))
            way = [goal]
            while way[-1] != start:
                way.append(came[way[-1]])
            return way[::-1]

        stops = [open_sea(*wish) for wish in wishes]
        cells = []
        for a, b in zip(stops, stops[1:]):
            cells += shortest(a, b)[:-1]
        cells.append(stops[-1])
        exact = np.array(cells, float) * k * S + k * S / 2
        smooth = gaussian_filter(exact, (4, 0), mode="nearest")
        line = "M" + " L".join(f"{x:.1f} {y:.1f}" for y, x in smooth)
        self.add(f'<path d="{line}" fill="none" stroke="{RED}" stroke-width="4" stroke-dasharray="13 9" stroke-linecap="round" stroke-linejoin="round" opacity="0.85" filter="url(#rough)"/>')
        places = []
        for gy, gx in stops:
            nearest = int(np.argmin(((exact - np.array([gy * k * S + 4, gx * k * S + 4])) ** 2).sum(1)))
            y, x = smooth[nearest]
            places.append((x, y))
            self.add(f'<circle cx="{x:.1f}" cy="{y:.1f}" r="8" fill="#e8cf9a" stroke="{RED}" stroke-width="3"/>')
        for y, x in smooth:
            self.take(x / S, y / S, 12, 12)
        return places

    def shore(self, x, y):
        """The place on land nearest to a stop, a little in from the water."""
        yy, xx = np.nonzero((self.inland >= 7) & (self.border > 30))
        nearest = int(np.argmin((xx - x / S) ** 2 + (yy - y / S) ** 2))
        return xx[nearest] * S, yy[nearest] * S

    # what is drawn on it
    def text(self, words, x, y, size, turn=0, space=0, italic=True, family="EB Garamond"):
        self.add(f'<text transform="translate({x},{y}) rotate({turn})" style="paint-order:stroke" stroke="#e2c993" stroke-opacity=".75" stroke-width="{size * 0.16:.1f}" stroke-linejoin="round" '
                 f'font-family="{family}" font-style="{"italic" if italic else "normal"}" font-size="{size}" letter-spacing="{space}" text-anchor="middle" fill="{INK}" opacity=".9">{words}</text>')

    def label(self, words, size, wish, land=False, italic=True, space=1, family="EB Garamond", turn=0):
        x, y = self.place(len(words) * (size * .25 + space * .5) + 6, size * .5, wish, land)
        return lambda: self.text(words, x, y + size * .3, size, turn, space, italic, family)

    def rose(self, cx, cy, r):
        self.add(f'<g transform="translate({cx},{cy})"><circle r="{r * .78}" fill="#e3c890" fill-opacity=".55" stroke="#4a2c10" stroke-width="1.6"/><circle r="{r * .70}" fill="none" stroke="#4a2c10" stroke-width=".8"/>')
        for i in range(72):
            self.add(f'<line y1="{-r * .70}" y2="{-r * (.78 if i % 2 else .75)}" stroke="#4a2c10" stroke-width=".8" transform="rotate({i * 5})"/>')
        for length, width, turn, step, colour in ((.62, .11, 22.5, 45, "#6a8a80"), (.8, .14, 45, 90, "#b98436"), (1.05, .17, 0, 90, RED)):
            for angle in np.arange(turn, 360 + turn, step):
                for hand, fill in ((-1, colour), (1, "#f0dcae")):
                    self.add(f'<path d="M0 {-r * length} L{hand * r * width} {-r * width} L0 0Z" fill="{fill}" stroke="{INK}" stroke-width="1" transform="rotate({angle})"/>')
        self.add(f'<circle r="{r * .1}" fill="#b98436" stroke="{INK}"/>')
        for letter, angle in (("N", 0), ("E", 90), ("S", 180), ("W", 270)):
            a = math.radians(angle)
            self.add(f'<text x="{r * 1.2 * math.sin(a):.1f}" y="{-r * 1.2 * math.cos(a) + r * .1:.1f}" font-family="EB Garamond" font-weight="bold" font-size="{r * .3}" text-anchor="middle" fill="{INK}">{letter}</text>')
        self.add("</g>")

    def steamer(self, x, y):
        self.add(f'<g transform="translate({x},{y}) scale(1.15)" stroke="{INK}" stroke-width="1.6" fill="#d8b47a"><path d="M-42 10 Q-38 26 -24 27 H30 Q42 22 46 6 L30 12 H-30Z" fill="#9a6a36"/><path d="M-8 12 V-16 H6 V12Z" fill="{RED}"/><path d="M-8 -9 H6" fill="none"/>'
                 '<path d="M-24 11 V-44 M24 11 V-40"/><path d="M-24 -42 Q-2 -26 -22 -2Z M24 -38 Q44 -22 26 0Z" fill="#f0dcae"/><path d="M-1 -18 Q-10 -34 -28 -34 Q-46 -46 -64 -40 Q-50 -30 -32 -28 Q-16 -26 -4 -16" fill="#8a8070" fill-opacity=".5" stroke-width="1"/>'
                 '<path d="M-60 30 q8 -6 16 0 t16 0 t16 0 t16 0 t16 0 t16 0 t16 0 t16 0" fill="none"/></g>')

    def serpent(self, x, y):
        self.add(f'<g transform="translate({x},{y})" fill="none" stroke="{INK}" stroke-width="1.6"><path d="M-80 18 Q-70 -26 -50 -4 Q-42 10 -34 18 M-22 18 Q-10 -30 8 -6 Q16 8 22 18 M34 18 Q40 -34 62 -34 Q84 -34 80 -16 L96 -12 L78 -6 Q66 -10 60 0 Q52 12 50 18" fill="#7f9a86"/>'
                 f'<circle cx="70" cy="-24" r="3" fill="{INK}"/><path d="M-92 20 q8 -6 16 0 t16 0 t16 0 t16 0 t16 0 t16 0 t16 0 t16 0 t16 0 t16 0 t16 0" /></g>')

    def lamp(self, x, y, lit):
        """A harbour's lamp beside its stop: burning, or a black lantern in a smudge."""
        self.add(f'<g transform="translate({x:.1f},{y:.1f}) scale(1.25)">')
        if lit:
            self.add('<circle r="74" cy="-31" fill="url(#halo)"/>')
            for i in range(12):
                a = i * math.pi / 6 + .26
                self.add(f'<path d="M{13 * math.cos(a):.1f} {-31 + 13 * math.sin(a):.1f}L{(24 if i % 2 else 19) * math.cos(a):.1f} {-31 + (24 if i % 2 else 19) * math.sin(a):.1f}" stroke="#c8791c" stroke-width="1.8" stroke-linecap="round"/>')
        else:
            self.add('<ellipse cx="0" cy="-24" rx="27" ry="33" fill="#1d140c" opacity=".42" filter="url(#blur)"/>')
        self.add(f'<path d="M-8 4L-5 -24H5L8 4Z" fill="{"#f3e2b8" if lit else "#8d7a5c"}" stroke="{INK}" stroke-width="1.5"/><path d="M-7 -4H7L6.200 -11H-6.200ZM-5.600 -18H5.600L5 -24H-5Z" fill="{RED if lit else "#4d3326"}"/>'
                 f'<path d="M-8 -24H8V-27H-8Z" fill="{INK}"/><rect x="-5" y="-36" width="10" height="9" fill="{"#ffe27a" if lit else "#17110c"}" stroke="{INK}" stroke-width="1.4"/><path d="M-7 -36L0 -43L7 -36Z" fill="{RED if lit else "#3a2418"}" stroke="{INK}" stroke-width="1.2"/><path d="M-12 5Q0 1 12 5" stroke="{INK}" stroke-width="1.6" fill="none"/></g>')

    def frame(self):
        self.add(f'<g fill="none" stroke="{INK}"><rect x="26" y="26" width="{W - 52}" height="{H - 52}" stroke-width="2.5"/><rect x="42" y="42" width="{W - 84}" height="{H - 84}" stroke-width="1.2"/></g><g fill="{INK}" opacity=".85">')
        for i in range(0, 36, 2):
            self.add(f'<rect x="{34 + i * (W - 68) / 36:.1f}" y="30" width="{(W - 68) / 36:.1f}" height="8"/><rect x="{34 + i * (W - 68) / 36:.1f}" y="{H - 38}" width="{(W - 68) / 36:.1f}" height="8"/>')
        for i in range(0, 20, 2):
            self.add(f'<rect x="30" y="{34 + i * (H - 68) / 20:.1f}" width="8" height="{(H - 68) / 20:.1f}"/><rect x="{W - 38}" y="{34 + i * (H - 68) / 20:.1f}" width="8" height="{(H - 68) / 20:.1f}"/>')
        self.add("</g>")

    def wear(self):
        """Stains, folds, fibres, dark edges."""
        self.add('<g filter="url(#stain)"><circle cx="1080" cy="520" r="74" fill="none" stroke="#6b3a10" stroke-width="9" opacity="0.22"/><ellipse cx="250" cy="330" rx="120" ry="70" fill="#6b3a10" opacity="0.13"/></g>')
        for x in (W * .25, W * .5, W * .75):
            self.add(f'<rect x="{x - 22}" width="44" height="{H}" fill="url(#fold)" opacity=".8"/>')
        self.add(f'<rect y="{H / 2 - 2}" width="{W}" height="1.6" fill="#fff3cf" opacity=".4"/><rect y="{H / 2}" width="{W}" height="3" fill="#3b2308" opacity=".18"/>')
        self.add(f'<rect width="{W}" height="{H}" filter="url(#fibre)" style="mix-blend-mode:multiply" opacity="0.8"/><rect width="{W}" height="{H}" fill="url(#vignette)"/>')

    def defs(self):
        s = self.seed
        return f"""
<filter id="parchment" x="0" y="0" width="100%" height="100%" color-interpolation-filters="sRGB"><feTurbulence type="fractalNoise" baseFrequency="0.006 0.008" numOctaves="6" seed="{s}" result="n"/><feColorMatrix in="n" type="matrix" values="0.34 0 0 0 0.66  0.42 0 0 0 0.50  0.46 0 0 0 0.27  0 0 0 0 1"/></filter>
<filter id="fibre" x="0" y="0" width="100%" height="100%" color-interpolation-filters="sRGB"><feTurbulence type="fractalNoise" baseFrequency="0.55 0.4" numOctaves="4" seed="{s + 3}" result="n"/><feDiffuseLighting in="n" surfaceScale="0.7" diffuseConstant="1.08" lighting-color="#ffffff"><feDistantLight azimuth="225" elevation="62"/></feDiffuseLighting></filter>
<filter id="stain" x="-20%" y="-20%" width="140%" height="140%"><feTurbulence type="fractalNoise" baseFrequency="0.018" numOctaves="4" seed="{s + 5}"/><feDisplacementMap in="SourceGraphic" scale="46" xChannelSelector="R" yChannelSelector="G"/><feGaussianBlur stdDeviation="3"/></filter>
<filter id="rough"><feTurbulence type="fractalNoise" baseFrequency="0.05" numOctaves="3" seed="2"/><feDisplacementMap in="SourceGraphic" scale="2.4" xChannelSelector="R" yChannelSelector="G"/></filter>
<filter id="blur" x="-60%" y="-60%" width="220%" height="220%"><feGaussianBlur stdDeviation="7"/></filter>
<radialGradient id="halo"><stop offset="0" stop-color="#fff2a0" stop-opacity=".95"/><stop offset=".25" stop-color="#ffd768" stop-opacity=".6"/><stop offset="1" stop-color="#ffd768" stop-opacity="0"/></radialGradient>
<radialGradient id="vignette" cx="50%" cy="48%" r="72%"><stop offset="0.55" stop-color="#6b3d12" stop-opacity="0"/><stop offset="0.85" stop-color="#5d3410" stop-opacity="0.32"/><stop offset="1" stop-color="#2d1605" stop-opacity="0.75"/></radialGradient>
<linearGradient id="fold" x1="0" x2="1" y1="0" y2="0"><stop offset="0" stop-color="#3b2308" stop-opacity="0"/><stop offset="0.46" stop-color="#3b2308" stop-opacity="0.28"/><stop offset="0.5" stop-color="#fff3cf" stop-opacity="0.5"/><stop offset="0.56" stop-color="#3b2308" stop-opacity="0.12"/><stop offset="1" stop-color="#3b2308" stop-opacity="0"/></linearGradient>"""


def voyage_chart(places):
    """The chart that is sailed by, as SVG body and definitions: no lamps at the places given as (x, y, half width, half height), which
    are pictures of their own; the smaller ones along the route are dark."""
    chart = Chart()
    chart.take(900 / S, 86 / S, 112, 34)
    for x, y, half_w, half_h in places:
        chart.take(x / S, y / S, half_w / S, half_h / S)
    chart.ground()
    stops = chart.route([(1130, 560), (800, 640), (905, 300), (640, 130), (235, 335)])
    lamps = [chart.shore(*stop) for stop in (stops[1], stops[4])]
    for x, y in lamps:
        chart.take(x / S, (y - 26) / S, 20, 34)
    rose = chart.place(118, 118, (400, 600))
    beast = chart.place(108, 44, (960, 700))
    labels = [chart.label("The Grey Sound", 40, (390, 440), space=5, turn=-3), chart.label("Gannet Bank", 24, (460, 90)), chart.label("Kelpie Race", 24, (700, 690)),
              chart.label("Bay of Bells", 22, (780, 200)), chart.label("Corran", 34, (1240, 420), True, False, 5, "Goudy Bookletter 1911"), chart.label("Tern Isle", 24, (620, 380), True),
              chart.label("Bell Haven", 20, (1100, 390), True, False), chart.label("Port Merrow", 22, (1240, 500), True, False), chart.label("Lamp Head", 22, (150, 240), True, False),
              chart.label("Skerry Point", 20, (890, 560), True)]
    chart.country()
    chart.rose(*rose, 92)
    chart.serpent(*beast)
    for label in labels:
        label()
    for x, y in lamps:
        chart.lamp(x, y + 4, False)
    chart.add('<g transform="translate(900,86)"><path d="M-204 -42 Q-218 0 -204 42 H204 Q218 0 204 -42Z" fill="#ecd6a2" stroke="#4a2c10" stroke-width="3"/><path d="M-194 -34 Q-206 0 -194 34 H194 Q206 0 194 -34Z" fill="none" stroke="#4a2c10" stroke-width="1"/></g>')
    chart.text("THE MAIL ROUTE", 900, 84, 28, 0, 2, False, "Goudy Bookletter 1911")
    chart.text("and the lamps along it", 900, 110, 18)
    chart.frame()
    chart.wear()
    return "\n".join(chart.out), chart.defs()


def mail_route():
    """The whole chart as SVG body and definitions."""
    chart = Chart()
    chart.take(900 / S, 86 / S, 112, 34)
    chart.ground()
    stops = chart.route([(1130, 560), (800, 640), (905, 300), (640, 130), (235, 335)])
    lamps = [chart.shore(*stop) for stop in stops]
    for x, y in lamps:
        chart.take(x / S, (y - 26) / S, 20, 34)
    rose = chart.place(118, 118, (400, 600))
    ship = chart.place(72, 54, (880, 470))
    beast = chart.place(108, 44, (150, 690))
    labels = [chart.label("The Grey Sound", 40, (640, 610), space=5, turn=-3), chart.label("Gannet Bank", 24, (700, 250)), chart.label("Kelpie Race", 24, (960, 630)),
              chart.label("Bay of Bells", 22, (1000, 380)), chart.label("Corran", 34, (1240, 420), True, False, 5, "Goudy Bookletter 1911"), chart.label("Tern Isle", 24, (590, 380), True),
              chart.label("Selkie", 20, (840, 180)), chart.label("Port Merrow", 22, (1190, 490), True, False), chart.label("Lamp Head", 22, (150, 240), True, False), chart.label("Skerry Isle", 20, (890, 560), True)]
    chart.country()
    chart.rose(*rose, 92)
    chart.steamer(*ship)
    chart.serpent(*beast)
    for label in labels:
        label()
    for index, (x, y) in enumerate(lamps):
        chart.lamp(x, y + 4, index == 0)
    chart.add('<g transform="translate(900,86)"><path d="M-204 -42 Q-218 0 -204 42 H204 Q218 0 204 -42Z" fill="#ecd6a2" stroke="#4a2c10" stroke-width="3"/><path d="M-194 -34 Q-206 0 -194 34 H194 Q206 0 194 -34Z" fill="none" stroke="#4a2c10" stroke-width="1"/></g>')
    chart.text("A CHART of the MAIL ROUTE", 900, 86, 27, 0, 1, False, "Goudy Bookletter 1911")
    chart.text("from soundings by the S.S. Petrel, 1887", 900, 110, 18)
    chart.frame()
    chart.wear()
    return "\n".join(chart.out), chart.defs()
