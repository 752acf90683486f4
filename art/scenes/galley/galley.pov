// The galley of the Petrel on a clear morning.  1 unit = 10 cm; the deck is y=0, the tiled bulkhead z=10, the hull runs from its left end towards the viewer.
// SHOW=-1 renders everything, SHOW=0 the bare galley, SHOW=k the galley with thing k alone (numbers in things.inc).
// BOUNCE=1 adds light from surface to surface.
#version 3.7;
#ifndef(SHOW) #declare SHOW=-1; #end
#ifndef(BOUNCE) #declare BOUNCE=0; #end
global_settings{assumed_gamma 1.0 max_trace_level 5
 #if(BOUNCE) radiosity{pretrace_start .08 pretrace_end .04 count 24 nearest_count 5 error_bound 1.1 recursion_limit 1 low_error_factor .7 gray_threshold .1 minimum_reuse .02 brightness .9} #else ambient_light rgb 1 #end}
#include "povray/props.inc"
#include "povray/props/harbour.inc"
camera{location<0,14,-37> right x*1.06 up y*1.06*768/1366 direction<0,-.164,1>}   // a shifted lens: the deck lies under the game's panel
#include "scenes/galley/light.inc"
#declare Sd=seed(21); #include "scenes/galley/shell.inc"
#declare Sd=seed(22); #include "scenes/galley/range.inc"
#declare Sd=seed(23); #include "scenes/galley/dresser.inc"
#declare Sd=seed(24); #include "scenes/galley/clutter.inc"
#include "scenes/galley/things.inc"
