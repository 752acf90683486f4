"""The two pursers of the crew list, painted by lamp light: drawn large, then gone over with a brush that follows the
forms, and laid on canvas."""

import numpy as np
from PIL import Image
from scipy.ndimage import gaussian_filter, uniform_filter

from kit import INK, WORK, brass_corner, pack, raster, rim, save, sheet

W, H, SCALE = 200, 260, 4  # the drawing is 800 x 1040

DEFS = """
<radialGradient id="wall" cx=".16" cy=".2" r="1.05"><stop offset="0" stop-color="#c07a34"/><stop offset=".3" stop-color="#7a4520"/><stop offset=".65" stop-color="#3a2216"/><stop offset="1" stop-color="#130d10"/></radialGradient>
<radialGradient id="lamp"><stop offset="0" stop-color="#fffbe0"/><stop offset=".2" stop-color="#ffe08a" stop-opacity=".95"/><stop offset="1" stop-color="#ff9a30" stop-opacity="0"/></radialGradient>
<linearGradient id="dusk" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#2b4a6c"/><stop offset=".55" stop-color="#b98a7c"/><stop offset=".62" stop-color="#2d4a5e"/><stop offset="1" stop-color="#12222f"/></linearGradient>
<linearGradient id="coat" x1="0" y1="0" x2="1" y2=".3"><stop offset="0" stop-color="#3f587a"/><stop offset=".35" stop-color="#22344f"/><stop offset="1" stop-color="#0a111e"/></linearGradient>
<linearGradient id="lapel" x1="0" y1="0" x2="1" y2=".4"><stop offset="0" stop-color="#54719a"/><stop offset="1" stop-color="#16233a"/></linearGradient>
<linearGradient id="linen" x1="0" y1="0" x2="1" y2="0"><stop offset="0" stop-color="#fff6df"/><stop offset=".5" stop-color="#e2d0ae"/><stop offset="1" stop-color="#8b8078"/></linearGradient>
<linearGradient id="skin" x1="0" y1=".2" x2="1" y2=".45"><stop offset="0" stop-color="#ffd9aa"/><stop offset=".36" stop-color="#eeb283"/><stop offset=".62" stop-color="#cc8557"/><stop offset=".86" stop-color="#8a4f38"/><stop offset="1" stop-color="#5c3430"/></linearGradient>
<linearGradient id="neck" x1="0" y1="0" x2="1" y2=".3"><stop offset="0" stop-color="#d59a6a"/><stop offset=".45" stop-color="#9d6242"/><stop offset="1" stop-color="#4b2a26"/></linearGradient>
<linearGradient id="crown" x1="0" y1="0" x2="1" y2=".2"><stop offset="0" stop-color="#4f6c92"/><stop offset=".4" stop-color="#25395a"/><stop offset="1" stop-color="#0b1220"/></linearGradient>
<linearGradient id="band" x1="0" y1="0" x2="1" y2="0"><stop offset="0" stop-color="#37486a"/><stop offset=".4" stop-color="#131b2c"/><stop offset="1" stop-color="#06090f"/></linearGradient>
<linearGradient id="gold" x1="0" y1="0" x2="1" y2=".3"><stop offset="0" stop-color="#fff2b6"/><stop offset=".4" stop-color="#dfa944"/><stop offset="1" stop-color="#6f4713"/></linearGradient>
<linearGradient id="peak" x1="0" y1="0" x2="1" y2=".6"><stop offset="0" stop-color="#6e7a8c"/><stop offset=".3" stop-color="#1c2028"/><stop offset="1" stop-color="#040507"/></linearGradient>
<linearGradient id="iris" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#22303a"/><stop offset="1" stop-color="#6f93a0"/></linearGradient>
<filter id="b3" x="-50%" y="-50%" width="200%" height="200%"><feGaussianBlur stdDeviation="3"/></filter>
<filter id="b7" x="-50%" y="-50%" width="200%" height="200%"><feGaussianBlur stdDeviation="7"/></filter>
<filter id="b14" x="-50%" y="-50%" width="200%" height="200%"><feGaussianBlur stdDeviation="14"/></filter>
<filter id="b26" x="-80%" y="-80%" width="260%" height="260%"><feGaussianBlur stdDeviation="26"/></filter>
"""


