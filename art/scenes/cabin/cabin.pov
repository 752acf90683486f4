// The captain's cabin of the Petrel by night.  1 unit = 10 cm; the back wall is z=10, the floor y=0.
// SHOW=-1 renders everything, SHOW=0 the bare cabin, SHOW=k the cabin with thing k alone (numbers in things.inc).
// BOUNCE=1 adds light from surface to surface.
#version 3.7;
#ifndef(SHOW) #declare SHOW=-1; #end
#ifndef(BOUNCE) #declare BOUNCE=0; #end
global_settings{assumed_gamma 1.0 max_trace_level 6
 #if(BOUNCE) radiosity{pretrace_start .08 pretrace_end .04 count 20 nearest_count 5 error_bound 1.2 recursion_limit 1 low_error_factor .7 gray_threshold .15 minimum_reuse .02 brightness 1.0} #end}
#include "povray/props.inc"
#declare Sd=seed(4242);
camera{location<0,14,-37> right x*1.06 up y*1.06*768/1366 direction<0,-.164,1>}   // a shifted lens: the floor lies under the game's panel
// One light: the hanging oil lamp; a candle on the desk, a bulkhead lamp over the books, the moon through the porthole.
#declare HL=<-4.9,14.2,-1.0>;
light_source{HL+<0,1.5,-.2> srgb<1,.70,.36>*1.75 area_light x*1.2,z*1.2,3,3 adaptive 0 circular orient fade_distance 11 fade_power 2}
light_source{<10.2,10.6,-1.2> srgb<1,.64,.28>*1.2 area_light x*.6,y*.6,2,2 adaptive 0 circular orient fade_distance 6 fade_power 2}
light_source{<16.5,17,-3> srgb<1,.76,.46>*.9 area_light x*1.5,y*1.5,2,2 adaptive 0 circular orient fade_distance 11 fade_power 2}
light_source{<-10,22,-34> srgb<1,.80,.56>*.60 area_light x*9,y*9,3,3 adaptive 0 circular orient}
light_source{<-15,10,-8> srgb<1,.72,.44>*.62 fade_distance 9 fade_power 2 shadowless}
light_source{<-24,24,34> srgb<.46,.62,1>*.95}
light_source{<14,10,-40> srgb<.42,.50,.74>*.36 shadowless}
// ---------------- shell
#declare WallW=array[6]{<.64,.38,.17>,<.58,.33,.14>,<.68,.42,.19>,<.56,.32,.13>,<.64,.37,.16>,<.60,.38,.18>}
#declare PortA=<-13.4,12.8,10>; #declare PR=2.7;
#declare Boards=union{ #for(i,0,34) #local xx=-21+i*1.22; object{RBox(<xx,6,10>,<xx+1.20,20,10.6>,.06) texture{Wood(WallW[mod(i*5+2,6)]*RR(.9,1.06),1,F_Satin) rotate z*90}} #end }
difference{object{Boards} cylinder{PortA-z*3,PortA+z*3,PR} texture{T_Teak}}
difference{box{<-21.5,-1,10.62>,<21.5,21,10.9>} cylinder{PortA-z*3,PortA+z*3,PR+.2} texture{T_Walnut}}
#macro Panel(w,h) union{object{RBox(<0,0,0>,<w,h,.4>,.03) texture{T_Mahog}} object{RBox(<.35,.35,-.14>,<w-.35,h-.35,.2>,.13) texture{Wood(C_Mahog*1.12,1,F_Lacq)}} #for(s,0,1) object{RBox(<.22,.22+s*(h-.54),-.1>,<w-.22,.32+s*(h-.54),.2>,.04) texture{T_Mahog}} object{RBox(<.22+s*(w-.54),.22,-.1>,<.32+s*(w-.54),h-.22,.2>,.04) texture{T_Mahog rotate z*90}} #end} #end
#for(i,0,10) object{Panel(3.75,5) translate<-21+i*3.82,.9,9.8>} #end
object{RBox(<-21,5.9,9.3>,<21,6.5,10.5>,.12) texture{T_Walnut}} object{RBox(<-21,0,9.4>,<21,.95,10.5>,.1) texture{T_Walnut}} object{RBox(<-21,18.6,9.0>,<21,20,10.5>,.25) texture{T_Walnut}}
#for(s,-1,1,2) union{ // side walls
 #for(i,0,20) object{RBox(<0,6,-i*1.5+8.6>,<.6,20,-i*1.5+10.08>,.06) texture{Wood(WallW[mod(i*5+2,6)]*RR(.9,1.06),1,F_Satin) rotate z*90}} #end
 #for(i,0,6) object{Panel(3.75,5) rotate y*-90 translate<.2,.9,10-i*3.82-3.8>} #end
 box{<.45,-1,-24>,<.9,22,10.6> texture{T_Walnut}} box{<-.4,5.9,-20>,<.6,6.5,10> texture{T_Walnut rotate y*90}} scale<s,1,1> translate x*s*20.6} #end
