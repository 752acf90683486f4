// Inside the glass counter: velvet steps, a glass shelf, small treasures with their prices.  1 unit = 10 cm; the lower velvet is y=0, the back z=7.
#version 3.7;
#include "scenes/shop/closeups/afternoon.inc"
camera{location<0,5,-14> right x*1.0 up y*1.0*520/760 direction<0,-.10,1>}
light_source{<-26,20,-26> SunCol*2.3 area_light x*.8,y*.8,3,3 adaptive 0 circular orient}
light_source{<6,9,-22> DuskCol*.60 shadowless}
light_source{<3,8.2,.5> LampCol*.8 fade_distance 7 fade_power 2 shadowless}
light_source{<14,12,-18> srgb<.9,.72,.58>*.35}
// the sun comes past the posts and panes of the counter and of the window
union{#for(k,0,4) box{<-15.2,-4,-19+k*4.6>,<-15,18,-17.9+k*4.6>} #end #for(k,0,4) box{<-15.2,6.2+k*2.7,-30>,<-15,6.6+k*2.7,8>} #end no_image no_reflection no_radiosity}
#declare Sd=seed(81);
#declare V1=texture{Velvet(<.24,.13,.44>)} #declare V2=texture{Velvet(<.09,.36,.36>)}
box{<-12,-1,-3>,<12,0,7> texture{V1}} box{<-12,-1,2.9>,<12,1.6,7> texture{V1}} cylinder{<-12,1.56,2.9>,<12,1.56,2.9>,.07 texture{T_Gold}}
box{<-12,-1,6.6>,<12,14,7> texture{V2 normal{quilted .6 scale<2.2,2.2,2.2> rotate z*45}}} #for(i,-5,5) #for(j,0,5) sphere{<i*2.2+mod(j,2)*1.1,2.2+j*1.5,6.55>,.10 texture{T_Gold}} #end #end
// the glass shelf on brass arms
box{<-9.2,5.5,3.4>,<9.2,5.6,6.6> texture{pigment{srgbt<.62,.90,.84,.62>} finish{ambient 0 diffuse .2 specular .5 roughness .02 reflection{.04,.2 falloff 3}}} no_shadow} box{<-9.2,5.48,3.34>,<9.2,5.62,3.42> texture{pigment{srgb<.55,.85,.78>} finish{F_Gloss emission .12}} no_shadow} #for(i,-1,1) box{<i*6.6-.08,5.3,3.6>,<i*6.6+.08,5.48,6.6> texture{T_Brass}} sphere{<i*6.6,5.4,3.5>,.16 texture{T_Gold}} sphere_sweep{cubic_spline 5 <i*6.6,3.6,6.6>,.07,<i*6.6,4.0,6.5>,.07,<i*6.6,4.7,5.9>,.07,<i*6.6,5.3,4.4>,.07,<i*6.6,5.3,4>,.07 texture{T_Brass}} #end
// posts, the sill in front
#for(s,-1,1,2) object{RBox(<s*8.55-.45,-1,-1.2>,<s*8.55+.45,12,-.4>,.14) texture{T_Dark rotate z*90}} cylinder{<s*8.0,-1,-1.2>,<s*8.0,12,-1.2>,.10 texture{T_Brass}} box{<s*9.2,-1,-1>,<s*9.6,12,7> texture{T_Dark rotate y*90}} #end
object{RBox(<-10,-1.2,-2.6>,<10,-.12,-1.0>,.16) texture{Wood(C_Dark*1.3,1,F_Lacq)}} cylinder{<-10,-.16,-1.1>,<10,-.16,-1.1>,.10 texture{T_Brass}}
// cushions, boxes, cards: what stays
#macro Cushion(P,w,C) union{superellipsoid{<.4,.5> scale<w,.30,w*.72> texture{Velvet(C)}} #for(a,-1,1,2) #for(b,-1,1,2) cone{<a*w*.95,0,b*w*.68>,.10,<a*w*1.15,-.05,b*w*.8>,.16 texture{T_Gold}} #end #end translate P+y*.28} #end
Cushion(<0,0,1.2>,1.25,<.70,.46,.12>) Cushion(<-3.0,0,1.2>,1.05,<.08,.34,.34>) Cushion(<3.0,0,1.2>,1.05,<.08,.34,.34>)
#macro Card(k,P,a) box{<-.75,0,0>,<.75,.75,.04> texture{pigment{image_map{png concat(TEX,"shop_card",str(k,0,0),".png") interpolate 2 once} translate x*-.5 scale<1.5,.75,1>} finish{F_Matte}} rotate<14,a,0> translate P} #end
Card(2,<1.55,.0,-.4>,8) Card(1,<-1.5,0,-.5>,-6) Card(0,<4.3,1.6,3.2>,-8)
object{Coffer(1.9,1.4,1.3,Wood(<.34,.14,.42>,.6,F_Lacq)) rotate y*18 translate<-4.3,1.6,4.9>} object{Coral(60,<.94,.48,.34>) scale .52 translate<.2,1.6,5.6>} object{VaseR(1.9) translate<4.2,1.6,5.3>} object{VaseR(1.7) translate<-7.6,1.6,5.4>}
object{VaseR(2.0) translate<-7.7,5.6,5.6>} object{BottleR(1.8) translate<-2.7,5.6,5.7>} object{TinR(1.5) translate<2.8,5.6,5.6>} object{JarR(1.5) translate<7.1,5.6,5.5>}
#for(k,0,26) sphere{<-6.2+1.5*cos(k*.25),.12+.02*mod(k,2),-.15+.62*sin(k*.25)>,.115 texture{pigment{srgb<.97,.94,.88>} finish{F_Gloss}}} #end
#for(k,0,2) sphere{<6.9+.5*k-.0*k,.24,1.7-.35*mod(k,2)>,.24 texture{pigment{marble turbulence .8 scale .3 color_map{[0 srgb (k=1?<.10,.50,.48>:<.60,.26,.20>)][1 srgb<.96,.9,.8>]}} finish{F_Gloss}}} #end
union{TagTied(1,.55,<-3.6,5.5,3.3>)}
// the glance of the glass; not in silhouettes, which know no transparency
#if(BOUNCE) box{<-9,-3,-2.9>,<9,11,-2.89> texture{pigment{gradient x color_map{[0 srgbt<1,1,1,1>][.30 srgbt<1,1,1,1>][.33 srgbt<1,.95,.82,.93>][.47 srgbt<1,.95,.82,.93>][.48 srgbt 1][.54 srgbt 1][.55 srgbt<1,.95,.82,.95>][.58 srgbt<1,.95,.82,.95>][.59 srgbt 1][1 srgbt 1]} scale 13 rotate z*-30 translate x*-2} finish{ambient 0 diffuse 0 emission .8}} no_shadow no_radiosity} #end
#include "scenes/shop/closeups/glass_case_things.inc"
