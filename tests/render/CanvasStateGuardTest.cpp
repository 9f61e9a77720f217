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
    EXPECT_EQ(canvas.fillStyle(), FillDiagonalCross);
    EXPECT_EQ(canvas.drawStyle(), DrawInvisible);
    EXPECT_EQ(canvas.foreColor(), 1);
    EXPECT_EQ(canvas.fillColor(), 2);
    EXPECT_EQ(canvas.backColor(), 3);
}