def cabin():
    """A panelled wall, the lamp at the upper left, dusk in a porthole behind the shoulder."""
    b = '<rect width="800" height="1040" fill="url(#wall)"/><g filter="url(#b7)">'
    for x in (60, 214, 372, 530, 688):
        b += f'<path d="M{x} 0V1040" stroke="#160c08" stroke-width="9" opacity=".6"/><path d="M{x + 9} 0V1040" stroke="#d08a48" stroke-width="4" opacity=".22"/>'
    b += '<circle cx="690" cy="400" r="118" fill="#3a2410"/><circle cx="690" cy="400" r="112" fill="none" stroke="url(#gold)" stroke-width="24"/><circle cx="690" cy="400" r="92" fill="url(#dusk)"/><circle cx="740" cy="428" r="7" fill="#ffd67a"/></g>'
    b += '<g filter="url(#b7)"><path d="M128 0V110" stroke="#1b120c" stroke-width="9"/><path d="M66 170Q128 70 190 170Z" fill="#a8702a"/><rect x="92" y="170" width="72" height="112" rx="24" fill="#fff0b0"/><path d="M74 282H182L164 320H92Z" fill="#7d4f1c"/></g>'
    return b + '<circle cx="128" cy="225" r="380" fill="url(#lamp)" opacity=".55"/>'


def button(x, y, r=17):
    return (f'<circle cx="{x + 3}" cy="{y + 5}" r="{r}" fill="#04070c" opacity=".7" filter="url(#b3)"/><circle cx="{x}" cy="{y}" r="{r}" fill="url(#gold)"/>'
            f'<circle cx="{x}" cy="{y}" r="{r * .62}" fill="none" stroke="#6d4612" stroke-width="2.5" opacity=".8"/><circle cx="{x - r * .35}" cy="{y - r * .4}" r="{r * .24}" fill="#fffbe2"/>')


def coat(width):
    """A double-breasted coat, collar and tie; `width` from the middle to a shoulder."""
    l, r = 400 - width, 400 + width
    b = f'<path d="M{l - 40} 1040Q{l - 30} 872 {l + 44} 830Q300 792 322 742Q400 812 478 742Q500 792 {r - 44} 830Q{r + 30} 872 {r + 40} 1040Z" fill="url(#coat)"/>'
    b += f'<path d="M{l + 44} 830Q300 792 322 748Q260 800 {l + 10} 846Z" fill="#7d95b8" opacity=".5" filter="url(#b7)"/>'
    b += f'<path d="M{r - 70} 850Q{r - 10} 900 {r - 20} 1040H{r + 60}V850Z" fill="#05080f" opacity=".55" filter="url(#b14)"/>'
    b += '<path d="M330 752Q400 806 470 752L400 900Z" fill="url(#linen)"/><path d="M384 806H416L426 900L400 938L374 900Z" fill="#7d2019"/><path d="M384 806H402L392 912L374 898Z" fill="#b2402e"/><path d="M382 800H418L410 826H390Z" fill="#8f2a20"/>'
    b += '<path d="M322 742Q310 772 352 820L400 800L350 748Z" fill="url(#linen)"/><path d="M478 742Q490 772 448 820L400 800L450 748Z" fill="#a39583"/><path d="M322 744Q312 772 352 820" fill="none" stroke="#6b5136" stroke-width="3" opacity=".6"/>'
    b += f'<path d="M318 756Q270 800 {l + 84} 822L300 896L282 920L398 1040H432Q366 900 330 768Z" fill="url(#lapel)"/><path d="M482 756Q530 800 {r - 84} 822L500 896L518 920L410 1040H420Q446 900 470 768Z" fill="#13203a"/>'
    b += f'<path d="M318 758Q270 800 {l + 84} 822L300 896L282 920L398 1040" fill="none" stroke="#9ab0cf" stroke-width="3.5" opacity=".55"/><path d="M482 756Q530 800 {r - 84} 822L500 896L518 920L410 1040" fill="none" stroke="#03060c" stroke-width="5" opacity=".7"/>'
    for y in (930, 1006):
        b += button(296, y) + button(508, y)
    return b


