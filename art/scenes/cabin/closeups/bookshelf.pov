// Two shelves of the cabin's bookcase, seen from before them by the light of the bulkhead lamp.  1 unit = 5 cm; the lower shelf is y=0.
#version 3.7;
#include "scenes/cabin/closeups/lamplight.inc"
camera{location<0,8.4,-30> right x*.565 up y*.565*520/760 direction<0,-.107,1>}
light_source{<-11,15,-15> LampCol*1.5 area_light x*3,y*3,3,3 adaptive 1 circular orient}
light_source{<22,12,-22> MoonCol*.34 area_light x*6,y*6,2,2 adaptive 0}
light_source{<4,6,-34> srgb<1,.82,.60>*.42 shadowless}
#declare Sd=seed(91);
#for(i,0,8) object{RBox(<-9+i*2,-2,4.0>,<-9+i*2+1.97,14,4.4>,.04) texture{Wood(C_Walnut*RR(1.0,1.25),1,F_Satin) rotate z*90}} #end
#for(i,-1,2) object{RBox(<-9,i*5.6-.5,-.4>,<9,i*5.6,4.2>,.12) texture{Wood(C_Mahog*1.05,1,F_Lacq)}} cylinder{<-9,i*5.6-.25,-.42>,<9,i*5.6-.25,-.42>,.07 texture{T_Brass}} #end
#for(s,-1,1,2) object{RBox(<s*7.85-.3,-1,-.6>,<s*7.85+.3,12,4.2>,.1) texture{Wood(C_Mahog,1,F_Lacq) rotate z*90}} #for(k,0,1) union{cylinder{<0,-.0,0>,<0,.5,0>,.2} sphere{<0,.5,0>,.2} translate<s*7.85,.1+k*5.6,-.65> texture{T_Brass}} #end #end
// ---------------- books and quiet clutter
#declare Sd=seed(93);
object{Books(2.3,2.5,1.6) scale 1.7 translate<-7.5,0,.9>} object{BookStack(3) scale 1.7 rotate y*8 translate<2.0,0,2.0>} object{Books(1.0,2.4,1.6) scale 1.7 translate<-3.5,0,1.1>}
object{Coffer(3.0,2.5,2.0,T_Oak) rotate y*-14 translate<5.6,0,2.0>}
object{Books(3.0,2.4,1.8) scale 1.4 translate<-3.4,5.6,.9>} object{Books(1.3,2.4,1.6) scale 1.7 translate<5.3,5.6,1.1>} object{BookStack(2) scale 1.6 rotate y*-12 translate<-5.9,5.6,2.0>}
object{BottleR(3.6) translate<4.4,5.6,2.6>} object{TinR(2.2) translate<-1.0,0,2.8>} object{JarR(2.6) translate<.3,0,3.0>}
object{VaseR(2.6) translate<7.0,0,2.9>}
#include "scenes/cabin/closeups/bookshelf_things.inc"
