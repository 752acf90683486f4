// The open mail crate, seen from above: straw, bundles of letters, parcels.  1 unit = 10 cm; the whole lies on y=0 and is tilted towards the viewer.
#version 3.7;
#include "scenes/quay/closeups/evening.inc"
camera{location<0,0,-30> right x*.522 up y*.522*520/760 direction<0,.050,1>}
#declare Tilt=-54;
light_source{<-17,20,-26> WarmCol*1.4 area_light x*6,y*6,3,3 adaptive 1 circular orient}
light_source{<12,30,-8> SkyCol*.50 area_light x*12,z*12,3,3 adaptive 1}
light_source{<4,-30,-24> WarmCol*.16 shadowless}
light_source{<22,4,-30> SkyCol*.26 shadowless}
#macro Lay(O,Size,Back,Turn,P) object{O scale Size rotate x*Back rotate y*Turn translate P rotate x*Tilt} #end
// ---------------- the crate: boards, corner posts, its floor; paving around
#declare Sd=seed(51);
union{
 #for(k,0,2) #local y0=k*1.12; #for(s,-1,1,2)
  object{RBox(<-7.4,y0,s*4.95-.28>,<7.4,y0+1.06,s*4.95+.28>,.06) texture{Wood(C_Pine*RR(.72,.98),1,F_Satin)}}
  object{RBox(<s*7.05-.28,y0,-4.7>,<s*7.05+.28,y0+1.06,4.7>,.06) texture{Wood(C_Pine*RR(.72,.98),1,F_Satin) rotate y*90}} #end #end
 #for(s,-1,1,2) #for(e,-1,1,2) object{RBox(<s*6.5-.32,0,e*4.42-.28>,<s*6.5+.32,3.5,e*4.42+.28>,.06) texture{Wood(C_Pine*.8,1,F_Satin) rotate z*90}} #for(k,0,2) sphere{<s*7.05,3.36,e*(1.2+k*1.5)>,.09 texture{T_Iron}} sphere{<s*(1.6+k*2.2),3.36,e*4.95>,.09 texture{T_Iron}} #end #end #end
 box{<-7,0,-4.8>,<7,.2,4.8> texture{T_Oak}}
 box{<-1.7,-.85,0>,<1.7,.85,.05> texture{pigment{image_map{png concat(TEX,"cratelabel.png") interpolate 2 once} translate<-.5,-.5,0> scale<3.4,1.7,1>} finish{F_Matte}} rotate z*1.5 translate<3.2,2.3,4.63>}
 #for(i,0,6) #for(j,0,4) object{RBox(<-12+i*3.6+mod(j,2)*1.5,-1,-9+j*4.2>,<-8.5+i*3.6+mod(j,2)*1.5,-.02-RR(0,.14),-4.9+j*4.2>,.22) texture{Stone(<.50,.47,.48>*RR(.7,1))}} #end #end
 rotate x*Tilt}
// ---------------- what fills it: straw, letters, bundles, parcels
#declare Sd=seed(52);
#declare StrawT=array[4]{texture{pigment{srgb<.82,.66,.34>} finish{F_Satin}},texture{pigment{srgb<.70,.52,.24>} finish{F_Satin}},texture{pigment{srgb<.92,.79,.48>} finish{F_Satin}},texture{pigment{srgb<.56,.40,.18>} finish{F_Satin}}}
#macro Straw(n,x0,x1,z0,z1,y0,y1) union{#for(i,0,n) #local a=RR(0,360); #local l=RR(.7,1.5); #local c=RR(-.35,.35); union{cylinder{<-l,0,0>,<0,c*.4,c>,.035} cylinder{<0,c*.4,c>,<l,0,0>,.035} rotate<0,a,RR(-16,16)> translate<RR(x0,x1),RR(y0,y1),RR(z0,z1)> texture{StrawT[mod(i,4)]}} #end} #end
#macro Envelope(w,Back) #local h=w*.66; box{<-w/2,0,-h/2>,<w/2,.035,h/2> texture{pigment{image_map{png concat(TEX,#if(Back) "envback.png" #else "envfront.png" #end) interpolate 2 once} translate<-.5,-.5,0> rotate x*90 scale<w,1,h>} finish{F_Matte}}} #end
#macro Bundle(n,w) #local h=w*.62; union{#for(i,0,n) object{RBox(<-w/2+RR(-.06,.06),i*.17,-h/2+RR(-.05,.05)>,<w/2,i*.17+.15,h/2>,.03) texture{Paper(<.94,.87,.70>*RR(.8,1.02))} rotate y*RR(-4,4)} #end object{Envelope(w,0) translate y*(n*.17+.16) rotate y*RR(-3,3)}
 #local top=n*.17+.21; union{box{<-.05,-.02,-h/2-.09>,<.05,top,h/2+.09>} box{<-w/2-.09,-.02,-.05>,<w/2+.09,top,.05>} #for(s,-1,1,2) torus{.22,.05 scale<1.4,1,.7> rotate z*s*24 translate<s*.28,top+.10,0>} #end sphere{<0,top+.04,0>,.12} texture{pigment{srgb<.62,.12,.10>} finish{F_Matte}}}} #end
#macro Package(w,h,d,C) union{object{RBox(<-w/2,0,-d/2>,<w/2,h,d/2>,.07) texture{Paper(C)}} union{box{<-.05,0,-d/2-.04>,<.05,h+.04,d/2+.04>} box{<-w/2-.04,0,-.05>,<w/2+.04,h+.04,.05>} sphere{<0,h+.05,0>,.11} texture{T_Rope}} object{Envelope(w*.5,0) translate<w*.22,h+.01,-d*.20>}} #end
union{box{<-6.8,.2,-4.7>,<6.8,1.5,4.7> texture{pigment{granite scale .5 color_map{[0 srgb<.18,.12,.06>][1 srgb<.46,.33,.16>]}} finish{F_Matte}}}
 object{Straw(950,-6.0,6.0,-3.9,4.2,1.5,2.1)}
 #for(i,0,25) object{Envelope(RR(2.0,2.6),mod(i,2)) rotate<RR(-10,10),RR(-70,70),RR(-9,9)> translate<RR(-5.2,5.2),1.75+i*.022,RR(-3.4,3.4)>} #end
 object{Package(3.4,1.7,2.2,<.66,.46,.26>) rotate y*14 translate<-4.6,1.2,3.2>} object{Package(2.6,1.5,2.0,<.58,.42,.27>) rotate y*-20 translate<5.2,1.3,.2>} object{Package(2.8,1.2,1.9,<.70,.52,.30>) rotate y*8 translate<-.4,1.5,3.4>}
 object{Bundle(5,2.6) rotate<4,28,-6> translate<-5.0,1.7,-.4>} object{Bundle(4,2.5) rotate<0,-16,5> translate<1.3,1.8,-3.2>} object{Bundle(6,2.5) rotate<6,74,0> translate<3.0,1.6,2.2>}
 object{Straw(150,-5.8,5.8,-3.7,4.1,2.1,2.5)} rotate x*Tilt}
#include "scenes/quay/closeups/crate_things.inc"
