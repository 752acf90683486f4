#!/usr/bin/python3
"""Clock faces, compass card, playing card, letters, labels, book pages."""
from paint import *
# watch / clock face
def face(name,roman,bg,hh,mm):
    b=f'<rect width="512" height="512" fill="{bg}"/><circle cx="256" cy="256" r="250" fill="{bg}"/><circle cx="256" cy="256" r="236" fill="none" stroke="#2a1a0c" stroke-width="3"/><circle cx="256" cy="256" r="216" fill="none" stroke="#2a1a0c" stroke-width="2"/>'
    for i in range(60):
        a=i*6; b+=f'<line x1="256" y1="22" x2="256" y2="{44 if i%5==0 else 38}" stroke="#2a1a0c" stroke-width="{6 if i%5==0 else 2}" transform="rotate({a} 256 256)"/>'
    R='XII I II III IIII V VI VII VIII IX X XI'.split() if roman else '12 1 2 3 4 5 6 7 8 9 10 11'.split()
    for i,t in enumerate(R):
        b+=f'<g transform="rotate({i*30} 256 256)">'+T(t,256,114 if roman else 118,62 if roman else 66,'Old Standard TT',ex='font-weight="bold"')+'</g>'
    b+=f'<g transform="rotate({(hh+mm/60)*30} 256 256)"><path d="M249 286 L246 170 L256 120 L266 170 L263 286Z" fill="#15202c"/></g><g transform="rotate({mm*6} 256 256)"><path d="M251 300 L250 110 L256 52 L262 110 L261 300Z" fill="#15202c"/></g><circle cx="256" cy="256" r="16" fill="#a7772c"/>'
    svg(name,512,512,b)
face('face_roman',True,'#efe2c2',10,9); face('face_watch',False,'#f4ecd8',4,37)
# compass card
b='<rect width="512" height="512" fill="#ece0c0"/><circle cx="256" cy="256" r="240" fill="none" stroke="#2a1a0c" stroke-width="4"/><circle cx="256" cy="256" r="206" fill="none" stroke="#2a1a0c" stroke-width="2"/>'
for i in range(72): b+=f'<line x1="256" y1="16" x2="256" y2="{50 if i%3==0 else 36}" stroke="#2a1a0c" stroke-width="3" transform="rotate({i*5} 256 256)"/>'
for l,wd,off,c in ((120,20,45,'#31567a'),(196,30,0,'#b3261b')):
    for i in range(4): b+=f'<g transform="rotate({off+90*i} 256 256)"><path d="M256 {256-l} L{256-wd} {256-wd} L256 256Z" fill="{c}"/><path d="M256 {256-l} L{256+wd} {256-wd} L256 256Z" fill="#22303c"/></g>'
for t,a in (('N',0),('E',90),('S',180),('W',270)): b+=f'<g transform="rotate({a+0} 256 256)">'+T(t,256+44,112,60,'Old Standard TT',ex='font-weight="bold"')+'</g>'
svg('rose',512,512,b)
# playing card: queen-like anchor of hearts (own design): seven of hearts
heart='M0 14 C-30 -10 -18 -34 0 -18 C18 -34 30 -10 0 14Z'
b='<rect width="360" height="512" rx="0" fill="#f6efdd"/><rect x="14" y="14" width="332" height="484" rx="20" fill="none" stroke="#c9b98e" stroke-width="3"/>'
for x,y in ((110,130),(250,130),(180,190),(110,256),(250,256),(110,382),(250,382)): b+=f'<path d="{heart}" transform="translate({x},{y+8}) scale(1.75{"" if y<300 else ",-1.75"})" fill="#c2201f"/>'
b+=T('7',44,80,72,'Old Standard TT','#c2201f','font-weight="bold"')+f'<path d="{heart}" transform="translate(44,110) scale(.9)" fill="#c2201f"/><g transform="rotate(180 180 256)">'+T('7',44,80,72,'Old Standard TT','#c2201f','font-weight="bold"')+f'<path d="{heart}" transform="translate(44,110) scale(.9)" fill="#c2201f"/></g>'
svg('card',360,512,b)
# letter with wax seal + stamp
b='<rect width="512" height="340" fill="#ead9b4"/><path d="M0 0 L256 190 L512 0" fill="none" stroke="#b59a66" stroke-width="4"/>'
svg('envback',512,340,b+'<circle cx="256" cy="186" r="44" fill="#9c1c18"/><circle cx="256" cy="186" r="30" fill="none" stroke="#6b0f0d" stroke-width="5"/>'+T('P',256,204,50,'Old Standard TT','#6b0f0d'))
b='<rect width="512" height="340" fill="#ead9b4"/><rect x="410" y="24" width="78" height="92" fill="#3d6a8c"/><rect x="420" y="34" width="58" height="72" fill="#d9e0da"/><path d="M426 92 q12 -14 24 0 t24 0 M448 84 v-36 l16 24z" stroke="#2b4a63" fill="#2b4a63" stroke-width="3"/><g fill="none" stroke="#3b3226" stroke-width="4" opacity=".6"><circle cx="372" cy="78" r="44"/><circle cx="372" cy="78" r="30"/></g>'
b+=T('Miss A. Pellow,',220,180,44,'Rufscript','#2a2118')+T('Harbour Office,',240,232,44,'Rufscript','#2a2118')+T('Port Merrow',260,286,44,'Rufscript','#2a2118')
svg('envfront',512,340,b)
# labels for bottles/tins/crates
for i,(t,u,c,d) in enumerate((('RUM','Navy Strength','#7a2418','#f0ddb0'),('TEA','Fine Ceylon','#1f4f44','#f2e3bb'),('TAR','Stockholm','#2b2b33','#e2c88e'),('SALT','Sea Flakes','#2f5a86','#f4ecd4'),('INK','Blue-Black','#27304f','#f0e2c0'),('OIL','Sperm No. 1','#8a5a16','#f4e3b4'))):
    svg(f'label{i}',256,256,f'<rect width="256" height="256" fill="{d}"/><rect x="12" y="12" width="232" height="232" fill="none" stroke="{c}" stroke-width="8"/><rect x="12" y="76" width="232" height="92" fill="{c}"/>'+T(t,128,150,84,'Roboto Slab',d,'font-weight="bold"')+T(u,128,212,34,'EB Garamond',c,'font-style="italic"')+f'<path d="M98 46 h60 M128 24 v40" stroke="{c}" stroke-width="6"/>')
# book page spread
b='<rect width="700" height="480" fill="#f0e4c6"/><rect x="346" width="8" height="480" fill="#b59a6a" opacity=".6"/>'
r=random.Random(4)
for px in (40,380):
    for i in range(17):
        x=px
        while x<px+270:
            w=r.uniform(12,46); b+=f'<rect x="{x:.0f}" y="{50+i*24}" width="{min(w,px+275-x):.0f}" height="7" fill="#4a3a26" opacity=".75"/>'; x+=w+9
b+='<rect x="395" y="60" width="240" height="170" fill="#f0e4c6"/><g fill="none" stroke="#4a3a26" stroke-width="4"><circle cx="515" cy="145" r="60"/><path d="M455 145 h120 M515 85 v120 M475 105 l80 80 M555 105 l-80 80"/></g>'
svg('pages',700,480,b)
