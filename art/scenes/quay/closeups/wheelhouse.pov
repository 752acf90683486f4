// The wheelhouse of the Petrel at dusk, the bay with its dark lighthouse before her windows.  1 unit = 10 cm; deck y=0, front wall z=10.
#version 3.7;
#include "scenes/quay/closeups/evening.inc"
camera{location<0,15.5,-30> right x*1.36 up y*1.36*768/1366 direction<0,-.20,1>}
// the lamp of the room, warm, and the evening sky through the windows
light_source{<-13,24,-28> WarmCol*.82 area_light x*7,y*7,3,3 adaptive 1 circular orient}
light_source{<6.2,15.4,1.0> srgb<1,.70,.36>*1.5 area_light x*1,z*1,2,2 adaptive 0 fade_distance 10 fade_power 2}
light_source{<-12,30,60> SkyCol*.85 area_light x*10,y*10,3,3 adaptive 1}
light_source{<24,15,-34> SkyCol*.30 shadowless}
light_source{<-15,13,-4> srgb<1,.74,.42>*.7 fade_distance 11 fade_power 2 shadowless}
// the bay
box{<-700,-70,900>,<700,320,901> texture{pigment{image_map{png concat(TEX,"evening.png") interpolate 2 once} translate<-.5,0,0> scale<1105,382,1> translate<-74,-68,0>} finish{emission 1.0 diffuse 0}} no_shadow}
plane{y,-40 texture{pigment{srgb<.03,.06,.10>} normal{average normal_map{[1 bumps .35 scale<5,1,1.2>][1 bumps .22 scale<1.6,1,.5>]} scale 4} finish{ambient 0 emission .05 diffuse .35 specular .4 roughness .03 reflection{.10,.85 falloff 3}}}}
sphere{0,3000 inverse texture{pigment{gradient y color_map{[0 srgb<.72,.50,.46>][.12 srgb<.42,.42,.56>][.5 srgb<.16,.22,.42>][1 srgb<.10,.14,.30>]}} finish{emission .75 diffuse 0}} no_shadow}
// ---------------- front wall: boards, five windows between piers, the sill
#declare Sd=seed(31);
#declare WallC=<.58,.36,.18>;
#macro Pane(x0,x1) union{
 #for(s,0,1) object{RBox(<(s?x1-.35:x0),10.3,9.5>,<(s?x1:x0+.35),18.2,10.1>,.06) texture{Wood(C_Teak,1,F_Lacq) rotate z*90}} object{RBox(<x0,10.3+s*7.5,9.5>,<x1,10.7+s*7.5,10.1>,.06) texture{Wood(C_Teak,1,F_Lacq)}} #end
 object{RBox(<x0,14.9,9.6>,<x1,15.2,10.0>,.05) texture{Wood(C_Teak,1,F_Lacq)}} torus{.22,.05 rotate x*80 translate<(x0+x1)/2,10.75,9.4> texture{T_Brass}}
 box{<x0,10.4,9.9>,<x1,18.1,9.92> texture{pigment{srgbt<.95,.97,1,.97>} finish{ambient 0 diffuse 0 specular .5 roughness .01 reflection{.02,.16 falloff 3}}} no_shadow}} #end
