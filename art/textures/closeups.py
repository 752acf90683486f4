#!/usr/bin/python3
"""Image maps of the quay's close-ups: barometer, telegraph, signal flag, postcard, the labels of a stamp, a tin and a crate, a notice."""
import math

from PIL import Image, ImageDraw, ImageFilter

from paint import OUT, T, seascape, svg


def barometer():
    body = '<rect width="512" height="512" fill="#efe4c6"/><circle cx="256" cy="256" r="238" fill="none" stroke="#2a1a0c" stroke-width="4"/><circle cx="256" cy="256" r="150" fill="none" stroke="#2a1a0c" stroke-width="2"/>'
    for i in range(61):
        a = -135 + i * 4.5
        body += f'<line x1="256" y1="22" x2="256" y2="{50 if i % 5 == 0 else 38}" stroke="#2a1a0c" stroke-width="{6 if i % 5 == 0 else 3}" transform="rotate({a} 256 256)"/>'
    for word, a in (('STORM', -112), ('RAIN', -62), ('CHANGE', 0), ('FAIR', 62), ('DRY', 112)):
        body += f'<g transform="rotate({a} 256 256)">' + T(word, 256, 96, 44, 'Old Standard TT', '#7a1f18' if a == 0 else '#2a1a0c', 'font-weight="bold"') + '</g>'
    svg('barometer', 512, 512, body + T('Port Merrow', 256, 372, 34, 'EB Garamond', ex='font-style="italic"'))


def telegraph():
    body = '<rect width="512" height="512" fill="#f2ead0"/><circle cx="256" cy="256" r="236" fill="none" stroke="#1d1a16" stroke-width="6"/><circle cx="256" cy="256" r="104" fill="#23384a"/>'
    for i in range(8):
        body += f'<line x1="256" y1="20" x2="256" y2="152" stroke="#1d1a16" stroke-width="5" transform="rotate({22.5 + i * 45} 256 256)"/>'
    for word, a in (('STOP', 0), ('SLOW', 45), ('HALF', 90), ('FULL', 135), ('FULL', -135), ('HALF', -90), ('SLOW', -45)):
        body += f'<g transform="rotate({a} 256 256)">' + T(word, 256, 112, 52, 'Roboto Slab', '#9c1c18' if a < 0 else '#1d1a16', 'font-weight="bold"') + '</g>'
    svg('telegraph', 512, 512, body + T('PETREL', 256, 274, 46, 'Old Standard TT', '#e8c878', 'font-weight="bold"'))


def flag():
    svg('flag', 384, 288, '<rect width="384" height="288" fill="#f0ead8"/><rect y="0" width="384" height="288" fill="#1d3f78"/><rect x="48" y="48" width="288" height="192" fill="#f0ead8"/><rect x="112" y="96" width="160" height="96" fill="#b4231e"/>')


def postcard():
    picture, _ = seascape('postcard', 640, 436, 12, (.30, .50, .80), (.98, .80, .62), (.30, .58, .66), (.08, .24, .36), .68, .34)
    image = Image.fromarray((picture * 255).astype('uint8'))
    draw = ImageDraw.Draw(image)
    draw.polygon([(0, 300), (0, 226), (90, 190), (190, 216), (250, 262), (300, 290), (240, 318)], fill=(70, 84, 70))
    draw.polygon([(112, 200), (124, 92), (150, 92), (162, 200)], fill=(240, 232, 220))
    for low, high in ((186, 160), (136, 112)):
        draw.polygon([(112 + (200 - low) * .11, low), (112 + (200 - high) * .11, high), (162 - (200 - high) * .11, high), (162 - (200 - low) * .11, low)], fill=(190, 50, 40))
    draw.rectangle([126, 70, 148, 92], fill=(255, 226, 140)); draw.polygon([(120, 70), (137, 50), (154, 70)], fill=(120, 40, 36))
    image = image.filter(ImageFilter.GaussianBlur(.8))
    image.save(f'{OUT}/postcard_view.png')
    edge = '<rect width="680" height="462" fill="#f6f0de"/><image href="postcard_view.png" x="20" y="20" width="640" height="422"/>'
    svg('postcard', 680, 462, edge + T('Greetings from', 420, 108, 64, 'EB Garamond', '#7a1f18', 'font-style="italic"') + T('PORT MERROW', 372, 400, 66, 'Old Standard TT', '#fff4d8', 'font-weight="bold" stroke="#203a52" stroke-width="2"'))


def labels():
    svg('stamplabel', 400, 130, '<rect width="400" height="130" fill="#efe2c0"/>' + T('POSTED', 200, 98, 92, 'Old Standard TT', '#7a1f18', 'font-weight="bold"'))
    svg('sardines', 860, 140, '<rect width="860" height="140" fill="#b8321f"/><rect y="8" width="860" height="124" fill="none" stroke="#f2d27a" stroke-width="6"/>' + T('SARDINES', 430, 104, 96, 'Old Standard TT', '#f7e3a4', 'font-weight="bold"'))
    svg('cratelabel', 512, 256, '<rect width="512" height="256" fill="#e6d6ae"/><rect x="14" y="14" width="484" height="228" fill="none" stroke="#5a2a18" stroke-width="8"/>' + T('ROYAL COAST MAIL', 256, 92, 50, 'Old Standard TT', '#5a2a18', 'font-weight="bold"') + T('S.S. PETREL', 256, 158, 56, 'Roboto Slab', '#1d3f58', 'font-weight="bold"') + T('keep dry', 256, 216, 46, 'EB Garamond', '#5a2a18', 'font-style="italic"'))


def notice():
    body = '<rect width="420" height="560" fill="#f0e6ca"/><rect x="16" y="16" width="388" height="528" fill="none" stroke="#24405c" stroke-width="5"/>' + T('SAILINGS', 210, 92, 66, 'Old Standard TT', '#24405c', 'font-weight="bold"')
    for i, (place, time) in enumerate((('Port Merrow', '6.40'), ('Saint Bride', '8.15'), ('Lantern Cove', '9.50'), ('Gull Rock', '11.20'), ('Far Light', '1.05'))):
        y = 180 + i * 68
        body += f'<text x="44" y="{y}" font-family="EB Garamond" font-size="44" fill="#2a1a0c">{place}</text><text x="376" y="{y}" font-family="EB Garamond" font-size="44" fill="#8c2a1c" text-anchor="end">{time}</text><line x1="40" y1="{y + 16}" x2="380" y2="{y + 16}" stroke="#b59a66" stroke-width="2"/>'
    svg('notice', 420, 560, body + T('S.S. Petrel', 210, 524, 40, 'EB Garamond', '#24405c', 'font-style="italic"'))


barometer()
telegraph()
flag()
postcard()
labels()
notice()
