#pragma once

#include "motor/map/map.h"

namespace motor {

// Moving and zooming a map by hand. The map's width stays between that of a house and some times the entire map; a
// width beyond that, which a statement set, may only come nearer. Pixels are the window's, from its top left. Each
// tells whether anything has changed.

// Factor > 1 shows more; the point under the pixel stays there.
bool zoomAround(Map& map, double factor, Point pixel);
// The same, and the point under the pixel comes to the middle.
bool zoomTo(Map& map, double factor, Point pixel);
// What lies in a box of pixels fills the window, as far as its shape allows. A box without width and height changes
// nothing.
bool zoomIntoBox(Map& map, const Box& pixels);
// What the window shows shrinks into a box of pixels, as far as its shape allows.
bool zoomOutOfBox(Map& map, const Box& pixels);
// The map moves along with the pointer by so many pixels.
bool panBy(Map& map, double pixelX, double pixelY);

}  // namespace motor