#for(i,-2,2) object{Pane(i*8.2-2.95,i*8.2+2.95)} #end
#for(i,0,5) #local xc=-20.5+i*8.2; #for(k,0,2) object{RBox(<xc-1.15+k*.77,9,9.8>,<xc-1.15+k*.77+.75,18.6,10.4>,.05) texture{Wood(WallC*RR(.85,1.1),1,F_Satin) rotate z*90}} #end #end
object{RBox(<-25,18.1,9.2>,<25,19.0,10.5>,.15) texture{Wood(C_Mahog,1,F_Lacq)}} object{RBox(<-25,19,9.6>,<25,23,10.4>,.1) texture{Wood(WallC,1,F_Satin)}}
#for(i,0,5) object{RBox(<-20.8+i*8.2,18.9,-2>,<-20.2+i*8.2,19.9,10>,.12) texture{Wood(C_Walnut*1.2,1,F_Satin) rotate y*90}} #end box{<-25,19.9,-6>,<25,20.3,10.5> texture{Wood(<.80,.74,.60>,.6,F_Satin)} no_shadow}
object{RBox(<-25,9.3,6.9>,<25,9.9,10.4>,.14) texture{Wood(C_Mahog*1.1,1,F_Lacq)}} cylinder{<-25,9.1,6.95>,<25,9.1,6.95>,.10 texture{T_Brass}}
#macro Panel(w,h) union{object{RBox(<0,0,0>,<w,h,.4>,.03) texture{T_Mahog}} object{RBox(<.35,.35,-.14>,<w-.35,h-.35,.2>,.13) texture{Wood(C_Mahog*1.12,1,F_Lacq)}} #for(s,0,1) object{RBox(<.22,.22+s*(h-.54),-.1>,<w-.22,.32+s*(h-.54),.2>,.04) texture{T_Mahog}} object{RBox(<.22+s*(w-.54),.22,-.1>,<.32+s*(w-.54),h-.22,.2>,.04) texture{T_Mahog rotate z*90}} #end} #end
#for(i,0,9) object{Panel(4.9,8.0) translate<-25+i*5,1.2,7.4>} #end object{RBox(<-25,0,7.0>,<25,1.2,8>,.1) texture{T_Walnut}} box{<-25,0,7.7>,<25,9.4,7.9> texture{T_Walnut}} box{<-25,9.5,9.7>,<25,10.4,10.3> texture{T_Walnut}}
// side walls
#for(s,-1,1,2) union{#for(i,0,12) object{RBox(<0,0,9.6-i*1.5>,<.6,20,9.6-i*1.5+1.46>,.06) texture{Wood(WallC*RR(.8,1),1,F_Satin) rotate z*90}} #end box{<-.3,9.2,-14>,<.4,9.9,10> texture{T_Walnut rotate y*90}} scale<s,1,1> translate x*s*22.6} #end
#for(i,0,22) object{RBox(<-24,-.5,9-i*1.1-1.08>,<24,0,9-i*1.1>,.05) texture{Wood(C_Oak*RR(.42,.58),1,F_Satin) translate x*RR(-9,9)}} #end
box{<-25,-1,-16>,<25,-.3,10> texture{T_Walnut}} box{<-25,0,10.35>,<-20.5,20,10.5> texture{T_Walnut}} box{<20.5,0,10.35>,<25,20,10.5> texture{T_Walnut}}
// ---------------- the wheel on its pedestal, a grating before it
#declare Sd=seed(32);
union{object{RBox(<-1.5,0,4.8>,<1.5,1.0,7>,.1) texture{T_Mahog}} object{RBox(<-1.0,1,5.2>,<1.0,8.2,6.8>,.25) texture{Wood(C_Mahog,1,F_Lacq) rotate z*90}} object{RBox(<-1.25,8.0,5.0>,<1.25,8.5,7>,.12) texture{T_Walnut}}
 cylinder{<0,7.3,3.6>,<0,7.3,6>,.32 texture{T_Brass}} torus{.75,.12 rotate x*90 translate<0,7.3,5.15> texture{T_Brass}}
 object{O_Wheel() translate y*-.495 rotate z*11 scale 9.4 translate<0,7.3,3.4>} translate x*-1.4}
