// shop.pov : curiosity shop on the quay.  units 10 cm.  back wall z=12, floor y=0
#version 3.7;
#ifndef(Q) #declare Q=0; #end
global_settings{assumed_gamma 1.0 max_trace_level 10
 radiosity{pretrace_start .08 pretrace_end #if(Q) .012 #else .03 #end count #if(Q) 140 #else 50 #end nearest_count #if(Q) 10 #else 6 #end error_bound #if(Q) .55 #else .9 #end recursion_limit 2 low_error_factor .6 gray_threshold .1 minimum_reuse .012 brightness 1.15}}
#include "povray/props.inc"
#include "povray/room_light.inc"
#declare Sd=seed(777);
camera{location<0,19,-36> look_at<0,9.0,0> angle 53 right x*image_width/image_height}
light_source{<-20,30,-34> KeyCol*.66 area_light x*9,y*9,5,5 adaptive 1 jitter circular orient}
light_source{<-27,24,36> srgb<.80,.91,1>*2.0 area_light x*4,y*4,4,4 adaptive 1 jitter circular orient}
light_source{<-1,13,-3> srgb<1,.80,.54>*.5 area_light x*2,y*2,3,3 adaptive 0 jitter circular orient fade_distance 13 fade_power 2}
light_source{<13,12,-16> srgb<1,.82,.58>*.35 area_light x*2,y*2,3,3 adaptive 0 jitter circular orient fade_distance 14 fade_power 2}                      // daylight through the window on the left
light_source{<3.5,16.0,1> srgb<1,.72,.38>*1.1 area_light x*1.2,z*1.2,4,4 adaptive 1 jitter circular orient fade_distance 11 fade_power 2}
light_source{<14.5,11.2,-2> srgb<1,.66,.30>*.8 area_light x*.6,y*.6,3,3 adaptive 0 jitter circular orient fade_distance 6 fade_power 2}
light_source{<8,14,-40> FillCol*.18 shadowless}
sphere{0,300 inverse texture{pigment{srgb<.62,.70,.80>} finish{emission .45 diffuse 0}} no_image}
// ---------------- shell: papered wall over green wainscot, flag floor
#declare PaperT=texture{pigment{image_map{png concat(TEX,"wall.png") interpolate 2} scale 2.3} normal{granite .05} finish{ambient 0 diffuse .85}}
texture{pigment{bozo turbulence .6 scale 6 color_map{[0 srgbt<.12,.08,.04,.45>][.5 srgbt<.12,.08,.04,.9>][1 srgbt<.12,.08,.04,1>]}} finish{F_Matte}}
difference{box{<-23,8,12>,<23,24,12.5>} box{<-20.6,8.6,11>,<-14.0,17.4,13>} texture{PaperT}}
#declare WX0=-20.6; #declare WX1=-14.0;
union{#for(k,0,4) object{RBox(<WX0-.2+k*1.65,8.4,11.7>,<WX0+.1+k*1.65,17.6,12.3>,.06) texture{Wood(<.80,.76,.66>,.5,F_Satin) rotate z*90}} #end #for(k,0,4) object{RBox(<WX0-.1,8.5+k*2.2,11.75>,<WX1+.1,8.75+k*2.2,12.25>,.06) texture{Wood(<.80,.76,.66>,.5,F_Satin)}} #end
 #for(q1,0,1) object{RBox(<(q1?WX1-.1:WX0-.9),8,11.4>,<(q1?WX1+.9:WX0+.1),18.2,12.2>,.14) texture{T_Oak rotate z*90}} #end object{RBox(<WX0-1.1,17.4,11.3>,<WX1+1.1,18.5,12.2>,.16) texture{T_Oak}} object{RBox(<WX0-1.2,7.7,9.6>,<WX1+1.2,8.4,12.2>,.14) texture{T_Oak}}}
box{<-44,-10,30>,<4,34,30.1> texture{pigment{image_map{png concat(TEX,"harbour.png") interpolate 2 once} translate<-.5,-.5,0> scale<23,16,1> translate<-23.5,9.0,0>} finish{emission .72 diffuse 0}} no_shadow}
#declare GP=texture{WornPaint(<.17,.30,.28>,C_Oak)}
#for(i,0,20) object{RBox(<-23+i*2.2,0,11.6>,<-20.84+i*2.2,7.4,12.4>,.08) texture{GP rotate z*90 translate i*7}} #end object{RBox(<-23,7.3,11.2>,<23,8.1,12.4>,.14) texture{GP}}
#for(i,0,30) #for(j,0,18) #local wv=RR(2.0,2.4); object{RBox(<-23+i*1.5,-.5,11-j*3.1+mod(i,2)*1.5-3>,<-21.54+i*1.5,RR(-.03,.03),11-j*3.1+mod(i,2)*1.5>,.06) texture{Wood(C_Oak*RR(.55,.8),1,F_Satin) rotate y*90 translate i*3+j*5}} #end #end
// side walls: left one is the window wall, in perspective
box{<-23,0,-20>,<-22.2,7.6,12> texture{GP rotate y*90}} box{<-23,7.6,-20>,<-22.2,26,12> texture{PaperT rotate y*90}}
box{<20.8,0,-20>,<21.5,26,12> texture{WornPaint(<.36,.30,.22>,C_Oak) scale 2 rotate y*90}}
union{#for(i,0,3) object{RBox(<-21+i*13.6,20.0,-2>,<-19.4+i*13.6,21.8,12>,.15) texture{Wood(C_Walnut,1,F_Satin) rotate y*90}} #end box{<-23,21.8,-6>,<23,22.2,12.5> texture{Wood(<.62,.52,.38>,.7,F_Satin)}} no_shadow}
// ---------------- big shelf unit, back centre
#declare SX=-12.2; #declare SW=23.6; #declare NB=5; #declare SZ=8.2;
#macro Bay(k) (SX+SW*k/NB) #end
#declare SY=array[5]{4.9,7.8,10.5,13.1,15.6};
union{ box{<SX,0,11.3>,<SX+SW,15.8,11.7> texture{Wood(C_Oak*.95,1,F_Satin) rotate z*90}}
 #for(k,0,NB) object{RBox(<Bay(k)-.22,0,SZ>,<Bay(k)+.22,15.7,11.5>,.08) texture{Wood(C_Oak*.9,1,F_Satin) rotate z*90}} #end
 #for(r,0,4) object{RBox(<SX,SY[r]-.32,SZ-.1>,<SX+SW,SY[r],11.5>,.07) texture{Wood(C_Oak*RR(.85,1),1,F_Satin) translate r*9}} #end
 object{RBox(<SX-.6,15.3,SZ-.6>,<SX+SW+.6,16.0,11.6>,.22) texture{T_Oak}} object{RBox(<SX-.4,0,SZ-.3>,<SX+SW+.4,1,11.6>,.12) texture{T_Oak}}
 #for(k,0,NB-1) #for(r,0,1) object{RBox(<Bay(k)+.3,1.1+r*1.75,SZ-.25>,<Bay(k+1)-.3,2.7+r*1.75,SZ+.3>,.1) texture{Wood(C_Oak*RR(.9,1.1),1,F_Lacq) translate k*5+r*9}} torus{.3,.06 rotate x*70 translate<(Bay(k)+Bay(k+1))/2,1.75+r*1.75,SZ-.35> texture{T_Brass}} box{<(Bay(k)+Bay(k+1))/2-.55,2.15+r*1.75,SZ-.32>,<(Bay(k)+Bay(k+1))/2+.55,2.5+r*1.75,SZ-.2> texture{Paper(<.9,.82,.62>)}} #end #end}
// fill the 25 compartments by a seeded picker with set pieces
#macro Sm(n,h) #switch(mod(n,9)) #case(0) object{VaseR(h)} #break #case(1) object{BottleR(h)} #break #case(2) object{JarR(h*.85)} #break #case(3) object{TinR(h*.8)} #break #case(4) object{BottleR(h*1.05)} #break #case(5) object{Coffer(h*.8,h*.62,h*.6,T_Teak)} #break #case(6) object{VaseR(h*.8)} #break #case(7) object{JarR(h*.7)} #break #case(8) object{O_Candle() scale h*.85} #break #end #end
#macro Mix(x0,x1,y0,hh) #local xx=x0+.45; #while(xx<x1-.2) #local h1=hh*RR(.72,.98); object{Sm(int(rand(Sd)*900),h1) rotate y*RR(-20,20) translate<xx,y0,SZ+RR(1.7,2.2)>} #if(rand(Sd)<.75) object{Sm(int(rand(Sd)*900),hh*RR(.36,.55)) translate<xx+RR(-.2,.4),y0,SZ+.6>} #end #local xx=xx+RR(.78,1.05); #end #end
#for(r,0,3) #for(k,0,NB-1) #local x0=Bay(k)+.3; #local x1=Bay(k+1)-.3; #local hh=SY[r+1]-SY[r]-.5; #local mx=(x0+x1)/2; #local y0=SY[r]; #local id=r*5+k;
 #switch(id)
 #case(0) object{Books((x1-x0)*.55,hh,2) translate<x0,y0,SZ+.35>} object{O_Hourglass() scale hh*.92 translate<x1-.9,y0,SZ+1.2>} #break
 #case(2) object{Globe(hh*.34) translate<x0+.9,y0,SZ+1.4>} object{BookStack(3) scale .85 translate<x1-1.2,y0,SZ+1.4>} object{O_Apple() scale .6 translate<mx,y0,SZ+.4>} #break
 #case(6) object{DiveHelmet(hh*.36) rotate y*16 translate<x0+1.2,y0,SZ+1.4>} Mix(x0+2.3,x1,y0,hh) #break
 #case(9) object{Coral(60,<.82,.30,.22>) scale hh*.27 translate<x0+1.1,y0,SZ+1.3>} object{O_Conch() scale hh*.62 rotate y*10 translate<x1-1.1,y0,SZ+1>} #break
 #case(12) object{O_Boat() scale hh*.98 translate<x0+1.3,y0,SZ+1.2>} object{O_Lighthouse() scale hh*.98 translate<x1-.9,y0,SZ+1.3>} #break
 #case(16) object{Coffer(2.4,1.6,1.4,T_Teak) translate<x0+1.4,y0,SZ+1.3>} object{O_Knight() scale hh*.8 translate<x1-.7,y0,SZ+1>} #break
 #case(18) object{O_Wheel() scale hh*.95 rotate x*-8 translate<x0+1.2,y0,SZ+1.4>} object{O_Teacup() scale hh*.45 translate<x1-1,y0,SZ+.8>} #break
 #case(13) #case(5) #case(19) object{Books(x1-x0,hh,2) translate<x0,y0,SZ+.35>} #break
 #case(11) object{Books((x1-x0)*.5,hh,2) translate<x0,y0,SZ+.35>} Mix(mx+.2,x1,y0,hh) #break
 #case(8) Mix(x0,mx,y0,hh) object{Books((x1-x0)*.5,hh,2) translate<mx,y0,SZ+.35>} #break
 #else Mix(x0,x1,y0,hh) #end
#end #end
// ---------------- hero pieces on and around the shelf
object{Coffer(3,1.9,1.6,T_Teak) rotate y*10 translate<-10.2,16,9.6>} object{VaseR(2.4) translate<-7.6,16,9.8>} object{Coral(90,<.90,.84,.74>) scale .8 translate<-5.0,16,9.8>} object{BookStack(3) translate<-2.2,16,9.6>} object{O_Rope() scale 2 translate<.7,16,9.6>} object{Globe(.95) translate<4.0,16,9.7>} object{PlankBox(2.6,1.8,2.0,C_Pine,3) rotate y*-9 translate<6.6,16,9.7>} object{O_Boat() scale 2.6 translate<9.6,16,9.6>}
// ---------------- right wall side: tall clock + pictures + gramophone table
object{Clock(1.35,T_Mahog) translate<13.8,16.6,11.3>} object{Frame(concat(TEX,"paint1.png"),4.2,2.9,.45,T_Gold) translate<17.0,13.4,11.6>} object{Frame(concat(TEX,"paint2.png"),2.4,1.7,.3,T_Oak) translate<18.3,16.9,11.6>} object{O_Fish() scale 3.2 translate<13.2,10.2,11.2>} object{O_Key() scale 1.5 translate<18.0,9.0,11.3>} object{O_Key() scale 1.2 translate<19.0,9.2,11.3>} object{Frame(concat(TEX,"card.png"),.95,1.35,.2,T_Mahog) translate<19.6,10.9,11.6>}
union{object{RBox(<12.6,5.6,6.6>,<20,6.1,11.3>,.14) texture{T_Mahog}} #for(a,0,1) #for(b,0,1) object{#local P=array[8]{<.12,0>,<.2,.4>,<.14,1>,<.26,2>,<.18,3.2>,<.28,4.4>,<.2,5>,<.3,5.7>}; Turned(P) translate<13.1+a*6.3,0,7.2+b*3.5> texture{T_Mahog rotate z*90}} #end #end object{RBox(<12.9,1.2,6.9>,<19.7,1.5,11>,.1) texture{T_Mahog}}}
object{Gramophone() rotate y*-16 translate<15.4,6.1,9.0>} object{O_Teacup() scale 1.3 translate<18.6,6.1,7.8>} object{O_Hourglass() scale 1.7 translate<19.2,6.1,9.8>} object{BookStack(3) translate<15.0,1.5,9>} object{PlankBox(2.6,1.8,2.2,C_Pine,3) translate<18,1.5,9>}
// ---------------- counter across the front right
#declare CY=7.6;
union{object{RBox(<2.5,0,-4.6>,<19.5,CY-.5,-.4>,.12) texture{GP scale 1.4}} object{RBox(<1.8,CY-.55,-5.4>,<20.2,CY,.2>,.2) texture{Wood(C_Mahog*1.15,1,F_Lacq)}} object{RBox(<2.1,0,-4.9>,<19.9,.8,-.2>,.12) texture{T_Mahog}}
 #for(i,0,3) #local x0=3+i*4.1; object{RBox(<x0,1.3,-4.85>,<x0+3.7,CY-1.2,-4.5>,.1) texture{T_Mahog}} object{RBox(<x0+.35,1.65,-5.0>,<x0+3.35,CY-1.55,-4.6>,.14) texture{Wood(C_Mahog*1.1,1,F_Lacq)}} #end}
// cash register, scales, glass dome, goods
union{object{RBox(<-1.5,0,-1.2>,<1.5,.6,1.2>,.12) texture{T_Mahog}} object{RBox(<-1.35,.6,-1.05>,<1.35,1.7,1.1>,.18) texture{T_OldBrass}} intersection{cylinder{<-1.3,1.6,.2>,<1.3,1.6,.2>,1.0} plane{-y,-1.6} texture{T_Brass}} object{RBox(<-1.2,2.3,.1>,<1.2,3.1,.7>,.12) texture{T_Brass}} box{<-1,2.45,.05>,<1,2.95,.2> texture{pigment{srgb<.9,.86,.74>} finish{F_Gloss}}} text{ttf "/usr/share/fonts/truetype/fonts-oldstandard/OldStandard-Bold.ttf" "2/6" .05,0 scale .55 translate<-.4,2.52,.02> texture{pigment{srgb .03}}}
 #for(i,-3,3) #for(j,0,2) cylinder{<i*.34,1.0+j*.25,-1.25+j*.12>,<i*.34,.98+j*.25,-1.0>,.04 texture{T_Steel}} cylinder{<i*.34,1.0+j*.25,-1.3+j*.12>,<i*.34,1.0+j*.25,-1.22+j*.12>,.13 texture{pigment{srgb<.9,.86,.76>} finish{F_Gloss}}} #end #end scale 1.15 rotate y*14 translate<16.6,CY,-2.6>}
union{#local P=array[9]{<0,0>,<.9,0>,<.85,.15>,<.3,.3>,<.12,.6>,<.16,1.4>,<.08,2.6>,<.14,3.0>,<0,3.1>}; object{Turned(P) texture{T_Brass}} object{RBox(<-1.6,2.75,-.06>,<1.6,2.9,.06>,.05) texture{T_Brass} rotate z*5} #for(a,-1,1,2) #for(b,0,2) cylinder{<a*1.55,2.82+a*.13,0>,<a*1.55+.55*cos(b*2.1),1.1+a*.13,.55*sin(b*2.1)>,.025 texture{T_Brass}} #end sphere{0,.7 scale<1,.3,1> clipped_by{plane{y,0}} translate<a*1.55,1.15+a*.13,0> texture{T_Brass}} #end sphere{<-1.55,1.05,0>,.28 texture{T_Iron}} translate<10.4,CY,-1.6>}
union{lathe{cubic_spline 7 <1,0>,<1,.01>,<1,1.2>,<.85,1.9>,<.5,2.3>,<0,2.42>,<-.1,2.42> material{M_Glass}} cylinder{<0,-.02,0>,<0,.02,0>,1.15 texture{T_Mahog}} torus{1.1,.1 texture{T_Mahog}} sphere{<0,2.52,0>,.12 texture{T_Brass}} object{Coral(46,<.85,.30,.24>) scale .42} translate<4.0,CY+.1,-1.6>}
object{O_Compass() scale 1.5 rotate y*20 translate<4.2,CY,-4.0>} object{O_Book() scale 2.2 rotate y*-20 translate<7.4,CY,-3.4>} object{InkWell() translate<9.3,CY,-3.8>} object{O_Quill() scale 2.4 rotate y*-20 translate<9.3,CY+.3,-3.8>} object{O_Teddy() scale 2.4 rotate y*-12 translate<13.4,CY,-2.2>} object{Papers(5,1.6,2) translate<12.6,CY,-4.2>} object{O_OilLamp() scale 2.5 translate<14.5,CY,-.9>} object{O_Watch() scale 1.2 rotate<76,20,0> translate<6.2,CY+.1,-4.5>} object{O_Bell() scale 1.4 translate<2.7,CY,-3.6>} object{O_Dice() scale .8 translate<11.2,CY,-4.8>} object{BirdCage(1.2,2.8) translate<7.0,CY,-1.2>} object{O_Lighthouse() scale 2.3 translate<19.0,CY,-2.0>} object{TinR(1.3) translate<2.6,CY,-.8>}
// ---------------- left: window display on the sill and the floor pieces
object{VaseR(2.2) translate<-20.2,8.4,10.6>} object{O_Boat() scale 2.8 rotate y*14 translate<-17.6,8.4,10.6>} object{BottleR(2.2) translate<-15.6,8.4,10.7>} object{BottleR(1.7) translate<-14.7,8.4,10.4>} object{O_Starfish() scale 1.1 rotate x*-10 translate<-19.2,8.4,10.1>}
object{Curtain(1.7,9.4,4,<.46,.12,.10>) translate<-21.2,18.2,10.9>} object{Curtain(1.7,9.4,4,<.46,.12,.10>) translate<-13.4,18.2,10.9>}
object{Barrel(5.2) translate<-17.8,0,6.2>} object{O_Umbrella() scale 7 rotate<0,0,10> translate<-18.2,.4,5.6>} object{O_Umbrella() scale 6.4 rotate<0,60,-12> translate<-17.2,.6,6.4>} object{Scroll(6,.3) rotate z*84 translate<-18.5,1.6,6.6>} object{O_Wheel() scale 5.6 rotate<-12,14,0> translate<-13.6,0,5.2>}
object{Coffer(6,4.4,3.8,T_Teak) rotate y*28 translate<-14.6,0,-1.2>} object{O_Violin() scale 5.4 rotate<-68,-40,0> translate<-15.4,5.0,-1.6>} object{O_Hat() scale 2 rotate y*20 translate<-12.9,4.35,-1.4>}
object{Chair(T_Oak,<.20,.26,.16>) scale .92 rotate y*32 translate<-7.4,0,3.2>} object{BookStack(5) translate<-7.2,4.7,3.0>} object{O_Rope() scale 2.8 translate<-9.4,0,-3.4>} object{O_Anchor() scale 5.4 rotate<-16,24,-12> translate<-4.2,0,.4>} object{O_Starfish() scale 1.5 rotate<82,0,0> translate<-6.6,.2,-2.6>} object{PlankBox(3.6,2.6,2.8,C_Pine,3) rotate y*-18 translate<-5.0,0,-4.2>} object{GlassFloat(.8,<.65,.98,.85>) translate<-5.6,3.2,-4.3>} object{O_Apple() scale 1.0 translate<-4.2,2.5,-4.6>} object{O_Bottle() scale 2.2 rotate z*-82 rotate y*20 translate<-11.2,.5,-4.4>}
box{<-12.5,0,-9>,<1.6,.06,3.8> texture{pigment{image_map{png concat(TEX,"rug.png") interpolate 2} rotate x*90 scale<16,1,10.8> translate<-14,0,-7>} normal{granite .25 scale .3} finish{ambient 0 diffuse .9}}}
// ---------------- hanging from the beams
#macro Hang(p,L) cylinder{p,p+y*L,.05 texture{T_Rope}} #end
object{BirdCage(1.5,3.6) translate<-8.4,14.0,2.0>} Hang(<-8.4,17.8,2.0>,5) object{O_OilLamp() scale 3.1 translate<3.5,13.6,1>} Hang(<3.5,16.9,1>,5) object{O_Fish() scale 3.8 rotate<0,16,6> translate<-3.3,15.9,1.5>} Hang(<-3.3,18.2,1.5>,4) object{GlassFloat(1.0,<.70,.86,.98>) translate<9.4,16.8,2>} Hang(<9.4,17.8,2>,4) object{GlassFloat(.75,<.98,.82,.55>) translate<10.7,15.4,2.2>} Hang(<10.7,16.1,2.2>,6) object{O_Anchor() scale 2.2 translate<13.0,16.2,1.5>} Hang(<13,18.3,1.5>,4) object{O_Bell() scale 2.2 translate<-13.4,15.8,1.6>} Hang(<-13.4,17.9,1.6>,4) object{Coffer(1,1,1,T_Oak) scale .01} object{O_Starfish() scale 1.6 translate<.3,16.6,2.2>} Hang(<.3,18.2,2.2>,4)

// goods standing in front of the counter
object{PlankBox(4.0,2.8,3.0,C_Pine,3) rotate y*12 translate<7.0,0,-6.4>} object{Scroll(3.4,.26) rotate z*70 translate<6.2,1.6,-6.2>} object{Scroll(3.2,.22) rotate z*96 translate<7.6,1.6,-6.3>} object{O_Quill() scale 2.4 translate<8.0,1.8,-6.6>}
object{Coffer(3.8,2.4,2.4,T_Oak) rotate y*-14 translate<12.2,0,-6.6>} object{BookStack(3) rotate y*14 translate<12.2,2.3,-6.6>} object{O_OilLamp() scale 2.8 translate<15.2,0,-6.4>} object{Barrel(3.6) translate<17.6,0,-6.6>} object{O_Teddy() scale 2 translate<17.6,3.6,-6.6>}
object{Frame(concat(TEX,"paint2.png"),3.0,2.2,.32,T_Gold) rotate x*14 rotate y*8 translate<2.9,1.9,-5.9>}
object{DiveHelmet(1.3) rotate y*24 translate<-9.3,.06,-.2>} object{O_Card() scale 1.1 rotate<86,24,0> translate<-2.6,.1,-5.6>} object{O_Dice() scale .7 translate<-8.2,.06,-5.0>} object{O_Coin() scale .6 rotate<84,0,0> translate<.4,.1,-5.2>} object{O_Key() scale 1.2 rotate<86,60,0> translate<-1.2,.1,-2.6>} object{TinR(1.4) translate<-.2,0,-.4>} object{BookStack(2) rotate y*-20 translate<.2,.06,-3.6>}
