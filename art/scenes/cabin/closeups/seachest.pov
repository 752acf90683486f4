// The captain's sea chest, open, seen from above: his clothes, his keepsakes.  1 unit = 10 cm; the whole lies on y=0 and is tilted towards the viewer.
#version 3.7;
#include "scenes/cabin/closeups/lamplight.inc"
camera{location<0,0,-30> right x*.53 up y*.53*520/760 direction<0,.066,1>}
#declare Tilt=-54;
light_source{<15,21,-20> LampCol*1.95 area_light x*4,y*4,3,3 adaptive 1 circular orient}
light_source{<-24,14,-14> MoonCol*.40 area_light x*8,y*8,2,2 adaptive 0}
light_source{<2,-26,-26> LampCol*.20 shadowless}
light_source{<-6,8,-34> srgb<1,.84,.64>*.45 shadowless}
#macro Lay(O,Size,Back,Turn,P) object{O scale Size rotate x*Back rotate y*Turn translate P rotate x*Tilt} #end
#macro Stripes(A,B,W) texture{pigment{gradient x color_map{[0 srgb A][.42 srgb A][.42 srgb B][.5 srgb B][.5 srgb A][.56 srgb A][.56 srgb B][.60 srgb B][.60 srgb A][1 srgb A]} scale W} normal{granite .1 scale .2} finish{ambient 0 diffuse .9}} #end
// ---------------- the chest: teak staves, iron-bound corners, the lid thrown back with what is pasted into it; the rug around
#declare Sd=seed(81);
union{
 #for(s,-1,1,2) object{RBox(<-7.5,0,s*4.9-.34>,<7.5,3.4,s*4.9+.34>,.12) texture{Wood(C_Teak*.95,1,F_Lacq)}} object{RBox(<s*7.1-.36,0,-4.8>,<s*7.1+.36,3.4,4.8>,.12) texture{Wood(C_Teak*.9,1,F_Lacq) rotate y*90}}
  #for(e,-1,1,2) union{object{RBox(<s*6.55-.55,2.0,e*4.95-.36>,<s*6.55+1.0,3.46,e*4.95+.36>,.06)} object{RBox(<s*7.15-.40,2.0,e*4.5-.8>,<s*7.15+.40,3.46,e*4.5+.6>,.06)} texture{T_OldBrass}} #for(k,0,1) sphere{<s*(6.2+.5*k),3.46,e*4.95>,.10 texture{T_Gold}} sphere{<s*7.15,3.46,e*(4.0+.45*k)>,.10 texture{T_Gold}} #end #end
  box{<s*3.2-.3,0,4.5>,<s*3.2+.3,3.45,5.3> texture{T_OldBrass}} box{<s*3.2-.3,0,-5.28>,<s*3.2+.3,3.46,-4.52> texture{T_OldBrass}} sphere{<s*3.2,3.46,-4.9>,.12 texture{T_Gold}} #end
 object{RBox(<-.9,2.0,-5.36>,<.9,3.47,-4.5>,.05) texture{T_Brass}}
 box{<-7,0,-4.8>,<7,1.1,4.8> texture{Cloth(<.16,.20,.32>,.1)}}
 #for(s,-1,1,2) box{<-6.75,1,s*4.50-.02>,<6.75,3.2,s*4.50+.02> Stripes(<.24,.36,.46>,<.80,.74,.60>,.5)} box{<s*6.72-.02,1,-4.5>,<s*6.72+.02,3.2,4.5> Stripes(<.24,.36,.46>,<.80,.74,.60>,.5) rotate 0} #end
 // the lid
 union{object{RBox(<-7.5,0,0>,<7.5,5.4,.4>,.1) texture{Wood(C_Teak*.9,1,F_Lacq)}} box{<-7.1,.2,-.04>,<7.1,5.2,0> Stripes(<.24,.36,.46>,<.80,.74,.60>,.5)}
  #for(s,-1,1,2) object{RBox(<s*7.2-.3,0,-1.2>,<s*7.2+.3,5.4,.2>,.1) texture{Wood(C_Teak*.85,1,F_Lacq) rotate z*90}} object{RBox(<s*4.6-.22,0,-.10>,<s*4.6+.22,5.4,.0>,.03) texture{T_OldBrass}} #end
  #macro Pasted(F,w,h) box{<-w/2,-h/2,0>,<w/2,h/2,.02> texture{pigment{image_map{png concat(TEX,F) interpolate 2 once} translate<-.5,-.5,0> scale<w,h,1>} finish{F_Matte}}} #end
  object{Pasted("seaview.png",3.0,2.0) rotate z*-2 translate<-1.9,2.0,-.08>} object{Pasted("paint2.png",2.4,1.8) rotate z*3 translate<1.4,1.9,-.09>} object{Pasted("notice.png",1.4,1.9) rotate z*-4 translate<3.5,2.1,-.08>} object{Pasted("tides.png",1.4,1.8) rotate z*2 translate<-5.9,2.0,-.08>} object{Pasted("harbour.png",1.7,1.3) rotate z*-3 translate<5.9,2.0,-.08>}
  rotate x*-26 translate<0,3.0,5.3>}
 box{<-14,-.1,-12>,<14,0,5> texture{pigment{image_map{png concat(TEX,"rug.png") interpolate 2} rotate x*90 scale<22,1,15.2> translate<-11,0,-16>} normal{granite .25 scale .3} finish{ambient 0 diffuse .9}}}
 rotate x*Tilt}