def eye(x, y, side, lashes):
    """`side` -1 for the lit one. The upper lid shades it."""
    white = "#fff3e0" if side < 0 else "#c9ab95"
    b = f'<ellipse cx="{x}" cy="{y - 4}" rx="46" ry="30" fill="#6e3a26" opacity=".34" filter="url(#b7)"/>'
    b += f'<path d="M{x - 32} {y + 3}Q{x - 8} {y - 20} {x + 30} {y}Q{x + 4} {y + 17} {x - 32} {y + 3}Z" fill="{white}"/>'
    b += f'<clipPath id="eye{side}"><path d="M{x - 32} {y + 3}Q{x - 8} {y - 20} {x + 30} {y}Q{x + 4} {y + 17} {x - 32} {y + 3}Z"/></clipPath><g clip-path="url(#eye{side})"><circle cx="{x - 3}" cy="{y - 1}" r="14.500" fill="url(#iris)" stroke="#18222a" stroke-width="2"/><circle cx="{x - 3}" cy="{y - 1}" r="6.500" fill="#07090c"/><path d="M{x - 40} {y - 14}H{x + 40}V{y - 6}Q{x} {y - 14} {x - 40} {y}Z" fill="#3a1a10" opacity=".5" filter="url(#b3)"/></g>'
    b += f'<circle cx="{x - 8}" cy="{y - 6}" r="4" fill="#fff"/>'
    b += f'<path d="M{x - 35} {y + 4}Q{x - 8} {y - 22} {x + 33} {y}" fill="none" stroke="#2a130c" stroke-width="{6 + lashes}" stroke-linecap="round"/><path d="M{x - 24} {y + 12}Q{x + 4} {y + 21} {x + 26} {y + 5}" fill="none" stroke="#7a4530" stroke-width="2.500" opacity=".6"/>'
    b += f'<path d="M{x - 34} {y - 13}Q{x - 6} {y - 36} {x + 32} {y - 15}" fill="none" stroke="#8a4f34" stroke-width="3" opacity=".7"/>'
    if lashes:
        out = x - 34 if side < 0 else x + 33
        b += f'<path d="M{out} {y + 1}l{side * 11} -7M{out - side * 9} {y - 6}l{side * 9} -9" stroke="#2a130c" stroke-width="4" stroke-linecap="round"/>'
    return b


def nose(strength):
    b = f'<path d="M404 470Q440 560 436 592Q420 610 398 606L400 520Z" fill="#7b432e" opacity="{.42 * strength}" filter="url(#b7)"/>'
    b += '<path d="M392 480Q384 540 388 574" fill="none" stroke="#ffe6c2" stroke-width="12" opacity=".6" filter="url(#b7)"/><ellipse cx="390" cy="582" rx="14" ry="9" fill="#ffeacb" opacity=".55" filter="url(#b7)"/>'
    b += '<path d="M366 596Q358 586 366 574" fill="none" stroke="#a3603f" stroke-width="5" opacity=".7" filter="url(#b3)"/><path d="M372 604Q386 598 396 606Q408 600 426 602" fill="none" stroke="#5b2a1c" stroke-width="5" opacity=".8" filter="url(#b3)"/>'
    b += '<path d="M430 574Q442 590 428 602" fill="none" stroke="#6b3624" stroke-width="5" opacity=".7" filter="url(#b3)"/>'
    return b


def cap(badge_y, tilt):
    """A peaked cap: crown, band with the mail's badge, gold cord, lacquered peak whose shade falls on the brow."""
    b = f'<g transform="rotate({tilt} 400 330)">'
    b += '<path d="M232 300Q196 250 214 206Q262 118 400 112Q540 118 590 210Q604 256 566 304Q400 246 232 300Z" fill="url(#crown)"/>'
    b += '<path d="M222 210Q290 136 400 130Q330 170 262 262Q228 268 222 210Z" fill="#8ba3c6" opacity=".42" filter="url(#b14)"/><path d="M214 206Q262 118 400 112Q540 118 590 210" fill="none" stroke="#a9bedb" stroke-width="4" opacity=".5" filter="url(#b3)"/>'
    b += '<path d="M232 292Q400 236 566 296L560 366Q400 312 240 362Z" fill="url(#band)"/><path d="M236 340Q400 290 562 344" fill="none" stroke="url(#gold)" stroke-width="11"/><path d="M236 340Q400 290 562 344" fill="none" stroke="#5b3a10" stroke-width="11" stroke-dasharray="3 9" opacity=".55"/>'
    b += button(246, 342, 13) + button(556, 346, 13)
    y = badge_y
    b += f'<g transform="translate(398,{y})"><ellipse rx="40" ry="34" fill="#0a101c"/><path d="M-40 8Q-52 -22 -22 -36M40 8Q52 -22 22 -36M-40 8Q-20 40 0 40Q20 40 40 8" fill="none" stroke="url(#gold)" stroke-width="9" stroke-linecap="round" stroke-dasharray="11 4"/>'
    b += '<path d="M-34 -10Q-14 -20 -2 -2Q10 -24 36 -18Q18 -8 8 8Q2 18 -8 14Q-8 2 -34 -10Z" fill="url(#gold)"/><path d="M0 -46L5 -36L16 -36L7 -29L11 -18L0 -25L-11 -18L-7 -29L-16 -36L-5 -36Z" fill="url(#gold)"/></g>'
    b += '<path d="M240 364Q400 300 560 366Q596 396 560 418Q400 356 236 416Q206 392 240 364Z" fill="url(#peak)"/><path d="M246 372Q330 332 420 336Q330 346 256 396Q232 388 246 372Z" fill="#dfe8f4" opacity=".6" filter="url(#b7)"/><path d="M236 415Q400 356 560 417" fill="none" stroke="#000" stroke-width="5"/></g>'
    return b


