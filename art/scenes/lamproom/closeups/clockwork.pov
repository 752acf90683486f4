// Behind the iron door: the clockwork that turns the lens, wound by a weight.  1 unit = 10 cm; the picture's middle is 0, the case's floor y=-4.1.
#version 3.7;
#include "scenes/lamproom/closeups/night.inc"
camera{location<0,2.2,-30> right x*.522 up y*.522*520/760 direction<0,-.0733,1>}
light_source{<-17,22,-26> MoonCol*1.75 area_light x*4,y*4,3,3 adaptive 0 circular orient}
light_source{<13,-1,-13> LanternCol*1.0 area_light x*2,y*2,2,2 adaptive 0 fade_distance 20 fade_power 2}
light_source{<2,6,-34> NightCol*.55 shadowless}
#declare FloorY=-4.1; #declare Sd=seed(81);
#declare T_Case=texture{Metal(<.20,.27,.31>,.08,.06,.7)}
// ---------------- the case: back, sides, floor, a shelf's edge
box{<-9,-6,4.2>,<9,7,4.5> texture{T_Case}} #for(i,0,3) box{<-7.4+i*3.75,-6,4.0>,<-7.2+i*3.75,7,4.3> texture{T_Case}} Rivets(<-7.3+i*3.75,-4,3.95>,<-7.3+i*3.75,5,3.95>,9) #end
#for(s,-1,1,2) object{RBox(<s*7.75-.35,-6,-1.2>,<s*7.75+.35,7,4.4>,.1) texture{T_White}} Rivets(<s*7.55,-4.4,-1.25>,<s*7.55,4.8,-1.25>,12) #end
object{RBox(<-9,FloorY-1.6,-1.4>,<9,FloorY,4.4>,.08) texture{T_DeckPlate}} object{RBox(<-9,FloorY-1.6,-1.7>,<9,FloorY-.35,-1.2>,.1) texture{T_RedLead}} Rivets(<-7.2,FloorY-.75,-1.75>,<7.2,FloorY-.75,-1.75>,14)
object{RBox(<-9,4.75,-1.4>,<9,6.5,4.4>,.1) texture{T_White}} object{RBox(<-9,4.7,-1.6>,<9,4.95,-1.3>,.08) texture{T_RedLead}}
// ---------------- wheels: rim, spokes, hub, teeth
#macro WheelOf(r,n,sp,T) #local w=2*pi*r/n/2; union{
 difference{cylinder{<0,0,-.16>,<0,0,.16>,r-.12} cylinder{<0,0,-1>,<0,0,1>,r-.12-max(.22,r*.13)}} #for(k,0,n-1) box{<-w*.46,r-.2,-.15>,<w*.46,r+.09,.15> rotate z*k*360/n} #end
 #for(k,0,sp-1) object{RBox(<-.09-r*.015,.1,-.10>,<.09+r*.015,r-.2,.10>,.05) rotate z*(k*360/sp+11)} #end cylinder{<0,0,-.34>,<0,0,.34>,r*.13+.12} cylinder{<0,0,-.55>,<0,0,1.8>,.13 texture{T_Steel}} torus{r*.13+.10,.05 rotate x*90 translate z*-.34 texture{T_Gold}}
 texture{T}} #end
object{WheelOf(2.75,52,6,T_Brass) translate<-2.4,1.5,2.6>}
object{WheelOf(1.55,30,5,T_OldBrass) rotate z*4 translate<1.75,2.55,2.3>}
object{WheelOf(1.0,20,4,T_Steel) translate<4.15,1.75,2.2>}
object{WheelOf(1.7,34,6,T_Brass) rotate z*3 translate<4.3,-1.0,2.7>}
object{WheelOf(.85,18,4,T_Copper) translate<1.95,-.1,2.5>}
// ---------------- frame: pillars and bars of brass, cross of steel behind
union{#for(s,-1,1,2) object{#local P=array[11]{<.55,0>,<.55,.3>,<.34,.5>,<.26,.9>,<.24,4>,<.32,4.3>,<.24,4.6>,<.24,7.7>,<.34,8.1>,<.52,8.4>,<.52,8.9>}; TurnedL(P) translate<s*6.45,FloorY,1.6>} #end
 object{RBox(<-6.9,4.2,1.3>,<6.9,4.65,1.9>,.1)} object{RBox(<-6.9,-.35,3.0>,<6.9,.05,3.3>,.08)} texture{T_Brass}}
#for(s,-1,1,2) sphere{<s*6.45,4.42,1.2>,.2 texture{T_Gold}} #end
// ---------------- drum with its rope, the rope down to the weight
union{cylinder{<-5.6,0,0>,<.4,0,0>,.85 texture{T_Oak}} #for(i,0,15) torus{.98,.17 rotate z*90 translate x*(-5.0+i*.32) texture{T_Rope}} #end #for(s,0,1) cylinder{<-5.6+s*5.75,0,0>,<-5.35+s*5.75,0,0>,1.42 texture{T_Brass}} torus{1.4,.10 rotate z*90 translate x*(-5.47+s*5.75) texture{T_Gold}} #end
 cylinder{<-7.4,0,0>,<.85,0,0>,.2 texture{T_Steel}} translate<0,-1.75,1.6>}
// ---------------- governor: spindle, arms and balls
union{cylinder{<0,-1.3,0>,<0,1.7,0>,.11 texture{T_Steel}} #for(s,-1,1,2) cylinder{<0,1.35,0>,<s*.9,.25,0>,.07 texture{T_Brass}} sphere{<s*.95,.15,0>,.38 texture{T_Gold}} cylinder{<s*.9,.25,0>,<0,-.75,0>,.05 texture{T_Brass}} #end cylinder{<0,-.95,0>,<0,-.6,0>,.26 texture{T_Brass}} sphere{<0,1.75,0>,.2 texture{T_Brass}} translate<5.75,2.55,1.6>}
// ---------------- crank at the left, oiler cups, a plate with the maker's instruction
union{cylinder{<0,0,-.6>,<0,0,1.5>,.16 texture{T_Steel}} object{RBox(<-.16,-1.7,-.75>,<.16,.2,-.5>,.08) texture{T_Steel}} cylinder{<0,-1.55,-1.6>,<0,-1.55,-.6>,.2 texture{T_Mahog rotate y*90}} rotate z*-38 translate<-6.0,2.9,1.2>}
#for(k,0,2) union{cylinder{<0,0,0>,<0,.35,0>,.18 texture{T_Gold}} sphere{<0,.36,0>,.17 texture{T_Brass}} translate<-4.4+k*3.1,4.65,1.6>} #end
union{object{RBox(<-1.3,-.5,0>,<1.3,.5,.1>,.05) texture{T_Brass}} text{ttf "/usr/share/fonts/truetype/fonts-oldstandard/OldStandard-Bold.ttf" "WIND AT DUSK" .04,0 scale .30 translate<-1.16,-.1,-.02> texture{pigment{srgb<.20,.10,.04>} finish{F_Matte}}} translate<-3.1,-3.28,3.9>}
#include "scenes/lamproom/closeups/clockwork_things.inc"
