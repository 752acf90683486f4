#!/usr/bin/python3
"""The rug, the wallpaper and the globe."""
from paint import *
# rug: symmetric oriental pattern
w,h=900,600; y,x=np.mgrid[0:h,0:w]; u=np.abs(x-w/2)/(w/2); v=np.abs(y-h/2)/(h/2)
C={'r':(.44,.07,.07),'d':(.10,.07,.16),'c':(.80,.66,.42),'b':(.13,.22,.34),'o':(.68,.32,.12),'g':(.20,.27,.16)}
im=np.zeros((h,w,3)); im[:]=C['r']
def put(m,c): im[m]=C[c]
e=np.minimum((1-u)*w/2,(1-v)*h/2)  # distance to border
put(e<110,'b'); put((e<110)&(e>102),'c'); put(e<26,'d'); put((e<34)&(e>26),'c')
ang=(x+y)*.0
q=np.where((1-u)*w/2<(1-v)*h/2,y,x)
put((e>44)&(e<94)&(np.abs((q%64)-32)+np.abs(e-69)<24),'o'); put((e>44)&(e<94)&(np.abs((q%64)-32)+np.abs(e-69)<14),'c'); put((e>44)&(e<94)&(np.abs((q%64)-32)+np.abs(e-69)<7),'r')
put((e<26)&((q%24)<12),'o')
A=np.abs(x-w/2)/190+np.abs(y-h/2)/150
put(A<1.18,'d'); put(A<1.12,'c'); put(A<1.06,'b'); put(A<.8,'o'); put(A<.76,'r'); put(A<.42,'c'); put(A<.38,'g'); put(A<.16,'o')
th=np.arctan2(y-h/2,(x-w/2)*.8); rr=np.hypot((x-w/2)*.8,y-h/2); put((A<1.0)&(A>.82)&(np.sin(th*24)>.3),'c'); put((rr<95+18*np.cos(8*th))&(rr>84+18*np.cos(8*th)),'c')
inner=(e>110)&(A>1.25)
fx=(np.abs(x-w/2)%58)-29; fy=(np.abs(y-h/2)%58)-29; fr=np.hypot(fx,fy); ft=np.arctan2(fy,fx)
put(inner&(fr<13+5*np.cos(6*ft)),'c'); put(inner&(fr<8),'o'); put(inner&(fr<4),'d'); put(inner&(np.abs(np.abs(fx)-29)+np.abs(np.abs(fy)-29)<9),'b')
n=fbm(w,h,8,6,5); im*=(1+.35*n[...,None]); rng=np.random.default_rng(2); im*=(.86+.28*rng.random((h,w,1))); im*=(.93+.07*np.sign(np.sin(y*math.pi/2.0)))[...,None]
Image.fromarray((np.clip(im,0,1)*255).astype('uint8')).save(OUT+'rug.png')
# fabric patterns
svg('wall',256,256,'<rect width="256" height="256" fill="#5d6b55"/>'+''.join(f'<g transform="translate({x},{y})" fill="#7d8a66"><path d="M0 -46 C24 -22 24 -4 0 14 C-24 -4 -24 -22 0 -46Z"/><path d="M0 10 C30 4 44 22 34 44 C14 44 2 32 0 10 C-2 32 -14 44 -34 44 C-44 22 -30 4 0 10Z" fill="#8c955f"/><circle r="6" cy="-16" fill="#4a573f"/></g>' for x,y in ((64,64),(192,192),(64,320),(192,-64),(192+0,192)) ))

# globe map (equirect, invented continents)
w,h=1024,512; f=fbm(w,h,5,7,17,.55,1.0); f=(f+np.roll(f[:, ::-1],0,1))/1.2
y,x=np.mgrid[0:h,0:w]; land=f>.10; c=np.zeros((h,w,3)); c[:]=(.30,.46,.48); c[land]=(.80,.64,.36)
g=gaussian_filter(land.astype(float),5); c*= (1-.0*g)[...,None]; rim=(np.abs(f-.10)<.018); c[rim]=(.25,.15,.08); c[(~land)&(g>.06)]*=.86
c[f>.42]=(.66,.44,.24); c[(x%64==0)|(y%64==0)]*=.7; c*=(.92+.16*fbm(w,h,12,5,3))[...,None]
Image.fromarray((np.clip(c,0,1)*255).astype('uint8')).save(OUT+'globe.png')
