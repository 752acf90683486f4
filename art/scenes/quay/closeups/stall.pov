// The counter of the fish stall, seen from before it; behind it the bay and the Petrel with her lit wheelhouse.  1 unit = 10 cm; paving y=0.
#version 3.7;
#include "scenes/quay/closeups/evening.inc"
camera{location<0,12.2,-13> right x*1.0 up y*1.0*520/760 direction<0,-.27,1>}
light_source{<-14,24,-26> WarmCol*.95 area_light x*6,y*6,3,3 adaptive 1 circular orient}
light_source{<12,60,-14> SkyCol*.45 area_light x*40,z*40,3,3 adaptive 1}
light_source{<30,14,-30> SkyCol*.26 shadowless}
light_source{<40,50,120> GlowCol*.45}
light_source{<-2.3,9.7,5.2> srgb<1,.74,.42>*1.2 area_light x*1,z*1,2,2 adaptive 0 fade_distance 5 fade_power 2}      // the lamp under the awning
light_source{<8,3,24> srgb<1,.74,.42>*.5 fade_distance 8 fade_power 2 shadowless}                                     // the steamer's windows
#include "scenes/quay/backdrop.inc"
#declare Sd=seed(13);
union{#include "scenes/quay/steamer.inc" translate<-15.6,-8.7,7>}
// ---------------- counter, fascia, posts, awning
#declare Sd=seed(61);
#for(i,0,9) object{RBox(<-12,5.15,.1+i*.86>,<12,5.5,.1+i*.86+.82>,.05) texture{Wood(C_Pine*RR(.66,.9),1,F_Satin)}} #end
#for(i,0,17) object{RBox(<-11.6+i*1.3,0,.15>,<-11.6+i*1.3+1.24,5.1,.4>,.05) texture{WornPaint(<.16,.34,.42>,C_Pine) rotate z*90}} #end
object{RBox(<-12,4.6,-.12>,<12,5.25,.25>,.08) texture{WornPaint(<.78,.74,.64>,C_Pine)}}
#for(s,-1,1,2) cylinder{<s*7.9,0,8.6>,<s*7.9,16,8.6>,.26 texture{Wood(C_Pine*.8,1,F_Satin) rotate z*90}} #end
cylinder{<-12,10.5,7.4>,<12,10.5,7.4>,.14 texture{T_Iron}} object{Awning(20,8,17,13.2,13,<.70,.14,.11>,<.86,.82,.70>) translate z*4.6}
// the raised tier at the back, the boxes of ice and fish, price cards
object{RBox(<-12,5.5,5.9>,<12,6.7,8.7>,.06) texture{Wood(C_Pine*.72,1,F_Satin)}} object{RBox(<-12,6.62,5.75>,<12,6.85,8.8>,.06) texture{Wood(C_Pine*.9,1,F_Satin)}}
#declare FishN=array[3]{5,3,4}; #declare FishC=array[3]{<.18,.34,.50>,<.42,.34,.22>,<.25,.38,.42>};
#for(i,0,2) object{FishBox(3.1,2.7,FishN[i],FishC[i]) rotate x*-16 translate<-4.6+i*3.3,5.6,4.1>}
 union{box{<-.75,0,0>,<.75,1.05,.05> texture{pigment{image_map{png concat(TEX,"price",str(i,0,0),".png") interpolate 2 once} translate x*-.5 scale<1.5,1.05,1>} finish{F_Matte}}} cylinder{<0,-.6,.06>,<0,.2,.06>,.05 texture{T_Oak}} rotate z*(i-1)*3 translate<-4.6+i*3.3,6.9,5.6>} #end
// the scales on the tier
#declare Sd=seed(62);
union{cylinder{0,<0,.3,0>,.8 texture{T_Iron}} cylinder{<0,.3,0>,<0,2.6,0>,.14 texture{T_Brass}} cylinder{<-1.5,2.6,0>,<1.5,2.6,0>,.09 texture{T_Brass}} sphere{<0,2.75,0>,.2 texture{T_Gold}}
 #for(s,-1,1,2) lathe{cubic_spline 6 <0,0>,<0,.02>,<.5,.06>,<.8,.3>,<.82,.34>,<.8,.4> translate<s*1.5,.75,0> texture{T_Brass}} #for(k,0,2) cylinder{<s*1.5,2.6,0>,<s*1.5+.75*cos(k*2.1),1.05,.75*sin(k*2.1)>,.03 texture{T_Brass}} #end #end scale 1.05 translate<-6.4,6.85,7.2>}
// cutting board with a cod, a basket of shells, a crock, wrapping paper, twine
union{object{RBox(<-2.4,0,-1.0>,<2.4,.3,1.0>,.08) texture{Wood(C_Oak*.95,1,F_Satin)}} object{Herring(3.2,<.42,.34,.22>) scale<1,1.25,1.25> rotate x*48 rotate y*-6 translate<-.2,.66,.35>} rotate y*5 translate<-1.5,5.5,1.5>}
#macro Basket(r,h) union{#for(j,0,5) torus{r*(.86+.03*j),.11 translate y*(.1+h*j/5.5)} #end #for(k,0,23) cylinder{<r*.86,0,0>,<r*1.03,h,0>,.06 rotate y*k*15} #end torus{r*1.04,.14 translate y*h} texture{pigment{granite scale .3 color_map{[0 srgb<.42,.26,.12>][1 srgb<.74,.52,.28>]}} finish{F_Matte}}} cylinder{<0,.05,0>,<0,h*.72,0>,r*.9 texture{pigment{srgb<.14,.09,.05>} finish{F_Matte}}} #end
union{Basket(1.45,1.3) #for(i,0,60) sphere{0,1 scale<.30,.20,.16> rotate RV()*360 translate<RR(-1,1),1.0+RR(0,.35),RR(-1,1)> texture{pigment{onion turbulence .4 color_map{[0 srgb<.10,.11,.18>][1 srgb<.26,.28,.40>]} scale .08} finish{F_Gloss}}} #end translate<5.9,5.5,5.0>}
object{VaseR(2.2) translate<7.3,5.5,3.9>} object{JarR(1.7) translate<2.3,6.85,7.6>} object{BottleR(2.3) translate<3.3,6.85,7.9>} object{TinR(1.5) translate<-2.6,6.85,7.7>} object{BottleR(1.9) translate<-3.6,6.85,7.9>}
object{Papers(5,2.0,1.6) rotate y*14 translate<4.3,5.52,1.0>}
// hung up: a lamp, dried fish, a string of floats, a net at the side
object{WallLantern() scale .95 translate<-2.3,11.6,5.2>}
#for(i,0,1) union{object{Herring(2.0,FishC[i]) rotate z*-90} cylinder{<0,.9,0>,<0,2.6,0>,.03 texture{T_Rope}} translate<-.9+i*.85,8.9-.15*mod(i,2),7.3>} #end
object{NetPatch(<-9.2,13,6.8>,<-5.6,12.6,7.2>,<-9.2,8.3,6.8>,<-7.2,9.2,7.0>,.5,16,12,.04,<.36,.42,.34>)} object{GlassFloat(.62,<.50,.95,.80>) translate<-7.2,9.4,6.6>}
#include "scenes/quay/closeups/stall_things.inc"