// ---------------- what fills it: folded clothes, a coat with brass buttons, a rolled blanket, linen, old letters
#declare Sd=seed(82);
#macro Fold(w,d,n,h) union{#for(i,0,n-1) superellipsoid{<.22,.22> rotate x*90 scale<w/2*RR(.97,1.02),h/n*.62,d/2*RR(.97,1.02)> rotate y*RR(-2,2) translate y*(i+.5)*h/n} #end} #end
#macro Rolled(L,r,A,B) union{cylinder{<-L/2,0,0>,<L/2,0,0>,r Stripes(A,B,1.3)} #for(s,-1,1,2) #for(k,1,4) torus{r*(1-k*.21),r*.10 rotate z*90 translate x*s*L/2 texture{Cloth(A*(1.1-.1*k),.03)}} #end cylinder{<s*(L/2-.02),0,0>,<s*(L/2+.02),0,0>,r*.9 texture{Cloth(A*.5,.03)}} #end #for(s,-1,1,2) torus{r*1.02,.10 rotate z*90 translate x*s*L*.26 texture{Leather(<.34,.18,.08>)}} #end} #end
#macro Crumple(x0,x1,z0,z1,y0,H,NU,NV,T) #local A=array[NU+1][NV+1]; #local p0=RR(0,6); #for(i,0,NU) #for(j,0,NV) #local q=i/NU; #local e=j/NV; #local b=min(1,6*min(q,1-q))*min(1,6*min(e,1-e)); #local A[i][j]=<x0+(x1-x0)*q+.08*sin(e*9+p0),y0+b*(H+.16*sin(q*11+4*e+p0)+.12*sin(e*13-5*q+p0)+.06*sin(q*29+e*17)),z0+(z1-z0)*e+.08*sin(q*8+p0)>; #end #end object{GridMesh(A,NU,NV,0,0) texture{T}} #end
union{
 Crumple(-6.9,6.9,-4.6,4.6,1.0,.45,60,44,Cloth(<.20,.27,.44>,.05))
 object{Fold(4.6,3.6,3,1.1) texture{pigment{granite scale 2 color_map{[0 srgb<.09,.14,.34>][1 srgb<.15,.22,.46>]}} normal{granite .2 scale .12} finish{ambient 0 diffuse .9}} rotate y*5 translate<-4.3,1.2,2.2>} // the coat: its buttons, its braid
 union{#for(i,0,3) #for(s,0,1) union{sphere{0,.17 scale<1,.5,1>} torus{.15,.03} translate<.35+s*1.3,1.16,-1.35+i*.72>} #end cylinder{<.55,1.13,-1.35+i*.72>,<1.45,1.13,-1.35+i*.72>,.035} #end cylinder{<2.1,1.08,-1.6>,<2.1,1.08,1.6>,.06} cylinder{<-.1,1.12,-1.7>,<-.1,1.12,1.7>,.05} texture{T_Gold} rotate y*5 translate<-4.3,1.2,2.2>}
 object{Fold(3.6,3.0,3,1.2) texture{pigment{granite scale 2 color_map{[0 srgb<.74,.68,.56>][1 srgb<.92,.87,.76>]}} normal{granite .15 scale .1} finish{ambient 0 diffuse .85}} rotate y*-7 translate<.2,1.1,2.4>} object{Fold(3.3,2.8,2,.7) Stripes(<.82,.78,.68>,<.26,.40,.60>,.55) rotate y*4 translate<-.1,2.1,2.5>}
 object{Rolled(4.0,1.15,<.56,.13,.10>,<.84,.72,.50>) rotate y*8 translate<4.6,2.0,3.0>}
 object{Fold(4.4,3.2,3,1.0) texture{pigment{checker srgb<.40,.10,.09>,srgb<.22,.26,.22> scale<.7,9,.7>} normal{granite .15 scale .1} finish{ambient 0 diffuse .9}} rotate y*-6 translate<4.2,1.1,-2.2>}
 object{Fold(4.2,3.0,3,1.0) texture{pigment{granite scale 2 color_map{[0 srgb<.30,.38,.28>][1 srgb<.42,.50,.36>]}} normal{gradient x .6 sine_wave scale .12} finish{ambient 0 diffuse .9}} rotate y*9 translate<-4.4,1.1,-2.6>}
 Crumple(-2.3,2.5,-4.4,-.4,1.2,.75,40,40,Cloth(<.80,.74,.62>,.04))
 #for(i,0,4) box{<-1,0,-.7>,<1,.03,.7> texture{pigment{image_map{png concat(TEX,#if(mod(i,2)) "envback.png" #else "envfront.png" #end) interpolate 2 once} translate<-.5,-.5,0> rotate x*90 scale<2,1,1.4>} finish{F_Matte}} rotate<RR(-5,5),RR(-50,50),RR(-5,5)> translate<RR(1.0,2.4),2.1+i*.05,RR(-.5,.8)>} #end
 object{BookC(<.36,.09,.08>,1.9,.5,2.6) rotate y*24 translate<-2.3,2.0,-1.5>}
 object{RopeRing(1.0,.20,50) texture{T_Rope} rotate x*6 translate<-5.6,2.4,-.3>} object{RopeRing(.96,.20,50) texture{T_Rope} translate<-5.6,2.7,-.3>}
 rotate x*Tilt}
#include "scenes/cabin/closeups/seachest_things.inc"
