// The quay of Port Merrow at dusk.  1 unit = 10 cm; the paving is y=0, the wall of the mail house z=13, the water y=-6.
// SHOW=-1 renders everything, SHOW=0 the bare quay, SHOW=k the quay with thing k alone (numbers in things.inc).
// BOUNCE=1 adds light from surface to surface.
#version 3.7;
#ifndef(SHOW) #declare SHOW=-1; #end
#ifndef(BOUNCE) #declare BOUNCE=0; #end
global_settings{assumed_gamma 1.0 max_trace_level 5
 #if(BOUNCE) radiosity{pretrace_start .08 pretrace_end .02 count 40 nearest_count 6 error_bound .8 recursion_limit 1 low_error_factor .6 gray_threshold .2 minimum_reuse .012 brightness .75} #end}
#include "povray/props.inc"
#include "povray/props/harbour.inc"
#include "scenes/quay/light.inc"
camera{location<0,14.5,-33> right x*1.155 up y*1.155*768/1366 direction<0,-.19220351,1>}   // a shifted lens: uprights stay upright, and the foreground lies under the game's panel
#include "scenes/quay/backdrop.inc"
#declare Sd=seed(11); #include "scenes/quay/ground.inc"
#declare Sd=seed(12); #include "scenes/quay/mailhouse.inc"
#declare Sd=seed(13); #include "scenes/quay/steamer.inc"
#declare Sd=seed(14); #include "scenes/quay/stall.inc"
#declare Sd=seed(15); #include "scenes/quay/clutter.inc"
#include "scenes/quay/things.inc"