def brow_shade(tilt):
    return f'<path transform="rotate({tilt} 400 330)" d="M236 400Q400 352 562 404L556 446Q400 400 246 440Z" fill="#4a2116" opacity=".62" filter="url(#b14)"/>'


def man():
    face = "M262 400Q254 520 276 590Q300 680 356 716Q400 738 446 716Q504 680 526 588Q546 520 540 400Z"
    b = '<path d="M250 380Q238 470 262 540L290 520V380ZM556 380Q566 470 540 544L516 520V380Z" fill="#5a2c16"/><path d="M252 384Q244 470 264 530" fill="none" stroke="#b5672e" stroke-width="9" opacity=".7" filter="url(#b3)"/>'
    b += '<path d="M338 660V760Q400 822 466 756V650Z" fill="url(#neck)"/><path d="M338 690Q400 756 470 668V756Q420 800 338 752Z" fill="#2d1512" opacity=".6" filter="url(#b14)"/>'
    b += coat(300)
    # ears
    b += '<path d="M262 484Q232 470 236 516Q242 560 270 566Z" fill="#e2a274"/><path d="M258 500Q244 500 250 528Q256 546 266 550" fill="none" stroke="#a3603f" stroke-width="5"/><path d="M540 484Q566 474 562 518Q556 560 532 566Z" fill="#6b3b2c"/>'
    b += f'<clipPath id="face"><path d="{face}"/></clipPath><path d="{face}" fill="url(#skin)"/><g clip-path="url(#face)">'
    b += '<ellipse cx="318" cy="580" rx="58" ry="44" fill="#e2734e" opacity=".36" filter="url(#b14)"/><ellipse cx="480" cy="586" rx="46" ry="40" fill="#8d3a2a" opacity=".34" filter="url(#b14)"/><ellipse cx="312" cy="536" rx="46" ry="22" fill="#ffe9c8" opacity=".55" filter="url(#b14)"/>'
    b += '<path d="M500 420Q560 560 470 720H580V400Z" fill="#2d1620" opacity=".5" filter="url(#b26)"/>' + brow_shade(-2) + "</g>"
    b += eye(334, 500, -1, 0) + eye(462, 500, 1, 0)
    b += '<path d="M290 466Q326 440 372 462L370 474Q326 456 292 476Z" fill="#5f2f16"/><path d="M428 462Q474 442 508 468L506 478Q472 458 430 474Z" fill="#47220f"/>'
    b += nose(1)
    b += '<path d="M372 668Q398 662 430 668Q420 686 398 686Q382 684 372 668Z" fill="#9c4a38"/><path d="M372 667Q398 672 430 667" fill="none" stroke="#4b1a14" stroke-width="4"/>'
    # beard and moustache, in strands
    b += '<path d="M264 540Q272 640 318 708Q356 764 404 766Q456 762 492 704Q530 640 538 540Q520 600 496 634Q460 650 436 646Q400 636 362 646Q330 650 304 632Q280 600 264 540ZM362 664Q400 656 442 664Q436 696 400 700Q370 696 362 664Z" fill="#7b4220" fill-rule="evenodd"/>'
    rng = np.random.default_rng(4)
    for _ in range(230):
        t = rng.uniform(-1, 1)
        x = 400 + 132 * t
        y0 = 640 + rng.uniform(-70, 60) * abs(t) + rng.uniform(0, 60) * (1 - abs(t)) + 44 * (1 - abs(t))
        if 354 < x < 446 and y0 < 704 or abs(t) > .8 and y0 > 660:
            continue
        light = "#d58a48" if x < 380 else "#a05f30" if x < 450 else "#55290f"
        b += f'<path d="M{x:.0f} {y0:.0f}q{-8 * t + rng.uniform(-4, 4):.0f} {22:.0f} {-22 * t:.0f} {rng.uniform(26, 48):.0f}" fill="none" stroke="{light}" stroke-width="{rng.uniform(2, 4.5):.1f}" opacity=".7" stroke-linecap="round"/>'
    b += '<path d="M398 618Q340 612 316 660Q348 664 398 648Q452 664 484 658Q458 612 398 618Z" fill="#87491f"/>'
    for i in range(22):
        t = i / 21 * 2 - 1
        light = "#e09a54" if t < 0 else "#9c5c2c"
        b += f'<path d="M{398 + 12 * t:.0f} {622}q{38 * t:.0f} {4 + 4 * abs(t):.0f} {76 * t:.0f} {rng.uniform(26, 40):.0f}" fill="none" stroke="{light}" stroke-width="2.600" opacity=".6"/>'
    return b + cap(318, -2)


