// The keeper's desk, seen from above: the log on its slope, the drawer pulled out.  1 unit = 10 cm; the top is y=0 and is tilted towards the viewer.
#version 3.7;
#declare Bounced=.45;
#include "scenes/lamproom/closeups/night.inc"
camera{location<0,-.55,-30> right x*.522 up y*.522*520/760 direction<0,0,1>}
#declare Tilt=-50;
light_source{<-17,22,-24> MoonCol*.92 area_light x*4,y*4,3,3 adaptive 0 circular orient}
light_source{<13,7,-9> LanternCol*1.0 area_light x*2,y*2,2,2 adaptive 0 fade_distance 17 fade_power 2}
light_source{<2,8,-34> NightCol*.36 shadowless}
#macro Lay(O,Size,Back,Turn,P) object{O scale Size rotate x*Back rotate y*Turn translate P rotate x*Tilt} #end
#declare Sd=seed(91); #declare DrawerY=-1.5;
union{
 object{RBox(<-9,-.5,-2.3>,<9,0,7>,.12) texture{Wood(C_Mahog*1.15,1,F_Lacq)}} object{RBox(<-7.6,-.02,-1.6>,<7.6,.05,4.4>,.03) texture{Leather(<.10,.17,.26>)}} box{<-7.3,.05,-1.3>,<7.3,.056,-1.22> texture{GoldLeaf}} box{<-7.3,.05,4.0>,<7.3,.056,4.08> texture{GoldLeaf}} #for(s,-1,1,2) box{<s*7.3-.04,.05,-1.3>,<s*7.3+.04,.056,4.08> texture{GoldLeaf}} #end
 // the rack's foot along the upper edge
 #for(i,0,6) object{RBox(<-8+i*2.6,0,4.7>,<-7.75+i*2.6,3,7>,.05) texture{T_Mahog rotate z*90}} #end box{<-9,0,6.6>,<9,4,7> texture{T_Walnut}}
 #for(i,0,5) object{Scroll(1.9,RR(.28,.4)) rotate y*RR(-8,8) translate<-7.5+i*2.6,.4,5.3>} object{Scroll(1.7,.28) rotate y*RR(-8,8) translate<-7.4+i*2.6,.95,5.6>} #end
 // the log, open, and what lies about
 object{RBox(<-3.1,.05,-.4>,<3.1,.28,3.9>,.08) texture{Leather(<.12,.24,.40>)}} #for(k,0,4) box{<-2.9+k*.02,.28+k*.035,-.25+k*.01>,<2.9-k*.02,.31+k*.035,3.75-k*.01> texture{Paper(<.90,.84,.68>*(1-.04*mod(k,2)))}} #end
 box{<-2.85,.45,-.2>,<2.85,.47,3.7> texture{pigment{image_map{png concat(TEX,"log_pages.png") interpolate 2 once} rotate x*90 scale<5.7,1,3.9> translate<-2.85,0,-.2>} finish{F_Matte}}} box{<-.06,.46,-.8>,<.10,.48,3.9> texture{pigment{srgb<.66,.12,.09>} finish{F_Satin}}}
 object{FlatImg(concat(TEX,"chart.png"),5.0,3.0) rotate y*14 translate<-5.6,.07,2.6>} object{FlatImg(concat(TEX,"tides.png"),2.1,2.8) rotate y*-12 translate<5.3,.07,1.9>} object{Papers(4,1.8,2.4) translate<4.6,.06,.1>}
 object{InkWell() scale 1.25 translate<3.9,.05,3.6>} object{FlatImg(concat(TEX,"envfront.png"),2.3,1.5) rotate y*24 translate<-5.2,.10,-.4>}
 // the drawer: sides, floor, partitions, its front
 box{<-7.2,DrawerY-.1,-6.4>,<7.2,DrawerY,-2.0> texture{T_Oak}} #for(s,-1,1,2) object{RBox(<s*7.2-.18,DrawerY,-6.5>,<s*7.2+.18,-.5,-2.0>,.05) texture{Wood(C_Oak*.8,1,F_Satin) rotate y*90}} #end object{RBox(<-7.4,DrawerY-.3,-6.9>,<7.4,-.3,-6.4>,.1) texture{Wood(C_Mahog*1.2,1,F_Lacq)}}
 #for(i,0,1) object{RBox(<-2.5+i*5.0,DrawerY,-6.5>,<-2.36+i*5.0,-.85,-2.0>,.04) texture{Wood(C_Oak*.9,1,F_Satin) rotate y*90}} #end
 box{<-7.0,DrawerY,-6.3>,<-2.6,DrawerY+.04,-2.1> texture{Paper(<.66,.72,.74>)}} box{<2.7,DrawerY,-6.3>,<7.0,DrawerY+.04,-2.1> texture{Cloth(<.26,.10,.10>,.05)}} box{<-2.3,DrawerY,-6.3>,<2.5,DrawerY+.04,-2.1> texture{Paper(<.80,.72,.54>)}}
 rotate x*Tilt}
#include "scenes/lamproom/closeups/desk_things.inc"
