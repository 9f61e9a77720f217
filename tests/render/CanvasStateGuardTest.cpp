#include "render/CanvasStateGuard.h"

#include "support/RecordingCanvas.h"

#include <gtest/gtest.h>

TEST(CanvasStateGuard, PutsBackEveryStyleAndColour) {
    RecordingCanvas canvas;
    canvas.setFillStyle(FillDiagonalCross);
    canvas.setDrawStyle(DrawInvisible);
    canvas.setForeColor(1);
    canvas.setFillColor(2);
    canvas.setBackColor(3);
    {
        const CanvasStateGuard guard(canvas);
        canvas.setFillStyle(FillSolid);
        canvas.setDrawStyle(DrawSolid);
        canvas.setForeColor(10);
        canvas.setFillColor(20);
        canvas.setBackColor(30);
    }
    EXPECT_EQ(canvas.fillStyle(), FillDiagonalCross);
    EXPECT_EQ(canvas.drawStyle(), DrawInvisible);
    EXPECT_EQ(canvas.foreColor(), 1);
    EXPECT_EQ(canvas.fillColor(), 2);
    EXPECT_EQ(canvas.backColor(), 3);
}