def woman():
    face = "M276 400Q266 520 288 588Q314 664 366 704Q400 724 436 704Q488 664 512 586Q532 520 526 400Z"
    b = '<ellipse cx="400" cy="560" rx="164" ry="150" fill="#2c1610"/><ellipse cx="548" cy="640" rx="70" ry="66" fill="#241310"/><path d="M508 600Q560 580 606 640Q590 690 540 700" fill="none" stroke="#5c3220" stroke-width="8" opacity=".7" filter="url(#b3)"/>'
    b += '<path d="M346 650V770Q400 826 452 764V640Z" fill="url(#neck)"/><path d="M346 684Q400 746 456 660V752Q414 800 346 748Z" fill="#33181a" opacity=".58" filter="url(#b14)"/>'
    b += coat(252)
    b += f'<clipPath id="face"><path d="{face}"/></clipPath><path d="{face}" fill="url(#skin)"/><g clip-path="url(#face)">'
    b += '<ellipse cx="322" cy="592" rx="54" ry="42" fill="#ea7c5c" opacity=".46" filter="url(#b14)"/><ellipse cx="474" cy="594" rx="46" ry="40" fill="#a24a36" opacity=".4" filter="url(#b14)"/><ellipse cx="318" cy="546" rx="44" ry="20" fill="#fff0d6" opacity=".6" filter="url(#b14)"/>'
    b += '<path d="M496 420Q548 560 466 708H580V400Z" fill="#331a22" opacity=".44" filter="url(#b26)"/><ellipse cx="396" cy="690" rx="34" ry="16" fill="#ffe0b8" opacity=".4" filter="url(#b7)"/>' + brow_shade(-4) + "</g>"
    b += eye(338, 506, -1, 3) + eye(460, 504, 1, 3)
    b += '<path d="M298 470Q330 446 374 464" fill="none" stroke="#432013" stroke-width="8" stroke-linecap="round"/><path d="M428 462Q470 446 502 468" fill="none" stroke="#331810" stroke-width="8" stroke-linecap="round"/>'
    b += nose(.75)
    b += '<path d="M352 646Q380 636 398 643Q416 636 448 645Q420 660 398 658Q376 660 352 646Z" fill="#a8402f"/><path d="M360 651Q398 664 440 649Q424 682 398 682Q374 680 360 651Z" fill="#c95f4a"/><ellipse cx="388" cy="668" rx="14" ry="5" fill="#ffc0a4" opacity=".7" filter="url(#b3)"/><path d="M347 642Q374 657 398 656Q422 657 453 641" fill="none" stroke="#5a1a14" stroke-width="4.500" stroke-linecap="round"/><path d="M338 634Q334 646 342 654M462 633Q466 646 458 653" fill="none" stroke="#8a4632" stroke-width="4" opacity=".55" filter="url(#b3)"/>'
    # hair swept back from the temples, a loose curl on the lit side
    rng = np.random.default_rng(9)
    b += '<path d="M254 392Q234 500 266 598Q276 560 282 528Q280 460 304 408ZM546 392Q566 500 534 600Q526 560 520 528Q522 460 498 408Z" fill="#3a1d12"/>'
    for i in range(20):
        t = i / 19
        x = 252 + 46 * t
        light = "#a8683a" if t < .5 else "#6e3c20"
        b += f'<path d="M{x:.0f} 396Q{x - 16 + 10 * t:.0f} 480 {262 + 14 * t + rng.uniform(-3, 3):.0f} {600 - 50 * t:.0f}" fill="none" stroke="{light}" stroke-width="{rng.uniform(2, 4):.1f}" opacity=".75"/>'
        b += f'<path d="M{800 - x:.0f} 396Q{816 - x - 10 * t:.0f} 480 {538 - 14 * t:.0f} {600 - 50 * t:.0f}" fill="none" stroke="#5a301c" stroke-width="{rng.uniform(2, 4):.1f}" opacity=".6"/>'
    b += '<path d="M278 560Q250 620 276 664Q292 690 272 716" fill="none" stroke="#4a2616" stroke-width="9" stroke-linecap="round"/><path d="M276 562Q248 620 274 664Q290 690 270 714" fill="none" stroke="#a8683a" stroke-width="3.500" stroke-linecap="round"/>'
    b += '<circle cx="273" cy="602" r="7" fill="url(#gold)"/>'
    return b + cap(318, -4)


