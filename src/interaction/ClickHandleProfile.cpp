#include "interaction/ClickHandleProfile.h"

#include "geometry/ArithmeticError.h"
#include "geometry/M3Ops.h"
#include "geometry/NumberText.h"
#include "geometry/NumberedError.h"
#include "interaction/ProfileReceiver.h"
#include "platform/Canvas.h"
#include "render/CanvasStateGuard.h"
#include "render/KorvanOpsConsts.h"
#include "scene/COrientation.h"

#include <string>

namespace {

constexpr int32_t cyan = 16776960;

MathMatrix toMathMatrix(const Matrix4& M) {
    MathMatrix result(4, 4);
    for (int row = 1; row <= 4; ++row) {
        for (int column = 1; column <= 4; ++column) {
            result(row - 1, column - 1) = M(row, column);
        }
    }
    return result;
}

Matrix4 toMatrix4(const MathMatrix& M) {
    Matrix4 result;
    for (int row = 1; row <= 4; ++row) {
        for (int column = 1; column <= 4; ++column) {
            result(row, column) = static_cast<float>(M(row - 1, column - 1));
        }
    }
    return result;
}

} // namespace

void ClickHandleProfile::getData(std::vector<std::any>& datum, std::vector<std::any>&) {
    COrientation guess;
    guess.setOrientation(orientation.getOrientation());
    datum = {guess};
}

std::optional<viewInfo> ClickHandleProfile::handleLeftClick(MouseEventArgs& args) {
    if (!args.viewSpecs) {
        return std::nullopt;
    }
    const auto pt = clickMapping(args.messageSender, *args.viewSpecs, args.mouseX, args.mouseY);
    if (!pt) {
        return std::nullopt;
    }
    lastClickX = args.mouseX;
    lastClickY = args.mouseY;
    lastPoint = *pt;
    args.profileTool.addProfilePoint(*pt);
    // Also when the window refused the point: the guess follows the clicks.
    orientation.addAngle(static_cast<float>(args.mouseX), static_cast<float>(args.mouseY));
    return std::nullopt;
}

std::optional<viewInfo> ClickHandleProfile::handleMiddleClick(MouseEventArgs& args) {
    // Closing installs another mode, which ends this object: nothing of it is used after.
    args.profileTool.closeProfile();
    return args.viewSpecs;
}

std::optional<viewInfo> ClickHandleProfile::handleMouseMove(MouseEventArgs& args) {
    mouseX = args.mouseX;
    mouseY = args.mouseY;
    if (args.viewSpecs) {
        if (const auto seen = clickMapping(args.messageSender, *args.viewSpecs, mouseX, mouseY)) {
            args.profileTool.pointerMoved(*seen);
        }
    }
    return std::nullopt;
}

bool ClickHandleProfile::drawDatum(MouseEventArgs& args) {
    if (!args.viewSpecs) {
        return false;
    }
    Canvas& canvas = args.messageSender;
    const auto seen = clickMapping(canvas, *args.viewSpecs, mouseX, mouseY);
    if (!seen) {
        return false;
    }
    const CanvasStateGuard keep(canvas);
    canvas.setForeColor(cyan);
    canvas.setDrawStyle(DrawSolid);
    const Point4& c = seen->coord;
    const std::vector<std::string> position{"X : " + NumberText::single(c.x),
                                            "Y : " + NumberText::single(c.y),
                                            "Z : " + NumberText::single(c.z)};
    if (lastClickX != -1 && lastClickY != -1) {
        const Point4& last = lastPoint.coord;
        std::vector<std::string> lines{"X Dist: " + NumberText::single(c.x - last.x),
                                       "Y Dist: " + NumberText::single(c.y - last.y),
                                       "Z Dist: " + NumberText::single(c.z - last.z)};
        lines.insert(lines.end(), position.begin(), position.end());
        canvas.moveTo(lastClickX, lastClickY);
        canvas.lineTo(mouseX, mouseY);
        writeLines(canvas, lines);
    } else {
        writeLines(canvas, position);
    }
    return false;
}

std::optional<PointRecord> ClickHandleProfile::clickMapping(const Canvas& canvas,
                                                            const viewInfo& view, int32_t x,
                                                            int32_t y) const {
    const Matrix4 M = KorvanOpsConsts::getFullViewMatrix(canvas, view.getSpecs());
    Matrix4 Minv;
    try {
        Minv = toMatrix4(math.Inv(toMathMatrix(M)));
    } catch (const NumberedError&) {
        return std::nullopt;
    } catch (const ArithmeticError&) {
        return std::nullopt;
    }
    PointRecord r;
    M3Ops::transformPoint(Point4{static_cast<float>(x), static_cast<float>(y), 0, 1}, Minv,
                          r.coord);
    r.trans = r.coord;
    return r;
}

void ClickHandleProfile::writeLines(Canvas& canvas, const std::vector<std::string>& lines) {
    const int height = canvas.textHeight();
    int fromBottom = static_cast<int>(lines.size());
    for (const std::string& line : lines) {
        canvas.textOut(canvas.scaleWidth() - canvas.textWidth(line),
                       canvas.scaleHeight() - fromBottom * height, line);
        --fromBottom;
    }
}
