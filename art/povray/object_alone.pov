// One object alone with alpha, to look at: povray povray/object_alone.pov +L. +UA +W400 +H400 Declare=OBJ=n (also YAW, ROLL, TILT in degrees).
#version 3.7;
#ifndef(OBJ) #declare OBJ=1; #end
#ifndef(YAW) #declare YAW=0; #end
#ifndef(ROLL) #declare ROLL=0; #end
#ifndef(TILT) #declare TILT=0; #end
#ifndef(PITCH) #declare PITCH=13; #end
global_settings{assumed_gamma 1.0 max_trace_level 12 radiosity{count 40 error_bound .8 recursion_limit 1 nearest_count 5 pretrace_start .16 pretrace_end .03 brightness 1}}
#include "povray/objects.inc"
#include "povray/room_light.inc"
camera{orthographic location <0,0.5+10*sin(radians(PITCH)),-10*cos(radians(PITCH))> look_at <0,.5,0> right x*1.6 up y*1.6}
SpriteLight()
#macro O_(n)
 #switch(n)
 #case(1) O_Telescope() #break #case(2) O_OilLamp() #break #case(3) O_Bell() #break #case(4) O_Hourglass() #break #case(5) O_Teacup() #break #case(6) O_Watch() #break
 #case(7) O_Starfish() #break #case(8) O_Conch() #break #case(9) O_Key() #break #case(10) O_Candle() #break #case(11) O_Knight() #break #case(12) O_Dice() #break
 #case(13) O_Bottle() #break #case(14) O_Anchor() #break #case(15) O_Compass() #break #case(16) O_Umbrella() #break #case(17) O_Hat() #break #case(18) O_Violin() #break
 #case(19) O_Apple() #break #case(20) O_Quill() #break #case(21) O_Lighthouse() #break #case(22) O_Fish() #break #case(23) O_Teddy() #break #case(24) O_Wheel() #break
 #case(25) O_Boat() #break #case(26) O_Card() #break #case(27) O_Rope() #break #case(28) O_Book() #break #case(29) O_Coin() #break #case(30) O_Letter() #break
 #end
#end
object{O_(OBJ) translate y*-.5 rotate<TILT,YAW,ROLL> translate y*.5}