union{#for(i,0,9) box{<-3.6,.0,-.2+i*.42>,<3.6,.34,.02+i*.42>} #for(i,0,17) box{<-3.6+i*.42,.05,-.2>,<-3.4+i*.42,.30,4> } #end #end texture{Wood(C_Oak*.7,1,F_Satin)} translate<-1.4,0,-1.4>}
// ---------------- engine telegraph
union{lathe{cubic_spline 13 <1.6,-.1>,<1.6,0>,<1.55,.3>,<.9,.7>,<.55,1.2>,<.50,3>,<.52,5.4>,<.60,5.9>,<.85,6.2>,<.9,6.5>,<.6,6.8>,<0,6.9>,<-.1,6.9> texture{T_Brass}}
 union{cylinder{<0,0,-.75>,<0,0,.75>,2.0 texture{T_Brass}} torus{1.98,.16 rotate x*90 translate z*-.75 texture{T_Gold}} disc{<0,0,-.77>,z,1.85 texture{pigment{image_map{png concat(TEX,"telegraph.png") interpolate 2 once} translate<-.5,-.5,0> scale 3.8} finish{F_Satin}}}
  union{box{<-.10,0,-1.0>,<.10,2.6,-.86>} cylinder{<0,2.5,-1.3>,<0,2.5,1.3>,.17} sphere{<0,2.5,-1.35>,.24} rotate z*-20 texture{T_OldBrass}} cylinder{<0,0,-1.05>,<0,0,-.7>,.28 texture{T_Gold}} translate y*8.5} scale .98 translate<-9.6,0,3.2>}
// speaking tubes on the pier left of the wheel
#for(k,0,1) union{cylinder{<0,11.5,0>,<0,20,0>,.22} sphere_sweep{cubic_spline 6 <0,12,0>,.22,<0,11.6,0>,.22,<0,10.9,-.15>,.23,<0,10.5,-.6>,.27,<0,10.45,-1.0>,.4,<0,10.4,-1.3>,.5 tolerance .01} torus{.52,.09 rotate x*82 translate<0,10.44,-1.15>} texture{T_Brass} translate<-4.5+k*.85,2.0,9.3>} #end
// ---------------- locker bench at the left, cushions
#declare Sd=seed(33);
union{object{RBox(<-22.5,0,-1>,<-12.6,4.9,7>,.12) texture{T_Mahog}} #for(i,0,1) object{Panel(4.5,3.2) translate<-22.2+i*4.8,.9,-1.2>} torus{.26,.06 rotate x*10 translate<-19.9+i*4.8,2.5,-1.5> texture{T_Brass}} #end object{RBox(<-22.6,4.7,-1.4>,<-12.3,5.1,7>,.1) texture{T_Walnut}}
 superellipsoid{<.25,.35> scale<4.9,.42,3.9> translate<-17.5,5.4,2.9> texture{Cloth(<.14,.26,.24>,.06)}} #for(i,0,2) #for(j,0,1) sphere{<-20.4+i*2.9,5.83,1.2+j*3.2>,.12 texture{T_Brass}} #end #end
 superellipsoid{<.5,.5> scale<1.7,1.45,.55> rotate<-20,12,6> translate<-20.2,7.1,5.9> texture{Cloth(<.52,.14,.11>,.05)}} superellipsoid{<.5,.5> scale<1.5,1.3,.5> rotate<-22,-16,-5> translate<-14.6,6.9,6.1> texture{Cloth(<.16,.24,.40>,.05)}}}
// notice of sailings on the side pier, a pennant rail, ropes on pegs
box{<-1.15,-1.5,0>,<1.15,1.5,.05> texture{pigment{image_map{png concat(TEX,"notice.png") interpolate 2 once} translate<-.5,-.5,0> scale<2.3,3.06,1>} finish{F_Matte}} rotate z*-2 translate<-12.35,15.9,9.65>} sphere{<-12.3,17.25,9.6>,.1 texture{T_Brass}}
#for(k,0,1) union{cylinder{<0,0,0>,<0,0,-.7>,.12 texture{T_Brass}} #for(i,0,4) torus{.9+.05*i,.10 rotate x*90 scale<.72,1.25,1> translate<RR(-.06,.06),-1.1+RR(-.05,.05),-.22-.05*i> texture{T_Rope}} #end translate<-20.6+k*40.9,15.8,9.6>} #end
// ---------------- chart table at the right
#declare Sd=seed(34); #declare TY=7.6;
union{object{RBox(<5.2,TY-.5,-2.6>,<22.6,TY,6.6>,.15) texture{Wood(C_Mahog*1.1,1,F_Lacq)}} object{RBox(<5.8,.3,-1.9>,<22.4,TY-.5,6.2>,.1) texture{T_Mahog}}
 #for(k,0,3) #for(i,0,1) object{RBox(<7.0+i*7.7,1.0+k*1.55,-2.15>,<14.3+i*7.7,2.4+k*1.55,-1.8>,.08) texture{Wood(C_Mahog*1.15,1,F_Lacq)}} #for(m,0,1) torus{.24,.06 rotate x*70 translate<8.6+i*7.7+m*4.1,1.7+k*1.55,-2.25> texture{T_Brass}} #end #end #end
 cylinder{<5.3,TY+.25,-2.5>,<22.6,TY+.25,-2.5>,.07 texture{T_Brass}} #for(i,0,5) cylinder{<5.5+i*3.3,TY,-2.5>,<5.5+i*3.3,TY+.25,-2.5>,.07 texture{T_Brass}} #end}
object{FlatImg(concat(TEX,"chart.png"),9.0,5.4) rotate y*-6 translate<11.0,TY+.03,.6>} object{Papers(4,2.0,2.7) translate<19.4,TY+.02,.2>}
object{Books(4.6,2.5,2) translate<15.7,TY,4.6>}
#for(i,0,4) object{Scroll(RR(4.2,5.4),RR(.22,.32)) rotate z*RR(78,100) rotate y*RR(-20,20) translate<6.5+RR(-.6,.6),TY+.2,5.6+RR(-.3,.3)>} #end union{difference{cylinder{<0,0,0>,<0,2.4,0>,1.15} cylinder{<0,.1,0>,<0,3,0>,1.0}} torus{1.15,.08 translate y*2.4} torus{1.15,.08 translate y*.3} texture{T_OldBrass} translate<6.5,TY,5.6>}
object{InkWell() scale 1.3 translate<15.6,TY,-1.2>}
// the box before the table, the hanging lamp
union{object{RBox(<-2.3,0,-1.6>,<2.3,3.6,1.6>,.08) texture{WornPaint(<.16,.30,.40>,C_Pine)}} object{RBox(<-2.4,3.5,-1.7>,<2.4,3.95,1.7>,.08) texture{WornPaint(<.18,.34,.44>,C_Pine)}} #for(s,-1,1,2) object{RBox(<s*1.7-.2,0,-1.72>,<s*1.7+.2,3.6,-1.5>,.04) texture{T_OldBrass}} #end box{<-.3,2.7,-1.75>,<.3,3.7,-1.6> texture{T_Brass}} rotate y*-8 translate<3.3,0,.2>}
object{WallLantern() scale 1.25 translate<6.2,18.6,1.0>} Chain(<6.2,18.4,1>,<6.2,20,1>,.2)
// books and tins on the sill's ends, floats and a curtain at the edges
object{TinR(1.3) translate<-20.2,9.9,8.4>} object{BottleR(2.1) translate<-19.2,9.9,9.2>} object{JarR(1.5) translate<19.4,9.9,8.8>} object{BottleR(2.2) translate<20.8,9.9,8.8>}  object{VaseR(1.9) translate<-11.6,9.9,9.0>}
object{Curtain(3.4,17,4,<.14,.24,.22>) translate<-18.0,19.6,-4.0>} object{Curtain(3.0,17,4,<.14,.24,.22>) translate<18.2,19.6,-4.0>}
#include "scenes/quay/closeups/wheelhouse_things.inc"