#for(i,0,26) object{RBox(<-22,-.5,10-i*1.3-1.28>,<22,0,10-i*1.3>,.05) texture{Wood(C_Oak*RR(.62,.86),1,F_Lacq) translate x*RR(-9,9)}} #end
union{ #for(i,0,4) object{RBox(<-19.5+i*9.4,19.0,-2>,<-18.2+i*9.4,20.6,10>,.14) texture{Wood(C_Walnut*1.1,1,F_Satin) rotate y*90}} #end box{<-22,20.4,-2>,<22,20.8,10.5> texture{Wood(<.80,.74,.60>,.6,F_Satin)}} no_shadow}
// ---------------- porthole and sea
box{<-40,-20,24>,<14,34,24.1> texture{pigment{image_map{png concat(TEX,"evening.png") interpolate 2} translate<-.32,-.06,0> scale<64,22,1> translate<-20.6,6.5,0>} finish{emission rgb<.16,.24,.46> diffuse 0}} no_shadow}
disc{<-18.3,13.7,23.9>,z,.62 texture{pigment{srgb<1,.96,.84>} finish{emission 1 diffuse 0}} no_shadow}
union{torus{PR+.35,.42 rotate x*90 texture{T_Brass}} torus{PR-.05,.16 rotate x*90 translate z*-.2 texture{T_Gold}} #for(k,0,11) sphere{<(PR+.55)*cos(k*pi/6),(PR+.55)*sin(k*pi/6),-.42>,.16 texture{T_Gold}} #end
 cylinder{<0,0,.1>,<0,0,.12>,PR texture{pigment{srgbt<.93,.97,1,.95>} finish{specular .6 roughness .01 diffuse 0 reflection{.02,.2}}} no_shadow} difference{cylinder{<0,0,-.1>,<0,0,1>,PR+.4} cylinder{<0,0,-2>,<0,0,2>,PR} texture{T_OldBrass}}
 box{<-.25,-PR-1.0,-.5>,<.25,-PR-.1,-.1> texture{T_Brass}} sphere{<0,-PR-1.1,-.4>,.3 texture{T_Gold}} box{<PR+.2,-.5,-.35>,<PR+.9,.5,.1> texture{T_Brass}} translate PortA-z*.1}
object{Curtain(2.2,9.5,5,<.46,.09,.09>) translate<-17.6,17.6,9.0>} object{Curtain(2.2,9.5,5,<.46,.09,.09>) translate<-9.4,17.6,9.0>}
cylinder{<-19,17.7,9.0>,<-8,17.7,9.0>,.16 texture{T_Brass}} sphere{<-19,17.7,9>,.3 texture{T_Gold}} sphere{<-8,17.7,9>,.3 texture{T_Gold}} #for(i,0,9) torus{.24,.05 rotate z*90 translate<(i<5?-18.7+i*.5:-10.5+(i-5)*.55),17.62,9> texture{T_Brass}} #end
// ---------------- bunk under the porthole
union{object{RBox(<-20.6,0,3>,<-6.8,4.4,9.3>,.12) texture{T_Mahog}} #for(i,0,2) object{Panel(4.3,2.6) translate<-20.4+i*4.55,.8,2.85>} torus{.28,.07 rotate x*10 translate<-18.2+i*4.55,1.95,2.5> texture{T_Brass}} sphere{<-18.2+i*4.55,2.2,2.6>,.16 texture{T_Brass}} #end
 object{RBox(<-20.6,4.3,2.7>,<-6.8,4.75,3.2>,.1) texture{T_Walnut}}
 superellipsoid{<.25,.25> scale<6.8,.75,3.05> translate<-13.7,4.9,6.1> texture{Cloth(<.82,.76,.64>,.06)}}
 #local A=array[61][31]; #for(i,0,60) #for(j,0,30) #local q=i/60; #local e=j/30; #local xx=-17.2+10.2*q; #local zz=2.55+6.6*max(0,e-.12)/.88; #local A[i][j]=<xx+.12*sin(e*9),(e<.12? 3.6+(e/.12)*2.05 : 5.68)+.13*sin(q*9+e*4)*sin(e*8)+.10*sin(q*23+1)*(1-e),zz-(e<.12?.15*sin(q*26)*(1-e/.12):0)>; #end #end
 object{GridMesh(A,60,30,0,0) texture{pigment{uv_mapping checker srgb<.17,.26,.38>,srgb<.70,.62,.48> scale<1/12,1/7,1>}  finish{ambient 0 diffuse .9}} texture{pigment{uv_mapping gradient y color_map{[0 srgbt<.55,.10,.10,0>][.08 srgbt<.55,.10,.10,0>][.08 srgbt 1][1 srgbt 1]} scale 1/10} finish{F_Matte}} texture{pigment{uv_mapping gradient x color_map{[0 srgbt<.55,.10,.10,.1>][.08 srgbt<.55,.10,.10,.1>][.08 srgbt 1][1 srgbt 1]} scale 1/16} finish{F_Matte}}}
 superellipsoid{<.55,.55> scale<1.5,.65,2.2> rotate z*12 rotate y*6 translate<-18.6,6.2,6.6> texture{Cloth(<.90,.86,.76>,.05)}} superellipsoid{<.5,.5> scale<1.3,1.2,.5> rotate<-18,14,8> translate<-18.4,7.2,8.5> texture{Cloth(<.60,.14,.12>,.05)}}}
 object{BookStack(3) rotate y*20 translate<-9.2,5.6,7.2>}  
// small shelf above the bunk left with bottles
union{object{RBox(<-20.6,9.6,8.2>,<-18.3,9.9,10>,.05) texture{T_Walnut}} translate z*0} object{BottleR(2.1) translate<-20,9.9,9.1>} object{JarR(1.5) translate<-18.9,9.9,9.1>}
// ---------------- wall centre: chart, clock, pictures
object{Frame(concat(TEX,"chart.png"),9.4,5.4,.55,T_Mahog) translate<-.4,13.2,9.75>}
object{Clock(1.25,T_Walnut) translate<6.3,15.7,9.6>} object{Frame(concat(TEX,"paint1.png"),2.5,1.8,.3,T_Oak) translate<6.3,12.2,9.8>}  cylinder{<6.3,9.2,9.2>,<6.3,9.2,10>,.08 texture{T_Brass}}
 
// low sideboard under the chart
union{object{RBox(<-5.6,0,6.4>,<7.6,5.6,9.4>,.1) texture{T_Mahog}} #for(i,0,2) object{Panel(4.1,2.9) translate<-5.4+i*4.35,.6,6.25>} object{RBox(<-5.2+i*4.35,3.8,6.15>,<-1.5+i*4.35,5.0,6.5>,.1) texture{T_Mahog}} sphere{<-3.35+i*4.35,4.4,6.0>,.2 texture{T_Brass}} sphere{<-1.9+i*4.35,2.2,6.0>,.16 texture{T_Brass}} #end object{RBox(<-5.9,5.5,6.0>,<7.9,5.95,9.5>,.14) texture{T_Walnut}}}
object{DiveHelmet(1.1) rotate y*14 translate<-4.3,5.95,7.9>}  object{Coffer(2.1,1.5,1.3,T_Oak) rotate y*12 translate<3.0,5.95,7.7>}  object{VaseR(2.2) translate<5.0,5.95,8.4>}   
// ---------------- bookcase right
#declare BX0=8.6; #declare BX1=20.2;
union{box{<BX0,0,9.2>,<BX1,18.2,9.6> texture{Wood(C_Walnut*.8,1,F_Satin) rotate z*90}} #for(s,0,1) object{RBox(<(s?BX1-.5:BX0),0,6.2>,<(s?BX1:BX0+.5),18.2,9.4>,.1) texture{T_Mahog rotate z*90}} #end object{RBox(<14.2,4.6,6.5>,<14.5,17.4,9.4>,.06) texture{T_Mahog rotate z*90}}
 #for(i,0,4) object{RBox(<BX0,4.4+i*3.2,6.3>,<BX1,4.75+i*3.2,9.4>,.06) texture{T_Mahog}} #if(i<4) cylinder{<BX0+.5,5.5+i*3.2,6.45>,<BX1-.5,5.5+i*3.2,6.45>,.07 texture{T_Brass}} #end #end
 object{RBox(<BX0-.4,17.3,5.8>,<BX1+.4,18.3,9.4>,.25) texture{T_Mahog}} #for(i,0,1) object{Panel(5.3,3.6) translate<BX0+.35+i*5.6,.5,6.1>} sphere{<BX0+5.2+i*1.2,2.4,5.9>,.2 texture{T_Brass}} #end}
object{Books(5.0,2.5,2) translate<BX0+.6,4.75,6.9>} object{Books(3.2,2.4,2) translate<14.6,4.75,6.9>} 
object{Books(2.6,2.5,2) translate<BX0+.6,7.95,6.9>}  object{Books(5.1,2.5,2) translate<14.6,7.95,6.9>}
object{JarR(1.9) translate<9.9,11.15,7.7>} object{BottleR(2.3) translate<11.2,11.15,7.9>}   object{Books(2.9,2.4,2) translate<14.6,11.15,6.9>} object{TinR(1.7) translate<18.4,11.15,7.6>} object{BottleR(2.2) translate<19.3,11.15,8.2>}
object{Books(4.2,2.4,2) translate<BX0+.6,14.35,6.9>}  object{Coral(70,<.85,.80,.70>) scale .62 translate<15.9,14.35,7.9>} object{Coffer(1.8,1.4,1.2,T_Teak) rotate y*-12 translate<18.5,14.35,7.6>}
// ---------------- rug
box{<-13,0,-12>,<9,.06,3.2> texture{pigment{image_map{png concat(TEX,"rug.png") interpolate 2} rotate x*90 scale<22,1,15.2> translate<-13,0,-12>} normal{granite .25 scale .3} finish{ambient 0 diffuse .9}}}
// ---------------- desk
#declare DY=7.3;
union{object{RBox(<1.5,DY-.55,-6.6>,<18.2,DY,1.4>,.18) texture{Wood(C_Mahog*1.1,1,F_Lacq)}} object{RBox(<2.6,DY-.02,-5.7>,<17.1,DY+.04,.5>,.03) texture{Leather(<.12,.26,.18>)}}
 #for(s,0,1) #local x0=(s?12.6:2.2); object{RBox(<x0,.4,-6.2>,<x0+5,DY-.5,1>,.1) texture{T_Mahog}} #for(k,0,2) object{RBox(<x0+.35,.8+k*2.0,-6.4>,<x0+4.65,2.6+k*2.0,-6.1>,.1) texture{Wood(C_Mahog*1.15,1,F_Lacq)}} sphere{<x0+2.5,1.75+k*2.0,-6.6>,.16 texture{T_Brass}} torus{.4,.06 rotate x*75 translate<x0+2.5,1.55+k*2.0,-6.62> texture{T_Brass}} #end #end
 object{RBox(<7.3,DY-2,-6.1>,<12.5,DY-.5,-5.8>,.1) texture{T_Mahog}} sphere{<9.9,DY-1.2,-6.2>,.18 texture{T_Brass}}}
object{FlatImg(concat(TEX,"chart.png"),7.2,4.1) rotate y*9 translate<8.2,DY+.06,-3.4>}  
object{FlatImg(concat(TEX,"pages.png"),3.4,2.4) rotate y*-14 translate<14.6,DY+.25,-4.4>} object{BookC(<.30,.10,.08>,3.5,.24,2.5) translate<-1.75,0,-1.25> rotate y*-14 translate<14.6,DY+.01,-4.4>}
object{InkWell() translate<12.0,DY+.05,-1.9>}  object{Papers(7,1.7,2.3) translate<4.6,DY+.04,-1.8>} 
object{O_Candle() scale 2.5 translate<10.2,DY+.04,-.6>} object{BookStack(4) translate<15.6,DY+.04,-1.0>} object{Globe(1.5) translate<3.6,DY+.04,-.2>} object{Sextant() scale 1.3 rotate x*-8 rotate y*20 translate<17.0,DY+1.5,-2.6>}   
// ---------------- left foreground: sea chest, barrel of charts, rope
object{Coffer(6.4,4.6,4.0,Wood(C_Teak*.95,1,F_Satin)) rotate y*24 translate<-13.8,0,-2.6>} 
 object{BookStack(3) rotate y*30 translate<-12.2,4.35,-3.2>}
object{Barrel(5.2) translate<-7.4,0,1.2>} #for(i,0,6) object{Scroll(RR(4,5.6),RR(.24,.36)) rotate z*RR(70,104) rotate y*RR(-25,25) translate<-7.4+RR(-.9,.9),4.2,1.2+RR(-.8,.6)>} #end
object{O_Rope() scale 3.0 translate<-8.0,.06,-3.6>} 
object{PlankBox(4.4,3,3.4,C_Pine,3) rotate y*-14 translate<17.2,0,-9.6>}
// ---------------- right wall : coat hooks, umbrella, hat
// ---------------- hanging lamp
union{Chain(<0,5.6,0>,<0,3.0,0>,.34) texture{T_Brass}  translate HL} object{O_OilLamp() scale 3.4 translate HL}
object{GlassFloat(.95,<.65,.98,.85>) translate<-17.5,16.6,1>} object{GlassFloat(.7,<.70,.85,.98>) translate<-18.9,15.2,1.4>} RopeLine(<-17.5,17.5,1>,<-17.4,20,1>,.09) RopeLine(<-18.9,15.9,1.4>,<-18.7,20,1.4>,.09)
// ---------------- v2 clutter
// long high shelf over the chart
object{RBox(<-6.4,16.9,8.4>,<4.6,17.2,10>,.06) texture{T_Walnut}} #for(i,0,2) object{RBox(<-6+i*5.1,16.2,8.8>,<-5.7+i*5.1,16.9,10>,.06) texture{T_Walnut}} #end
    object{JarR(1.3) translate<-.4,17.2,9.2>} object{Coral(60,<.80,.25,.18>) scale .55 translate<1.0,17.2,9.1>}  object{TinR(1.2) translate<3.8,17.2,9.2>}
// floor: boots, open letter, fallen books, small crate, cat basket, buckets
#macro Boot() union{lathe{cubic_spline 7 <.0,0>,<.55,.1>,<.5,.6>,<.52,1.4>,<.62,2.6>,<.66,3>,<.60,3.02> texture{Leather(<.20,.11,.06>)}} superellipsoid{<.6,.5> scale<.55,.35,1.05> translate<0,.36,-.6> texture{Leather(<.20,.11,.06>)}} object{RBox(<-.55,0,-1.6>,<.55,.16,.55>,.07) texture{Leather(<.08,.05,.03>)}} torus{.64,.07 translate y*2.9 texture{Leather(<.45,.28,.14>)}}} #end
object{Boot() rotate y*24 translate<-3.6,0,4.4>} object{Boot() rotate y*-8 translate<-2.1,0,4.0>}
object{Coffer(2.6,2.0,1.8,T_Oak) rotate y*-30 translate<10.0,0,-3.4>} 
// wall left of the chart: barometer + ship plate; right wall net with floats
union{cylinder{<0,0,0>,<0,0,.4>,.9 texture{T_Brass}} torus{.9,.14 rotate x*90 texture{T_Brass}} disc{<0,0,-.02>,z,.82 texture{pigment{image_map{png concat(TEX,"rose.png") once interpolate 2} translate<-.5,-.5,0> scale 1.7} finish{F_Satin}}} translate<-6.6,14.2,9.6>}
#for(i,0,8) #for(j,0,6) #local ax=18.6+.0*i; cylinder{<20.3,17-j*1.1-.14*i,8-i*1.0>,<20.3,15.9-j*1.1-.14*i,7-i*1.0>,.04 texture{T_Rope}} cylinder{<20.3,17-j*1.1-.14*i,7-i*1.0>,<20.3,15.9-j*1.1-.14*i,8-i*1.0>,.04 texture{T_Rope}} #end #end
object{GlassFloat(.9,<.98,.80,.55>) translate<19.7,14.6,2.4>} object{GlassFloat(.7,<.70,.95,.80>) translate<19.8,12.6,4.4>} 
// desk extras
  object{JarR(1.5) translate<5.6,DY+.04,.5>} object{VaseR(1.6) translate<7.2,DY+.04,.6>} object{BottleR(1.9) translate<13.6,DY+.04,.5>} object{Scroll(2.6,.2) rotate y*-28 translate<5.4,DY+.25,-3.0>} 
// ---------------- neutral filler in the places of the removed objects
object{BookStack(4) rotate y*26 translate<-15.2,5.65,7.4>} superellipsoid{<.55,.55> scale<1.1,1.1,.45> rotate<-14,-10,-6> translate<-16.4,6.8,8.6> texture{Cloth(<.18,.30,.26>,.05)}}
  object{TinR(1.3) translate<6.6,5.95,7.4>} object{BottleR(2.0) translate<.4,5.95,8.6>} object{BookStack(2) translate<5.2,5.95,7.0>}
  object{VaseR(1.9) translate<18.6,4.75,7.4>}  
object{JarR(1.9) translate<-14.6,4.5,-2.5>} object{TinR(1.5) translate<-16.0,4.5,-2.0>} object{BottleR(2.0) translate<16.8,DY+.04,-.9>} object{TinR(1.2) translate<11.4,DY+.04,-4.9>} object{JarR(1.2) translate<16.6,DY+.04,-5.4>}
object{BookStack(2) rotate y*-30 translate<-4.9,.06,-3.6>}  object{Scroll(2.4,.18) rotate y*30 translate<7.0,DY+.25,-5.0>} object{VaseR(2.6) translate<-10.9,0,-1.0>} object{PlankBox(2.4,1.6,2,C_Pine,2) rotate y*18 translate<-2.6,0,4.4>}
#include "scenes/cabin/things.inc"
