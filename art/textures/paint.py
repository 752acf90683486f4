#!/usr/bin/python3
"""What the image maps share: noise, SVG to PNG, lettering, a painted sea, a painted steamer."""
import math, random, subprocess, sys, os
import numpy as np
from PIL import Image, ImageDraw
from scipy.ndimage import gaussian_filter, zoom
OUT='work/tex/'
os.makedirs(OUT,exist_ok=True)
def svg(name,w,h,body,defs=''):
    open(OUT+name+'.svg','w').write(f'<svg xmlns="http://www.w3.org/2000/svg" width="{w}" height="{h}" viewBox="0 0 {w} {h}"><defs>{defs}</defs>{body}</svg>')
    subprocess.check_call(['rsvg-convert',OUT+name+'.svg','-o',OUT+name+'.png'])
T=lambda s,x,y,sz,fam='EB Garamond',col='#2a1a0c',ex='':f'<text x="{x:.1f}" y="{y:.1f}" font-family="{fam}" font-size="{sz}" text-anchor="middle" fill="{col}" {ex}>{s}</text>'
def fbm(w,h,base,octs,seed,pers=.55,ax=1.0):
    rng=np.random.default_rng(seed); f=np.zeros((h,w)); a=1;t=0
    for o in range(octs):
        nx=base*2**o; ny=max(2,int(nx*h/w*ax)); g=rng.standard_normal((ny+4,nx+4))
        z=zoom(g,(h/(g.shape[0]-3),w/(g.shape[1]-3)),order=3)[:h,:w]; f+=a*z;t+=a;a*=pers
    return f/t
def lerp(a,b,t): return a+(b-a)*t[...,None]
def seascape(name,w,h,seed,sky0,sky1,sea0,sea1,sunx,suny,hor=.56,suncol=(1,.86,.6)):
    y,x=np.mgrid[0:h,0:w]; X=x/w;Y=y/h
    c=lerp(np.array(sky0),np.array(sky1),np.clip(Y/hor,0,1)**1.3)
    cl=fbm(w,h,4,6,seed,.55,2.6); m=np.clip((cl-.02)*2.6,0,1)*(1-.4*np.clip(Y/hor,0,1))
    sh=np.clip((cl-np.roll(cl,8,0))*14+.55,0,1)
    c=c*(1-m[...,None]*.8)+m[...,None]*.8*lerp(np.array((.52,.55,.62)),np.array((1,.95,.86)),sh)
    d=np.hypot((X-sunx)*w/h,(Y-suny)); c+=np.array(suncol)*(np.exp(-(d/.28)**2)*.5+np.exp(-(d/.05)**2)*.8)[...,None]
    k=np.clip((Y-hor)/(1-hor),0,1); sea=lerp(np.array(sea0),np.array(sea1),k**.6)
    per=1/(k+.04); n=np.sin((X-.5)*w*.05*per*3+fbm(w,h,10,4,seed+1)*9+40*np.log(k+.04)*4)*.5+fbm(w,h,30,3,seed+2,.6,4)*.9
    sea=sea*(1+.22*n[...,None]); gl=np.exp(-((X-sunx)/(.03+.16*k))**2)*np.clip(n+.3,0,1); sea+=np.array(suncol)*gl[...,None]*.85
    c=np.where((Y>hor)[...,None],sea,c)
    return np.clip(c,0,1),hor
def paint(c,name,strength=1.2):
    im=Image.fromarray((c**(1/1.0)*255).astype('uint8')); im.save(OUT+name+'.png'); return im
def ship(im,cx,hy,s,hull=(52,36,34),sail=(226,214,186),funnel=(158,44,32)):
    d=ImageDraw.Draw(im)
    P=lambda *a:[(cx+p[0]*s,hy+p[1]*s) for p in a]
    for mx in(-34,2,34):
        d.line(P((mx,0),(mx,-74)),fill=(60,44,34),width=max(1,int(1.6*s)))
    for mx in(-34,34):
        d.polygon(P((mx+1,-70),(mx+24,-20),(mx+1,-14)),fill=sail); d.polygon(P((mx-1,-66),(mx-17,-22),(mx-1,-14)),fill=tuple(int(v*.84) for v in sail))
    d.rectangle(P((-8,-36),(6,-4)),fill=funnel); d.rectangle(P((-8,-36),(6,-30)),fill=(30,26,26))
    d.rectangle(P((-24,-12),(24,0)),fill=(212,196,160))
    d.polygon(P((-62,-8),(70,-8),(78,-16),(60,12),(-52,12)),fill=hull); d.line(P((-60,-4),(68,-4)),fill=(200,170,90),width=max(1,int(1.5*s)))
    for i in range(-5,6): d.ellipse(P((i*9-1.6,0),(i*9+1.6,3.2)),fill=(220,196,130))
    for i in range(26):
        a=i/26; r=(5+20*a)*s; x0=cx+(-1-a*78)*s; y0=hy+(-40-a*30-6*math.sin(i))*s
        d.ellipse((x0-r,y0-r*.6,x0+r,y0+r*.6),fill=tuple(int(70+80*a) for _ in range(3)))
def oil(fn):  # brushy look
    subprocess.call(['/usr/bin/convert',OUT+fn+'.png','-paint','2','-unsharp','0x1',OUT+fn+'.png'])
