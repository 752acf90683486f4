#!/usr/bin/python3
"""Makes the pictures of a scene: renders it, cuts its things out and writes what the game reads.

    tools/scene.py preview SCENE          half size, everything in place, to look at (work/SCENE/preview.png)
    tools/scene.py masks SCENE [NUMBER...] silhouettes of the things, nine samples a pixel (of these things alone, the room being as it was)
    tools/scene.py bare SCENE             the room without its things, full size (the long step; goes on where it stopped)
    tools/scene.py full SCENE             the same with them, only in the rectangles around them (needs the masks)
    tools/scene.py solo SCENE NUMBER...   things that another one half hides, each alone (check names them)
    tools/scene.py cut SCENE              grades both, cuts every thing out, writes ../data/scenes/SCENE
    tools/scene.py check SCENE            pastes what was written back together and compares it with the render

Run from art/.  scenes/SCENE/SCENE.tsv lists the things in drawing order: number in things.inc, entry name, page (p0, p1, ...) or loose.
A row with - for the number is a picture of data/common, drawn right over the background, with its centre instead of a page.
A row with + for the number is an animation, particles or a task, painted behind the last thing, with its place in pixels of the picture.

A close-up is a picture of its own, SCENE/NAME: scenes/SCENE/closeups/NAME.pov, NAME_things.inc and NAME.tsv.  The head of its table says
"# size: 760 520", "# centre: 0 -34" (where its middle lies in the scene) and, if it is to have one, "# frame: 22", the width of the frame
laid over its edge.  Its cut writes its block of coords.txt: in the place of the former one, or behind all others.

In any table, a row with the word door for the number is a door: a crop of the picture's own background with a rim of light, painted before the things.
Behind its entry name stand the corners of its outline, x,y x,y ..., in pixels of the picture.
"""
import os
import re
import subprocess
import sys

import numpy as np
from PIL import Image, ImageDraw, ImageFilter
from scipy.ndimage import distance_transform_edt, gaussian_filter, label

FINE = 3         # samples a side of a pixel in a silhouette
RIM = 2.5        # how far the rim of light of a door reaches in
RIM_COLOUR = (1, .86, .6)
SHADOW = 4.0     # a thing keeps its contact shadow this far beyond its outline: what is drawn can be hit
PAGE = 2048
THREADS = os.environ.get('THREADS', '2')


class Picture:
    """A picture to render: the room of a scene ('quay') or one of its close-ups ('quay/crate')."""

    def __init__(self, path):
        self.scene, _, self.closeup = path.partition('/')
        stem = f'scenes/{self.scene}/closeups/{self.closeup}' if self.closeup else f'scenes/{self.scene}/{self.scene}'
        self.source, self.table = f'{stem}.pov', f'{stem}.tsv'
        self.things = f'{stem}_things.inc' if self.closeup else f'scenes/{self.scene}/things.inc'
        self.work, self.target = f'work/{path}', f'../data/scenes/{self.scene}'
        self.background = f'Background{(self.closeup or self.scene).capitalize()}.jpg'
        self.width, self.height = self.head('size', (1366, 768))
        self.centre = self.head('centre', (0, 0))
        self.frame = self.head('frame', (0,))[0]

    def head(self, key, default):
        found = re.search(rf'^# {key}: *(.*)', open(self.table).read(), re.M)
        return tuple(int(v) for v in found[1].split()) if found else default

    def rows(self):
        for line in open(self.table):
            if line.strip() and not line.startswith('#'):
                yield line.split()


def things(p):
    """Number, entry name and page of everything that is cut out of the render."""
    return [(int(row[0]), *row[1:]) for row in p.rows() if row[0].isdigit()]


def shared(p):
    """Entry name and centre of the pictures from data/common, in pixels of the picture."""
    return placed(p, '-')


def placed(p, kind):
    return [(row[1], *(int(v) for v in row[2].split(','))) for row in p.rows() if row[0] == kind]


def doors(p):
    """Entry name and outline of the doors that show a piece of the background, in pixels of the picture."""
    return [(row[1], [tuple(int(v) for v in corner.split(',')) for corner in row[2:]]) for row in p.rows() if row[0] == 'door']


