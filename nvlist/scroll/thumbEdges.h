#pragma once

#include <cstdint>

#include <nvlist/drawing/Surface.h>
#include <nvlist/objects/Trap.h>
#include <nvlist/values/Boolean.h>
#include <nvlist/values/Colour.h>

/// The lines around a thumb that both thumbs draw alike; `W` and `H` are the size of the surface.
namespace norvane::scroll {

struct EdgeColors {
  Colour corner = 0;  ///< of the track, where a corner is cut off
  Colour lower = 0;   ///< the line below
  Colour round = 0;   ///< the pixels beside a corner
};

/// The colours of the styles 0 to 2; any other one leaves them as they are.
void setEdgeColors(EdgeColors& colors, std::int32_t style);

/// The lower edge and the rounded corners.
void drawEdges(Trap& on, Surface& surface, const EdgeColors& colors, float W, float H);

/// The outline that a silver thumb has in addition.
void drawSilverOutline(Trap& on, Surface& surface, Boolean isHovered, float W, float H);

}  // namespace norvane::scroll
