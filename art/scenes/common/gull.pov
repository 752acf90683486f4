// A gull on the wing in the evening light, alone with alpha: data/common/gull.png, shared by every open-air scene.
#version 3.7;
global_settings{assumed_gamma 1.0}
#include "povray/library.inc"
camera{orthographic location<0,3,-20> look_at<0,0,0> right x*5.6 up y*2.8}
light_source{<-14,26,-40> srgb<1,.76,.46>*.75}
light_source{<12,80,-14> srgb<.46,.60,.95>*.7}
light_source{<44,6,-40> srgb<.46,.60,.95>*.45 shadowless}
light_source{<70,50,120> srgb<1,.60,.42>*.7}
#macro Wing(S) // S=1 near wing, S=-1 far wing; root at x=0, tip towards -z*S and up
 #local NU=24; #local NV=8; #local A=array[NU+1][NV+1];
 #for(i,0,NU) #for(j,0,NV) #local e=i/NU; #local q=j/NV; #local chord=.78*pow(1-e,.55)*(1-.18*e)+.05;
  #local lift=1.15*sin(min(1,e*1.7)*pi/2)*(1-.30*max(0,e-.45)/.55)-.35*pow(max(0,e-.5),1.4);
  #local A[i][j]=<S*(.22+2.15*e),lift*.62+.05*sin(q*pi),-.30+.55*e*e+chord*(q-.35)>; #end #end
 object{GridMesh(A,NU,NV,0,0) texture{pigment{gradient x*S color_map{[0 srgb<.66,.69,.74>][.74 srgb<.58,.62,.68>][.80 srgb<.08,.08,.09>][1 srgb<.05,.05,.06>]} scale 2.45} finish{ambient 0 diffuse .9 emission .16}}}
#end
union{
 object{Wing(1)} object{Wing(-1) }
 blob{threshold .4 sphere{0,1,1 scale<.40,.38,1.15> translate<0,0,-.25>} sphere{<0,.10,-.98>,.36,1} cylinder{<0,0,.2>,<0,.02,.9>,.20,1} texture{pigment{srgb<.93,.93,.92>} finish{ambient 0 diffuse .9 emission .16}}}
 prism{linear_sweep linear_spline -.02,.02,5 <-.10,.55>,<.10,.55>,<.30,1.15>,<-.30,1.15>,<-.10,.55> texture{pigment{srgb<.92,.92,.92>} finish{ambient 0 diffuse .9}}}
 cone{<0,.05,-1.15>,.08,<0,-.02,-1.45>,.02 texture{pigment{srgb<.95,.72,.20>} finish{F_Satin}}}
 rotate<-6,52,0> rotate z*-6}
