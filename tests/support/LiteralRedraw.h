#pragma once

#include "render/ViewSpecs.h"
#include "render/ViewportScene.h"

class Canvas;

// The redraw the renderer must match, as plain as it can be written: one viewport after the
// other, each culled, transformed, clipped, ordered and painted in the document itself.
namespace LiteralRedraw {

// Paints the viewport.
void redrawViewport(Canvas& canvas, const ViewSpecs& record, const ViewportScene& scene);
// Leaves in the document what a redraw of the viewport leaves, painting nothing.
void project(const Canvas& canvas, const ViewSpecs& record, const ViewportScene& scene);

} // namespace LiteralRedraw
