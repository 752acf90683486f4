// Inside the galley's larder: three whitewashed shelves, cool daylight through the holes of the door.  1 unit = 10 cm; the back wall is z=4, the shelves' edges z=-.6.
#version 3.7;
#ifndef(SHOW) #declare SHOW=-1; #end
#ifndef(BOUNCE) #declare BOUNCE=0; #end
global_settings{assumed_gamma 1.0 max_trace_level 5
 #if(BOUNCE) radiosity{pretrace_start .08 pretrace_end .04 count 24 nearest_count 5 error_bound 1 recursion_limit 1 low_error_factor .7 gray_threshold .15 minimum_reuse .02 brightness .9} #end}
#include "povray/props.inc"
camera{location<0,1.2,-30> right x*.522 up y*.522*520/760 direction<0,-.040,1>}
light_source{<-16,6.5,-27> srgb<1,.97,.90>*1.2 area_light x*5,y*5,3,3 adaptive 0 circular orient}
light_source{<16,4,-28> srgb<.78,.88,1>*.5 shadowless}
#macro Clean(C) #declare TX_Clean=texture{pigment{granite scale 4 translate RV()*20 color_map{[0 srgb C*.93][.5 srgb C][1 srgb C*1.03]}} finish{ambient 0 diffuse .78 specular .12 roughness .07}}; TX_Clean #end
#declare C_Cream=<.93,.90,.80>; #declare C_Duck=<.52,.72,.70>;
#macro Thing(N) #declare Sd=seed(1000+N); #declare S_=seed(2000+N); ((SHOW=-1)|(SHOW=N)) #end
// ---------------- walls, shelves, paper lace along their edges
#declare Sd=seed(61);
#for(i,0,13) object{RBox(<-9+i*1.3,-7,4>,<-9+i*1.3+1.28,7,4.5>,.06) texture{Clean(C_Duck*RR(.94,1.04)*1.15)}} #end
#for(s,-1,1,2) box{<s*7.9,-7,-2>,<s*8.4,7,4.5> texture{Clean(C_Cream)}} #end
box{<-9,-7,-.6>,<9,-4.95,4> texture{Clean(C_Cream)}} box{<-9,5.4,-.6>,<9,7,4> texture{Clean(C_Cream)}}
#declare SY=array[3]{-4.55,-1.05,2.25};
#for(k,0,2)
 object{RBox(<-8,SY[k]-.4,-.6>,<8,SY[k],4.1>,.08) texture{Clean(C_Cream*1.02)}}
 union{#for(i,0,20) difference{cylinder{<-7.9+i*.79,0,0>,<-7.9+i*.79,0,.03>,.46 scale<1,1,1>} box{<-20,0,-1>,<20,2,1>} cylinder{<-7.9+i*.79,-.20,-1>,<-7.9+i*.79,-.20,1>,.10} #for(m,-1,1,2) cylinder{<-7.9+i*.79+m*.22,-.12,-1>,<-7.9+i*.79+m*.22,-.12,1>,.06} #end} #end box{<-8,-.04,-.03>,<8,.05,.03>} translate<0,SY[k]-.08,-.66> texture{pigment{srgb<.97,.97,.95>} finish{F_Matte}}}
#end
// ---------------- quiet stores at the back
#macro Store(h,C,L) #local r=h*.36; union{lathe{cubic_spline 8 <0,-.01>,<r*.9,0>,<r,h*.06>,<r,h*.4>,<r,h*.72>,<r*.82,h*.86>,<r*.8,h*.9>,<r*.7,h*.9> texture{pigment{bozo scale .3 color_map{[0 srgb C*.8][1 srgb C*1.1]}} finish{F_Gloss}}} cylinder{<0,h*.88,0>,<0,h,0>,r*.86 texture{pigment{granite scale .2 color_map{[0 srgb<.62,.44,.26>][1 srgb<.84,.66,.44>]}} finish{F_Matte}}} cylinder{<0,h*.2,0>,<0,h*.56,0>,r*1.02 open texture{pigment{srgb<.97,.95,.88>} finish{F_Matte}} clipped_by{box{<-r*.7,0,-9>,<r*.7,h,0>}}} #for(m,0,1) box{<-r*(.45-.1*m),h*(.40-.09*m),-r*1.04>,<r*(.45-.1*m),h*(.425-.09*m),-r*.9> texture{pigment{srgb L} finish{F_Matte}}} #end} #end
object{Store(2.3,<.60,.12,.14>,<.5,.1,.1>) translate<-6.6,SY[2],2.6>} object{Store(2.0,<.86,.58,.14>,<.4,.25,.1>) translate<-4.9,SY[2],2.9>} object{Store(2.3,<.34,.46,.20>,<.15,.3,.15>) translate<2.0,SY[2],2.9>} object{Store(2.0,<.44,.16,.34>,<.3,.1,.3>) translate<3.7,SY[2],2.8>} object{Store(2.2,<.90,.84,.66>,<.2,.3,.5>) translate<6.9,SY[2],2.7>}
object{Store(2.3,<.88,.86,.78>,<.2,.3,.5>) translate<-6.8,SY[1],2.8>} object{Store(1.9,<.74,.42,.18>,<.4,.2,.1>) translate<.3,SY[1],3.0>} object{Store(2.2,<.30,.42,.54>,<.2,.3,.5>) translate<6.8,SY[1],2.9>}
// a bowl of eggs, a cheese under a cloth, a sack of flour
#local P=array[8]{<0,0>,<.5,0>,<.62,.08>,<1.0,.6>,<1.2,1.0>,<1.26,1.06>,<1.16,1.04>,<.9,.6>};
union{object{TurnedL(P) texture{Ceramic(<.30,.50,.74>)}} #for(k,0,12) sphere{0,.34 scale<1,1.25,1> rotate<RR(0,90),RR(0,180),RR(0,90)> translate<.62*cos(k*.9)*(k<8?1:.45),.95+(k<8?0:.4),.62*sin(k*.9)*(k<8?1:.45)> texture{pigment{srgb (mod(k,3)=0?<.97,.92,.84>:<.86,.64,.46>)} finish{F_Satin}}} #end translate<3.3,SY[1],2.2>}
union{cylinder{0,<0,1.1,0>,1.35 texture{pigment{granite scale 1 color_map{[0 srgb<.86,.62,.20>][1 srgb<.95,.76,.34>]}} finish{F_Satin}}} cylinder{<0,1.1,0>,<0,1.16,0>,1.36 texture{pigment{srgb<.96,.94,.88>} finish{F_Matte}}} cylinder{<0,.4,0>,<0,.7,0>,1.37 texture{pigment{srgb<.72,.13,.09>} finish{F_Satin}}} translate<-1.9,SY[1],2.6>}
union{superellipsoid{<.55,.35> rotate x*90 scale<1.5,1.3,1.1> translate y*1.3} torus{.5,.14 translate y*2.6} lathe{cubic_spline 6 <.2,2.3>,<.5,2.6>,<.75,2.95>,<.9,3.1>,<.7,2.9>,<.5,2.6>} texture{Cloth(<.90,.84,.70>,.07)} scale .92 translate<-6.4,SY[0],2.4>}
object{Barrel(2.7) translate<6.3,SY[0],2.5>} 
union{#for(k,0,5) cylinder{<-.9+.36*k,.0,0>,<-.9+.36*k,2.2,.2>,.17} #end texture{pigment{granite scale<.2,2,.2> color_map{[0 srgb<.64,.74,.46>][1 srgb<.90,.94,.78>]}} finish{F_Satin}} translate<-1.2,SY[0],3>}
#include "scenes/galley/closeups/larder_things.inc"
