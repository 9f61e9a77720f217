#include "support/RecordingCanvas.h"

std::vector<RecordingCanvas::Call> RecordingCanvas::polygons() const {
    std::vector<Call> result;
    for (const Call& call : calls_) {
        if (call.kind == Kind::Polygon) {
            result.push_back(call);
        }
    }
    return result;
}

void RecordingCanvas::record(Kind kind, std::vector<CanvasPoint> points, std::string text) {
    calls_.push_back(Call{kind, std::move(points), std::move(text), fillStyle(), drawStyle(),
                          foreColor(), fillColor(), backColor()});
}
