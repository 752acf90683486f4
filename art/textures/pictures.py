#!/usr/bin/python3
"""Framed pictures and the views through windows."""
from paint import *
c,h=seascape('a',800,560,3,(.32,.46,.66),(.96,.80,.60),(.30,.45,.50),(.06,.16,.24),.68,.42); im=paint(c,'paint1'); ship(im,330,345,2.1); im.save(OUT+'paint1.png'); oil('paint1')
c,h=seascape('b',800,560,8,(.16,.20,.34),(.78,.48,.36),(.36,.28,.34),(.04,.07,.14),.3,.5,.6,(1,.7,.4)); im=paint(c,'paint2')
d=ImageDraw.Draw(im); d.polygon([(520,336),(560,280),(640,262),(720,286),(800,330),(800,400),(520,400)],fill=(34,30,38)); d.polygon([(626,270),(634,130),(662,130),(670,270)],fill=(206,190,176)); d.rectangle((630,180,666,205),fill=(150,40,36)); d.rectangle((626,118,670,132),fill=(40,34,40)); d.rectangle((636,92,660,118),fill=(255,224,140)); d.polygon([(632,92),(648,74),(664,92)],fill=(120,36,30)); im.save(OUT+'paint2.png'); oil('paint2')
c,h=seascape('w',1024,1024,21,(.40,.60,.82),(.93,.94,.90),(.30,.52,.58),(.08,.25,.34),.42,.30,.58,(1,.95,.8)); im=paint(c,'seaview'); ship(im,640,602,1.0); im.save(OUT+'seaview.png'); subprocess.call(['/usr/bin/convert',OUT+'seaview.png','-blur','0x1.2',OUT+'seaview.png'])
# harbour street seen from the shop window
c,h=seascape('h',1024,768,33,(.46,.58,.74),(.96,.88,.74),(.34,.46,.50),(.12,.24,.30),.30,.36,.66,(1,.9,.7)); im=paint(c,'harbour'); d=ImageDraw.Draw(im); r=random.Random(5); x=-10
while x<1040:
    w=r.randint(60,120); t=r.randint(300,430); col=r.choice([(150,96,78),(176,146,110),(120,110,112),(190,172,140),(112,84,76)])
    d.rectangle((x,t,x+w,560),fill=col); d.polygon([(x-6,t),(x+w/2,t-r.randint(30,60)),(x+w+6,t)],fill=tuple(int(v*.6) for v in col))
    for yy in range(t+22,540,46):
        for xx in range(x+12,x+w-18,32): d.rectangle((xx,yy,xx+14,yy+22),fill=r.choice([(60,66,78),(250,214,140),(72,82,92)]))
    x+=w
ship(im,420,610,1.7); ship(im,820,640,1.2,(40,60,60)); im.save(OUT+'harbour.png'); subprocess.call(['/usr/bin/convert',OUT+'harbour.png','-blur','0x2',OUT+'harbour.png'])
