// The dresser's drawer, pulled out and seen from above: cook's letters from every harbour, recipes, a checked cloth.  1 unit = 10 cm; the whole lies on y=0 and is tilted towards the viewer.
#version 3.7;
#ifndef(SHOW) #declare SHOW=-1; #end
#ifndef(BOUNCE) #declare BOUNCE=0; #end
global_settings{assumed_gamma 1.0 max_trace_level 5
 #if(BOUNCE) radiosity{pretrace_start .08 pretrace_end .04 count 24 nearest_count 5 error_bound 1 recursion_limit 1 low_error_factor .7 gray_threshold .15 minimum_reuse .02 brightness .9} #end}
#include "povray/props.inc"
camera{location<0,0,-30> right x*.522 up y*.522*520/760 direction<0,.02,1>}
#declare Tilt=-58;
light_source{<-19,20,-25> srgb<1,.95,.84>*1.30 area_light x*5,y*5,3,3 adaptive 0 circular orient}
light_source{<16,8,-28> srgb<.72,.86,1>*.40 shadowless}
#macro Clean(C) #declare TX_Clean=texture{pigment{granite scale 4 translate RV()*20 color_map{[0 srgb C*.93][.5 srgb C][1 srgb C*1.03]}} finish{ambient 0 diffuse .78 specular .12 roughness .07}}; TX_Clean #end
#macro Thing(N) #declare Sd=seed(1000+N); #declare S_=seed(2000+N); ((SHOW=-1)|(SHOW=N)) #end
#macro Lay(O,Size,Back,Turn,P) object{O scale Size rotate x*Back rotate y*Turn translate P rotate x*Tilt} #end
#declare Sd=seed(71);
#declare C_Duck=<.52,.72,.70>; #declare C_Cream=<.93,.89,.76>;
union{
 // the drawer and the dresser around it
 box{<-20,-2,-9>,<20,-1.6,9> texture{Clean(C_Cream)}}
 object{RBox(<-8.6,-.6,-5.3>,<8.6,2.4,-4.5>,.14) texture{Clean(C_Duck)}} sphere{<0,1.2,-5.6>,.5 texture{T_Brass}}
 #for(s,-1,1,2) object{RBox(<s*7.3-.3,0,-4.8>,<s*7.3+.3,2.0,6>,.1) texture{Wood(<.84,.64,.40>,.7,F_Satin) rotate y*90}} #end
 object{RBox(<-20,1.9,4.5>,<20,2.6,9>,.1) texture{Wood(<.86,.70,.46>,.6,F_Satin)}} object{RBox(<-7.5,0,4.1>,<7.5,1.9,4.6>,.1) texture{Wood(<.80,.60,.38>,.7,F_Satin)}}
 box{<-7.2,-.1,-4.7>,<7.2,.05,4.4> texture{pigment{image_map{png concat(TEX,"galley_tiles.png") interpolate 2} rotate x*90 scale<7,1,7>} finish{F_Matte}}}
 // a tray for spoons on the right
 object{RBox(<3.5,0,-4.6>,<3.75,1.1,4.2>,.06) texture{Wood(<.84,.64,.40>,.7,F_Satin) rotate y*90}} object{RBox(<3.6,0,-.1>,<7.1,1.0,.14>,.06) texture{Wood(<.84,.64,.40>,.7,F_Satin)}}
 // papers, a folded cloth, bundles
 #macro Sheet(F,w,h) box{<-w/2,0,-h/2>,<w/2,.035,h/2> texture{pigment{image_map{png concat(TEX,F) interpolate 2 once} translate<-.5,-.5,0> rotate x*90 scale<w,1,h>} finish{F_Matte}}} #end
 object{Sheet("galley_letter.png",3.6,4.7) rotate y*9 translate<-4.9,.10,-1.3>} object{Sheet("galley_letter.png",3.3,4.3) rotate y*-16 translate<-.1,.14,1.5>} object{Sheet("galley_recipe.png",3.6,2.6) rotate y*-9 translate<-1.6,.24,-2.7>} object{Sheet("galley_recipe.png",3.3,2.35) rotate y*14 translate<1.9,.2,-.6>}
 object{Sheet("envfront.png",3.0,2.0) rotate y*-22 translate<-4.6,.30,2.6>} object{Sheet("envback.png",2.8,1.85) rotate y*12 translate<1.8,.28,3.0>} object{Sheet("envfront.png",2.7,1.8) rotate y*24 translate<-2.2,.34,.4>} object{Sheet("chart.png",3.4,2.2) rotate y*80 translate<5.3,.1,2.2>}
 union{#for(i,0,4) object{RBox(<-1.2+RR(-.06,.06),i*.17,-.75+RR(-.05,.05)>,<1.2,i*.17+.15,.75>,.03) texture{Paper(<.95,.89,.72>*RR(.85,1.02))} rotate y*RR(-4,4)} #end object{Sheet("envfront.png",2.4,1.55) translate y*.86} union{box{<-.05,-.02,-.84>,<.05,.92,.84>} box{<-1.28,-.02,-.05>,<1.28,.92,.05>} #for(s,-1,1,2) torus{.22,.05 scale<1.4,1,.7> rotate z*s*24 translate<s*.28,1.0,0>} #end texture{pigment{srgb<.20,.40,.70>} finish{F_Matte}}} rotate y*64 translate<-6.0,.2,1.6>}
 union{superellipsoid{<.3,.5> rotate x*90 scale<1.6,.32,1.3>} texture{pigment{checker srgb<.95,.94,.90>,srgb<.78,.16,.14> scale .42} finish{F_Matte}} rotate y*8 translate<5.4,.4,-3.0>}
 rotate x*Tilt}
#include "scenes/galley/closeups/drawer_things.inc"
