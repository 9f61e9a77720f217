#include "support/RecordingCanvas.h"

#include <algorithm>
#include <iterator>

std::vector<RecordingCanvas::Call> RecordingCanvas::polygons() const {
    std::vector<Call> result;
    std::ranges::copy_if(calls_, std::back_inserter(result),
                         [](const Call& call) { return call.kind == Kind::Polygon; });
    return result;
}

void RecordingCanvas::record(Kind kind, std::vector<CanvasPoint> points, std::string text) {
    calls_.push_back(Call{kind, std::move(points), std::move(text), fillStyle(), drawStyle(),
                          foreColor(), fillColor()});
}