def povray(p, out, width, height, *options, source='', **declared):
    command = ['nice', '-n', os.environ.get('NICE', '5'), 'povray', source or p.source, '-D', '+L.', f'+W{width}', f'+H{height}', f'+O{out}', f'+WT{THREADS}', *options]
    command += [f'Declare={key}={value}' for key, value in declared.items()]
    result = subprocess.run(command, stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, text=True, errors='replace')
    if result.returncode:
        lines = [line for line in result.stderr.splitlines() if 'Error' in line]
        sys.exit('\n'.join(lines) or result.stderr[-400:])


def pixels(path):
    return np.asarray(Image.open(path).convert('RGB')).astype(np.float64) / 255


def preview(p):
    povray(p, f'{p.work}/preview.png', p.width // 2, p.height // 2, BOUNCE=1)


def bounds(mask, margin, width, height):
    ys, xs = np.nonzero(mask)
    return max(0, xs.min() - margin), max(0, ys.min() - margin), min(width, xs.max() + 1 + margin), min(height, ys.max() + 1 + margin)


def boxes(p):
    """Where each thing may be seen: its extent in the room, seen through the scene's camera.  One parse, no render."""
    work = p.work
    body = open(p.source).read()
    listed = open(p.things).read()
    listed = re.sub(r'#if\(Thing\((\d+)\)\)(.*?)#end$', lambda m: f'#if(Thing({m[1]})) #declare T_=union{{{m[2]}}} #local a_=min_extent(T_); #local b_=max_extent(T_); '
                    f'#write(Boxes,concat("{m[1]} ",vstr(3,a_," ",0,4)," ",vstr(3,b_," ",0,4),"\\n")) #end', listed, flags=re.S | re.M)
    body = body.replace(f'#include "{p.things}"', f'#fopen Boxes "{work}/boxes.txt" write\n{listed}\n#fclose Boxes\n')
    with open(f'{work}/boxes.pov', 'w') as file:
        file.write(body)
    newest = max(os.path.getmtime(entry) for entry in os.scandir(os.path.dirname(p.source)))
    if not os.path.exists(f'{work}/boxes.txt') or os.path.getmtime(f'{work}/boxes.txt') < newest:
        povray(p, f'{work}/boxes.png', 16, 8, '-A', '+Q0', source=f'{work}/boxes.pov', SHOW=-1)
    place = lambda key: np.array([float(v) for v in re.search(rf'camera{{.*?{key}\s*<([^>]*)>', body)[1].split(',')])
    eye, forward = place('location'), place('direction')
    across = float(re.search(r'right x\*([\d.]+)', body)[1])
    found = {}
    for line in open(f'{work}/boxes.txt'):
        number, *corner = (float(v) for v in line.split())
        low, high = np.array(corner[:3]), np.array(corner[3:])
        corners = np.array([[(low, high)[i][0], (low, high)[j][1], (low, high)[k][2]] for i in (0, 1) for j in (0, 1) for k in (0, 1)]) - eye
        depth = np.maximum(corners[:, 2], .1)
        x = p.width / 2 + (corners[:, 0] / depth - forward[0]) / across * p.width
        y = p.height / 2 - (corners[:, 1] / depth - forward[1]) / across * p.width
        box = [x.min() - 3, y.min() - 3, x.max() + 4, y.max() + 4]
        found[int(number)] = [int(np.clip(v, 0, (p.width, p.height)[n % 2])) for n, v in enumerate(box)]
    return found


def masks(p, only=()):
    work = p.work
    quick = ('+Q1', '-A')
    if not only or not os.path.exists(f'{work}/fine.png'):
        povray(p, f'{work}/fine.png', p.width * FINE, p.height * FINE, *quick, SHOW=0)
    fine, where = pixels(f'{work}/fine.png'), boxes(p)
    for number, name, _ in things(p):
        if only and number not in only:
            continue
        x0, y0, x1, y1 = where[number]
        povray(p, f'{work}/thing{number}.png', p.width * FINE, p.height * FINE, *quick, f'+SC{x0 * FINE + 1}', f'+SR{y0 * FINE + 1}', f'+EC{x1 * FINE}', f'+ER{y1 * FINE}', SHOW=number)
        part = np.s_[y0 * FINE:y1 * FINE, x0 * FINE:x1 * FINE]
        hit = np.abs(pixels(f'{work}/thing{number}.png')[part] - fine[part]).max(2) > 0
        if not hit.any():
            sys.exit(f'{name}: not seen in the picture')
        whole = np.zeros((p.height, p.width))
        os.remove(f'{work}/thing{number}.png')
        whole[y0:y1, x0:x1] = hit.reshape(y1 - y0, FINE, x1 - x0, FINE).mean((1, 3))
        Image.fromarray((whole * 255 + .5).astype('uint8')).save(f'{work}/mask{number}.png')
        print(number, name, 'x', x0, 'y', y0, 'pixels', int(whole.sum()), flush=True)


FINAL = ('+A' + os.environ.get('EDGE', '0.25'), '+AM2', '+R' + os.environ.get('DEPTH', '2'))     # EDGE=0.5 DEPTH=1 takes a third of the time


def bare(p):
    work = p.work
    povray(p, f'{work}/bare.png', p.width, p.height, *FINAL, '+C', f'+RF{work}/bounce.rca', '+RFO', SHOW=0, BOUNCE=1)


def join(boxes):
    """Boxes that touch become one, as long as that doesn't add much to render."""
    boxes, again = list(boxes), True
    area = lambda b: (b[2] - b[0]) * (b[3] - b[1])
    while again:
        again = False
        for i, a in enumerate(boxes):
            for b in boxes[i + 1:]:
                both = (min(a[0], b[0]), min(a[1], b[1]), max(a[2], b[2]), max(a[3], b[3]))
                if area(both) < (area(a) + area(b)) * 1.05 + 2500:
                    boxes.remove(a)
                    boxes.remove(b)
                    boxes.append(both)
                    again = True
                    break
            if again:
                break
    return boxes


def full(p):
    """The room with its things: only the rectangles around them differ from the bare room."""
    work = p.work
    picture = Image.open(f'{work}/bare.png').convert('RGB')
    boxes = []
    for cover in coverage(p).values():
        boxes.append(tuple(int(v) for v in bounds(cover > 0, 8, p.width, p.height)))
    os.makedirs(f'{work}/parts', exist_ok=True)
    for box in join(boxes):
        x0, y0, x1, y1 = box
        part = f'{work}/parts/{x0}-{y0}-{x1}-{y1}.png'
        if not os.path.exists(part):
            povray(p, f'{work}/part.png', p.width, p.height, *FINAL, f'+RF{work}/bounce.rca', '+RFI', f'+SC{x0 + 1}', f'+SR{y0 + 1}', f'+EC{x1}', f'+ER{y1}', SHOW=-1, BOUNCE=1)
            Image.open(f'{work}/part.png').convert('RGB').crop(box).save(part)
            print(part, flush=True)
        picture.paste(Image.open(part), (x0, y0))
    picture.save(f'{work}/full.png')


def solo(p, numbers):
    """Things that another one half hides: each alone, so that it is whole when the other one is taken first."""
    work = p.work
    covers = covers_clean(p)
    for number in numbers:
        box = tuple(int(v) for v in bounds(covers[number] > 0, 8, p.width, p.height))
        povray(p, f'{work}/part{number}.png', p.width, p.height, *FINAL, f'+RF{work}/bounce.rca', '+RFI', f'+SC{box[0] + 1}', f'+SR{box[1] + 1}', f'+EC{box[2]}', f'+ER{box[3]}', SHOW=number, BOUNCE=1)
        picture = Image.open(f'{work}/bare.png').convert('RGB')
        picture.paste(Image.open(f'{work}/part{number}.png').convert('RGB').crop(box), box[:2])
        picture.save(f'{work}/solo{number}.png')
        os.remove(f'{work}/part{number}.png')


def covers_clean(p):
    """What each thing covers, without the specks where surfaces of the room coincide and a ray meets now one, now the other."""
    covers = {}
    for number, _, _ in things(p):
        cover = np.asarray(Image.open(f'{p.work}/mask{number}.png')).astype(np.float64) / 255
        cover[cover < .12] = 0
        parts, count = label(cover > 0, np.ones((3, 3)))
        size = np.bincount(parts.ravel(), cover.ravel(), count + 1)
        cover[size[parts] < np.clip(size[1:].max() * .06, 14, 130)] = 0
        covers[number] = cover
    return covers


def coverage(p):
    """What is seen of each thing: one that lies over another (later in the list) takes it from that."""
    covers = list(covers_clean(p).items())
    for i, (_, cover) in enumerate(covers):
        for _, other in covers[i + 1:]:
            cover *= 1 - other
    return dict(covers)


def grade(p, source, target):
    """By the scene's own curve if it has one."""
    own = f'scenes/{p.scene}/grade'
    subprocess.check_call([own if os.path.exists(own) else 'tools/grade', source, target])


def sprite(full, bare, cover):
    """Colour and alpha of one thing: its own coverage, and close to its outline the shadow that it throws."""
    solid = cover > 0
    distance = distance_transform_edt(~solid)
    light = gaussian_filter(full.mean(2), 1.0) / (gaussian_filter(bare.mean(2), 1.0) + .01)
    shadow = np.clip(1 - light, 0, .85) * np.clip(1 - (distance - 1) / SHADOW, 0, 1) * (distance <= SHADOW) * (~solid)
    shadow[shadow < .04] = 0
    alpha = np.where(solid, cover, shadow)
    alpha = np.round(alpha * 255) / 255
    a = np.maximum(alpha, 1 / 255)[..., None]
    colour = np.clip((full - (1 - a) * bare) / a, 0, 1)      # what, laid over the bare room, gives the full one again
    edge = solid & (cover < .5)
    colour[edge] = np.clip(colour[edge], full[edge] * .35, full[edge] * 1.6 + .12)
    colour = np.where((solid & (alpha > 0))[..., None], colour, 0)
    return colour, alpha


def pack(sizes):
    """Shelves: tallest first; two pixels of air around each, so that filtering never meets a neighbour."""
    places, x, y, shelf = {}, 2, 2, 0
    for name, (w, h) in sorted(sizes.items(), key=lambda item: (-item[1][1], item[0])):
        if x + w + 2 > PAGE:
            x, y, shelf = 2, y + shelf + 2, 0
        places[name] = (x, y)
        x, shelf = x + w + 2, max(shelf, h)
    height = y + shelf + 2
    if height > PAGE:
        sys.exit('the page is full: use a further one')
    width = max(places[name][0] + sizes[name][0] for name in sizes) + 2
    return places, (width + width % 2, height + height % 2)


def squeeze(path):
    before = os.path.getsize(path)
    subprocess.call(['pngquant', '--force', '--quality', '88-100', '--speed', '1', '--output', path, path])
    subprocess.check_call(['optipng', '-quiet', '-o2', path])
    print(path, before, '->', os.path.getsize(path))


def framed(p, path):
    """The graded picture under its frame, which throws a soft shadow on it."""
    picture = Image.open(path).convert('RGB')
    if not p.frame:
        return picture
    frame = f'{p.work}/frame.png'
    if not os.path.exists(frame):
        povray(p, frame, p.width, p.height, '+UA', '+A0.1', source='scenes/common/frame.pov', FRAME=p.frame)
    frame = Image.open(frame).convert('RGBA')
    shadow = frame.getchannel('A').filter(ImageFilter.GaussianBlur(9)).point(lambda v: v * .8)
    picture.paste((6, 4, 6), mask=shadow)
    picture.paste(frame, mask=frame)
    return picture


def door(bare, outline):
    """A piece of the bare picture with a rim of light just inside its outline; with its left and top."""
    wide = Image.new('L', (bare.width * FINE, bare.height * FINE))
    ImageDraw.Draw(wide).polygon([(x * FINE, y * FINE) for x, y in outline], fill=255)
    cover = np.asarray(wide.resize(bare.size, Image.BOX)).astype(np.float64) / 255
    rim = np.exp(-(distance_transform_edt(cover > .5) / RIM) ** 2)[..., None]
    light = np.asarray(bare.convert('RGB')).astype(np.float64) / 255
    light = 1 - (1 - light * (1.06 + .5 * rim)) * (1 - np.array(RIM_COLOUR) * .16 * rim)
    x0, y0, x1, y1 = (int(v) for v in bounds(cover > 0, 1, bare.width, bare.height))
    x1, y1 = x1 - (x1 - x0) % 2, y1 - (y1 - y0) % 2
    whole = np.dstack([np.clip(light, 0, 1), cover])[y0:y1, x0:x1]
    return Image.fromarray((whole * 255 + .5).astype('uint8'), 'RGBA'), x0, y0


def blocks(path):
    """The lines of coords.txt, a list for the room and one for each close-up."""
    found = []
    for line in open(path, newline='') if os.path.exists(path) else ():
        if 'Background' in line or not found:
            found.append([])
        found[-1].append(line)
    return found


def block_write(p, lines):
    """Puts a picture's lines in the place of its former ones, or behind all others; the room's stand first."""
    path = f'{p.target}/coords.txt'
    found = blocks(path)
    place = next((i for i, block in enumerate(found) if block[0].startswith(p.background)), len(found) if p.closeup else 0)
    found[place:place + 1] = [lines]
    with open(path, 'w', newline='') as file:
        file.writelines(line for block in found for line in block)


def cut(p):
    os.makedirs(p.target, exist_ok=True)
    for name in ('bare', 'full'):
        grade(p, f'{p.work}/{name}.png', f'{p.work}/{name}_graded.png')
        framed(p, f'{p.work}/{name}_graded.png').save(f'{p.work}/{name}_graded.png')
    empty, dressed = pixels(f'{p.work}/bare_graded.png'), pixels(f'{p.work}/full_graded.png')
    bare_picture = Image.open(f'{p.work}/bare_graded.png').convert('RGB')
    bare_picture.save(f'{p.target}/{p.background.lower()}', quality=90, optimize=True, progressive=True)
    left, top = p.centre[0] - p.width // 2, p.centre[1] - p.height // 2
    coords, pages, images = [(p.background, *p.centre)], {}, {}
    coords += [(name, x + left, y + top) for name, x, y in shared(p)]
    for name, outline in doors(p):
        images[name], x, y = door(bare_picture, outline)
        coords.append((name, x + images[name].width // 2 + left, y + images[name].height // 2 + top))
        pages.setdefault('loose', []).append(name)
    covers, clean = coverage(p), covers_clean(p)
    for number, name, where in things(p):
        if os.path.exists(f'{p.work}/solo{number}.png'):
            grade(p, f'{p.work}/solo{number}.png', f'{p.work}/graded{number}.png')
            framed(p, f'{p.work}/graded{number}.png').save(f'{p.work}/graded{number}.png')
            colour, alpha = sprite(pixels(f'{p.work}/graded{number}.png'), empty, clean[number])
        else:
            colour, alpha = sprite(dressed, empty, covers[number])
        x0, y0, x1, y1 = (int(v) for v in bounds(alpha > 0, 1, p.width, p.height))
        x0, y0 = x0 - (x1 - x0) % 2 if x0 else x0, y0 - (y1 - y0) % 2 if y0 else y0     # even sizes keep the centre on a pixel corner
        x1, y1 = x1 + (x1 - x0) % 2, y1 + (y1 - y0) % 2
        x1, y1 = min(x1, p.width), min(y1, p.height)
        picture = np.dstack([colour, alpha])[y0:y1, x0:x1]
        images[name] = Image.fromarray((picture * 255 + .5).astype('uint8'), 'RGBA')
        coords.append((name, (x0 + x1) // 2 + left, (y0 + y1) // 2 + top))
        pages.setdefault(where, []).append(name)
        if (x1 - x0) % 2 or (y1 - y0) % 2:
            sys.exit(f'{name}: odd size')
    coords += [(name, x + left, y + top) for name, x, y in placed(p, '+')]
    for where, names in pages.items():
        if where == 'loose':
            for name in names:
                images[name].save(f'{p.target}/{name.lower()}')
                squeeze(f'{p.target}/{name.lower()}')
            continue
        places, size = pack({name: images[name].size for name in names})
        sheet = Image.new('RGBA', size)
        for name in names:
            sheet.paste(images[name], places[name])
        page = f'scenes/{p.scene}/texturepage{where[1:]}'
        sheet.save(f'../data/{page}.png')
        squeeze(f'../data/{page}.png')
        with open(f'../data/{page}.txt', 'w', newline='') as file:
            file.write(f'{page}.png\r\n')
            for name in names:
                (x, y), (w, h) = places[name], images[name].size
                file.write(f'scenes/{p.scene}/{name.lower()},{x},{y},{w},{h}\n')
    block_write(p, [f'{name},{x},{y}\n' for name, x, y in coords])


def read(p):
    """What the game would load: name, left, top, picture, in drawing order."""
    folder = p.target
    brushes, page = {}, 0
    while os.path.exists(f'{folder}/texturepage{page}.txt'):
        lines = open(f'{folder}/texturepage{page}.txt', newline='').read().split('\n')
        sheet = Image.open('../data/' + lines[0].rstrip('\r')).convert('RGBA')
        for line in filter(None, lines[1:]):
            name, x, y, w, h = line.split(',')
            brushes[name] = sheet.crop((int(x), int(y), int(x) + int(w), int(y) + int(h)))
        page += 1
    for line in next(block for block in blocks(f'{folder}/coords.txt') if block[0].startswith(p.background)):
        name, x, y = line.rstrip('\n').split(',')
        if not name.endswith(('.png', '.jpg')):     # animations and particles
            continue
        key = 'common/' + name.split('CMN-')[1].lower() if 'CMN-' in name else f'scenes/{p.scene}/{name.lower()}'
        picture = brushes.get(key) or Image.open('../data/' + key).convert('RGBA')
        yield name, int(x) - p.centre[0] + p.width // 2 - picture.width // 2, int(y) - p.centre[1] + p.height // 2 - picture.height // 2, picture


def check(p):
    dressed = pixels(f'{p.work}/full_graded.png')
    alone = {name for number, name, _ in things(p) if os.path.exists(f'{p.work}/solo{number}.png')} | {name for name, _ in doors(p)}
    paste, faults, list_ = None, 0, list(read(p))
    for name, x, y, picture in list_:
        if picture.width % 2 or picture.height % 2:
            print(name, 'has an odd size')
            faults += 1
        if paste is None:
            paste = Image.new('RGBA', (p.width, p.height))
        if 'CMN-' in name:      # not part of the render: its own pixels need no comparing
            paste.alpha_composite(picture, (x, y))
            continue
        layer = Image.new('RGBA', (p.width, p.height))
        layer.paste(picture, (x, y))
        paste = Image.alpha_composite(paste, layer)
    paste.convert('RGB').save(f'{p.work}/pasted.png')
    result = np.asarray(paste.convert('RGB')).astype(np.float64) / 255
    for name, x, y, picture in list_[1:]:
        if 'CMN-' in name:
            continue
        alpha = np.asarray(picture)[..., 3]
        mask = np.zeros((p.height, p.width), bool)
        mask[y:y + picture.height, x:x + picture.width] = alpha > 200
        off = np.abs(result - dressed).max(2)[mask]
        w, h = picture.size
        word = ''
        if np.mean(off) > (.15 if name in alone else .03):     # alone, the shadows of the others are missing
            word, faults = '  differs from the render', faults + 1
        if not name.split('-')[0].isupper():
            word += '  (decoration)'
        elif max(w, h) < 60:
            word, faults = word + '  too small', faults + 1
        print(f'{name:32s} {w:4d} x {h:4d}  {int(mask.sum()):6d} px  mean difference {np.mean(off):.4f}{word}')
    covers = covers_clean(p)
    rows = [(name, covers[number] > .5) for number, name, _ in things(p)]
    for i, (a, one) in enumerate(rows):
        for b, other in rows[i + 1:]:
            both = int((one & other).sum())
            if both > 36 and a not in alone and a.split('-')[0].isupper() and b.split('-')[0].isupper():
                print(f'{b} hides {both} px of {a}')
                faults += 1
    print('faults:', faults)
    return faults


STEPS = {'preview': preview, 'masks': masks, 'bare': bare, 'full': full, 'cut': cut, 'check': check}

if __name__ == '__main__':
    step, picture = sys.argv[1], Picture(sys.argv[2])
    os.makedirs(picture.work, exist_ok=True)
    if step in ('masks', 'solo'):
        {'masks': masks, 'solo': solo}[step](picture, [int(v) for v in sys.argv[3:]])
    else:
        sys.exit(STEPS[step](picture) or 0)
