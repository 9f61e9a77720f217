#include "render/CanvasStateGuard.h"

#include "support/RecordingCanvas.h"

#include <gtest/gtest.h>

TEST(CanvasStateGuard, PutsBackEveryStyleAndColour) {
    RecordingCanvas canvas;
    const auto setAll = [&canvas](int fillStyle, int drawStyle, int32_t colour) {
        canvas.setFillStyle(fillStyle);
        canvas.setDrawStyle(drawStyle);
        canvas.setForeColor(colour);
        canvas.setFillColor(colour + 1);
        canvas.setBackColor(colour + 2);
    };
    setAll(FillDiagonalCross, DrawInvisible, 1);
    {
        const CanvasStateGuard guard(canvas);
        setAll(FillSolid, DrawSolid, 10);
    }
    EXPECT_EQ(std::tuple(canvas.fillStyle(), canvas.drawStyle(), canvas.foreColor(),
                         canvas.fillColor(), canvas.backColor()),
              std::tuple(FillDiagonalCross, DrawInvisible, 1, 2, 3));
}