def brush(pixels, radius):
    """Each pixel takes the mean of that quarter around it which varies least: flat touches with firm edges."""
    size = radius + 1
    grey = pixels.mean(axis=2)
    mean = np.dstack([uniform_filter(pixels[..., c], size) for c in range(3)])
    spread = uniform_filter(grey * grey, size) - uniform_filter(grey, size) ** 2
    half = radius // 2 + 1
    h, w = grey.shape
    spread = np.pad(spread, half, mode="edge")
    mean = np.pad(mean, ((half, half), (half, half), (0, 0)), mode="edge")
    best, out = np.full(grey.shape, np.inf), pixels.copy()
    for y, x in ((0, 0), (0, 2 * half), (2 * half, 0), (2 * half, 2 * half)):
        s, m = spread[y:y + h, x:x + w], mean[y:y + h, x:x + w]
        take = s < best
        best[take], out[take] = s[take], m[take]
    return out


def painted(body):
    drawn = raster(W * SCALE, H * SCALE, body, DEFS)
    pixels = np.array(drawn)[..., :3].astype(float)
    soft = brush(brush(pixels, 8), 5)
    pixels = 0.6 * pixels + 0.4 * soft
    rng = np.random.default_rng(3)
    h, w = pixels.shape[:2]
    hairs = gaussian_filter(rng.standard_normal((h, w)), (2, 9)) * 40
    pixels *= (1 + 0.007 * np.clip(hairs, -3, 3))[..., None]
    y, x = np.mgrid[0:h, 0:w]
    edge = np.hypot((x / w - .46) / .75, (y / h - .5) / .78)
    pixels *= (1 - .5 * np.clip(edge - .55, 0, 1))[..., None]
    return Image.fromarray(np.clip(pixels, 0, 255).astype(np.uint8)).resize((W, H), Image.LANCZOS).convert("RGBA")


def frame():
    """A carved frame of brass around a portrait; 224 x 284."""
    body = f'<g filter="url(#deep)"><path d="M4 4H218V278H4ZM15 15V267H207V15Z" fill="{INK}" fill-rule="evenodd"/></g>' + rim("M10 10H212V272H10Z", 9)
    for x, y, turn in ((8, 8, 0), (214, 8, 90), (214, 274, 180), (8, 274, 270)):
        body += brass_corner(x, y, 24, turn)
    save("gui/newplayer/frame.png", 224, 284, body, colours=128)


def field():
    """A ruled strip of paper for the name; 380 x 56."""
    body = f'<g filter="url(#shadow)"><rect x="4" y="4" width="368" height="44" rx="5" fill="{INK}"/></g>' + sheet(4, 4, 368, 44, 5) + rim("M4 4H372V48H4Z", 3)
    body += '<path d="M20 39H356" stroke="#6b4316" stroke-width="1.2" opacity=".5"/>'
    save("gui/newplayer/name.png", 380, 56, body, colours=192)


def main():
    for name, figure in (("m", man), ("f", woman)):
        pack(painted(cabin() + f'<g transform="translate(396,520) scale(1.2) rotate(-1.5) translate(-400,-500)">{figure()}</g>'), f"gui/newplayer/character1{name}.png", 256)
    frame()
    field()


if __name__ == "__main__":
    main()
