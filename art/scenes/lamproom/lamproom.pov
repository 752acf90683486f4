// The lamp room of Tern Isle by night, a gale clearing.  1 unit = 10 cm; the floor is y=0, the lantern a 16-sided room around Hub.
// SHOW=-1 renders everything, SHOW=0 the bare room, SHOW=k the room with thing k alone (numbers in things.inc).
// BOUNCE=1 adds light from surface to surface.
#version 3.7;
#ifndef(SHOW) #declare SHOW=-1; #end
#ifndef(BOUNCE) #declare BOUNCE=0; #end
global_settings{assumed_gamma 1.0 max_trace_level 6
 #if(BOUNCE) radiosity{pretrace_start .08 pretrace_end .04 count 30 nearest_count 5 error_bound 1.2 recursion_limit 1 low_error_factor .7 gray_threshold .15 minimum_reuse .02 brightness .5} #end}
#include "povray/props.inc"
#include "povray/props/harbour.inc"
#include "scenes/lamproom/light.inc"
camera{location<0,13,-35> right x*1.1 up y*1.1*768/1366 direction<0,-.15,1>}   // a shifted lens: uprights stay upright, the floor lies under the game's panel
#include "scenes/lamproom/iron.inc"
#include "scenes/lamproom/great_lamp.inc"
#declare Sd=seed(71); #include "scenes/lamproom/lantern.inc"
#declare Sd=seed(72); #include "scenes/lamproom/pedestal.inc"
#declare Sd=seed(73); #include "scenes/lamproom/furniture.inc"
#declare Sd=seed(74); #include "scenes/lamproom/clutter.inc"
#include "scenes/lamproom/things.inc"
