// The cabinet of curiosities from near: little painted drawers, some of them open, and pigeon-holes.  1 unit = 10 cm; its front is z=0, the lowest board y=0.
#version 3.7;
#include "scenes/shop/closeups/afternoon.inc"
camera{location<0,6.2,-16> right x*1.0 up y*1.0*520/760 direction<0,-.06,1>}
light_source{<-28,17,-24> SunCol*2.2 area_light x*.8,y*.8,3,3 adaptive 0 circular orient}
light_source{<6,10,-26> DuskCol*.62 shadowless}
light_source{<4,14,-5> LampCol*1.0 fade_distance 9 fade_power 2}
light_source{<0,6,-14> srgb<1,.78,.56>*.75 fade_distance 16 fade_power 2 shadowless}
union{#for(k,0,4) box{<-15.2,-4,-26+k*4.4>,<-15,24,-25.5+k*4.4>} #end #for(k,0,4) box{<-15.2,2.2+k*3.4,-40>,<-15,2.6+k*3.4,2>} #end no_image no_reflection no_radiosity}
#declare Sd=seed(91);
#declare W=3.12; #declare H=2.42; #declare X0=-7.8;
#declare DrawC=array[5]{<.10,.36,.36>,<.68,.44,.14>,<.38,.16,.48>,<.14,.42,.40>,<.54,.33,.12>};
// the carcass: back, uprights, boards, the cornice
box{<-11,-3,3.2>,<11,14,3.4> texture{WornPaint(<.10,.24,.25>,C_Dark)}} #for(i,0,5) object{RBox(<X0+i*W-.12,-3,0>,<X0+i*W+.12,13,3.3>,.05) texture{T_Dark rotate z*90}} #end #for(j,0,4) object{RBox(<-9.5,j*H-.12+.6,-.02>,<9.5,j*H+.12+.6,3.3>,.05) texture{T_Dark}} #end
object{RBox(<-11,-3,-.1>,<X0-.1,13,3.3>,.1) texture{T_Dark rotate z*90}} object{RBox(<-X0+.1,-3,-.1>,<11,13,3.3>,.1) texture{T_Dark rotate z*90}} object{RBox(<-11,10.35,-1.0>,<11,11.1,3.3>,.22) texture{T_Dark}} cylinder{<-11,10.4,-.95>,<11,10.4,-.95>,.09 texture{T_Gold}} object{RBox(<-11,-3,-.5>,<11,.45,3.3>,.12) texture{T_Dark}}
#macro Drawer(i,j,Out) #local x0=X0+i*W+.16; #local y0=.6+j*H+.16; #local w=W-.32; #local h=H-.32; union{
 object{RBox(<x0,y0,-.15-Out>,<x0+w,y0+h*(Out>0?.80:1),.15-Out>,.07) texture{WornPaint(DrawC[mod(i*3+j*2,5)]*RR(.95,1.15),C_Dark)}} object{RBox(<x0+.2,y0+.2,-.22-Out>,<x0+w-.2,y0+h*(Out>0?.80:1)-.2,.05-Out>,.06) texture{WornPaint(DrawC[mod(i*3+j*2,5)]*RR(1.05,1.25),C_Dark)}} Knob(<x0+w/2,y0+h*.34,-.22-Out>) box{<x0+w*.28,y0+h*.52,-.25-Out>,<x0+w*.72,y0+h*.72,-.2-Out> texture{Paper(<.94,.86,.64>)}} 
 object{RBox(<x0+w*.26,y0+h*.50,-.27-Out>,<x0+w*.74,y0+h*.525,-.2-Out>,.01) texture{T_Brass}} #for(k,0,2) box{<x0+w*.32,y0+h*(.56+k*.05),-.255-Out>,<x0+w*RR(.5,.68),y0+h*(.567+k*.05),-.24-Out> texture{pigment{srgb<.30,.18,.30>}}} #end
 #if(Out>0) box{<x0+.05,y0,.1-Out>,<x0+w-.05,y0+.12,2.9-Out> texture{T_Dark}} #for(s,0,1) box{<x0+.05+s*(w-.2),y0,.1-Out>,<x0+.15+s*(w-.2),y0+h*.72,2.9-Out> texture{T_Oak rotate y*90}} #end box{<x0+.1,y0+.1,.12-Out>,<x0+w-.1,y0+h*.42,2.8-Out> texture{Velvet(<.36,.13,.46>)}} #end} #end
// rows from below; . pigeon-hole, d drawer, o open drawer
#declare Plan=array[4]{"dod.o","d.dod",".d.d.","d.d.d"};
#for(j,0,3) #for(i,0,4) #local ch=substr(Plan[j],i+1,1); #if(strcmp(ch,"d")=0) Drawer(i,j,0) #end #if(strcmp(ch,"o")=0) Drawer(i,j,1.7) #end
 #if(strcmp(ch,".")=0) box{<X0+i*W+.12,.6+j*H+.1,.1>,<X0+(i+1)*W-.12,.6+j*H+.16,3.2> texture{Velvet(<.36,.13,.46>)}} box{<X0+i*W+.12,.6+j*H+.1,3.0>,<X0+(i+1)*W-.12,.6+(j+1)*H-.1,3.19> texture{pigment{srgb<.20,.42,.40>} finish{F_Matte}}} #end #end #end
// what stays in them
#macro At(i,j,dx,z0) translate<X0+(i+.5)*W+dx,.6+j*H+.16,z0> #end
object{VaseR(1.5) At(3,0,.95,2.2)} object{BottleR(1.7) At(1,1,-1.0,2.2)} object{Books(.9,1.7,1.5) At(0,2,.35,1.2)} object{JarR(1.3) At(2,2,1.0,2.2)} object{VaseR(1.4) At(4,2,-1.0,2.2)} object{BottleR(1.6) At(1,3,.95,2.2)} object{TinR(1.2) At(3,3,-1.0,2.2)} object{Coral(40,<.90,.45,.32>) scale .36 At(3,0,-1.0,2.3)}
union{TagTied(2,.6,<X0+.5*W,.6+H*1.36,-.3>)} union{TagTied(4,.6,<X0+4.5*W,.6+3.36*H,-.3>)}
#include "scenes/shop/closeups/cabinet_things.inc"
