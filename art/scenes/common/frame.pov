// The frame of a close-up: mahogany mouldings with a brass fillet and brass corners, seen from straight ahead.  1 unit = 1 pixel; FRAME is its width.
#version 3.7;
global_settings{assumed_gamma 1.0 max_trace_level 4}
#include "povray/library.inc"
#declare Sd=seed(7);
#declare W=image_width/2; #declare H=image_height/2;
camera{orthographic location<0,0,-500> direction z right x*image_width up y*image_height}
light_source{<-900,1300,-1100> srgb<1,.84,.62>*1.5} light_source{<800,300,-900> srgb<.55,.66,.95>*.5 shadowless}
sphere{0,5000 inverse texture{pigment{gradient y color_map{[0 srgb<.10,.07,.05>][.5 srgb<.42,.32,.22>][1 srgb<.85,.74,.58>]} scale 10000 translate y*-5000} finish{emission .7 diffuse 0}} no_image no_shadow}
#macro Moulding(L,R)   // along x, its outer edge at y=0, its inner one at y=-R
 union{object{RBox(<-L,-R,-R*.25>,<L,0,R>,R*.16)} cylinder{<-L,-R*.22,-R*.10>,<L,-R*.22,-R*.10>,R*.24} cylinder{<-L,-R*.66,-R*.20>,<L,-R*.66,-R*.20>,R*.16}}
#end
#macro Side(L,R,Turn) union{object{Moulding(L,R) scale 1/24 texture{Wood(C_Mahog*.85,1,F_Lacq) scale 2} scale 24} cylinder{<-L,-R*.93,-R*.28>,<L,-R*.93,-R*.28>,R*.075 texture{T_Brass scale 30}} rotate z*Turn} #end
#macro Mitred(L,R,Turn) intersection{Side(L,R,0) plane{-y-x,0 translate<-L,0,0> } plane{x-y,0 translate<L,0,0>} bounded_by{box{<-L-1,-R-2,-R>,<L+1,1,R+1>}} rotate z*Turn} #end
object{Mitred(W,FRAME,0) translate y*H} object{Mitred(W,FRAME,180) translate y*-H} object{Mitred(H,FRAME,90) translate x*-W} object{Mitred(H,FRAME,-90) translate x*W}
#for(i,-1,1,2) #for(j,-1,1,2)
 union{difference{object{RBox(<0,0,-FRAME*.42>,<FRAME*2.4,FRAME*2.4,0>,FRAME*.1)} box{<FRAME*1.04,FRAME*1.04,-FRAME>,<FRAME*3,FRAME*3,FRAME>} cylinder{<FRAME*2.4,FRAME*2.4,-FRAME>,<FRAME*2.4,FRAME*2.4,FRAME>,FRAME*1.1}}
  #for(k,0,1) sphere{<FRAME*(.5+1.45*k),FRAME*(.5+1.45*(1-k)),-FRAME*.42>,FRAME*.13} #end sphere{<FRAME*.5,FRAME*.5,-FRAME*.42>,FRAME*.16}
  texture{T_Brass scale 30} scale<-i,-j,1> translate<i*W,j*H,0>}
#end #end
