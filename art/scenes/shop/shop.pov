// The curiosity shop at Bell Haven, late in the afternoon.  1 unit = 10 cm; the back wall is z=12, the floor y=0.
// SHOW=-1 renders everything, SHOW=0 the bare shop, SHOW=k the shop with thing k alone (numbers in things.inc).
// BOUNCE=1 adds light from surface to surface.
#version 3.7;
#ifndef(SHOW) #declare SHOW=-1; #end
#ifndef(BOUNCE) #declare BOUNCE=0; #end
global_settings{assumed_gamma 1.0 max_trace_level 6
 #if(BOUNCE) radiosity{pretrace_start .08 pretrace_end .04 count 20 nearest_count 5 error_bound 1.2 recursion_limit 1 low_error_factor .7 gray_threshold .15 minimum_reuse .02 brightness 1.0} #end}
#include "povray/props.inc"
camera{location<0,14,-36> right x*1.08 up y*1.08*768/1366 direction<0,-.165,1>}   // a shifted lens: the floor lies under the game's panel
#declare Sd=seed(71); #include "scenes/shop/light.inc"
#declare Sd=seed(72); #include "scenes/shop/room.inc"
#declare Sd=seed(73); #include "scenes/shop/lamps.inc"
#declare Sd=seed(74); #include "scenes/shop/booth.inc"
#declare Sd=seed(75); #include "scenes/shop/shelves.inc"
#declare Sd=seed(76); #include "scenes/shop/counter.inc"
#declare Sd=seed(77); #include "scenes/shop/clutter.inc"
#include "scenes/shop/things.inc"
