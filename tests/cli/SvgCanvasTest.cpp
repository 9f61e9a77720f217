#include "cli/SvgCanvas.h"

#include <gtest/gtest.h>

// Hatches refer to one pattern per style and colour; a clear covers the whole picture, so
// nothing before it, patterns included, is kept.
TEST(SvgCanvas, WritesOneElementPerCallInPaintOrderUntilAClear) {
    SvgCanvas canvas(320, 200);
    canvas.setBackColor(0x123456);
    canvas.clear();
    canvas.setFillStyle(FillSolid);
    canvas.setFillColor(0x1080FF); // #ff8010, the colours are 0xBBGGRR
    canvas.setDrawStyle(DrawInvisible);
    canvas.polygon({{10, 20}, {30, -4}, {50, 60}});
    canvas.setFillStyle(FillTransparent);
    canvas.setDrawStyle(DrawSolid);
    canvas.setForeColor(0x00FF00);
    canvas.polygon({{1, 2}, {3, 4}, {5, 6}});
    canvas.moveTo(5, 6);
    canvas.lineTo(7, 8);
    canvas.lineTo(9, 10);
    canvas.setDrawStyle(DrawInvisible);
    canvas.lineTo(11, 12);
    canvas.setForeColor(0xFFFFFF);
    canvas.textOut(40, 50, "a<b & \"c\"");
    canvas.refresh();
    canvas.stretchBlitOr(Bitmap{1, 1, {0xFFFFFF}}, 0, 0, 10, 10, 0, 0, 1, 1); // not drawn
    canvas.setFillColor(0x00FF00);
    for (int style : {FillDiagonalCross, FillDiagonalCross, FillHorizontalLine}) {
        canvas.setFillStyle(style);
        canvas.polygon({{0, 0}, {10, 0}, {10, 10}});
    }
    canvas.setFillColor(0x1080FF);
    canvas.setFillStyle(FillDiagonalCross);
    canvas.polygon({{0, 0}, {10, 0}, {10, 10}});
    canvas.polygon({});
    const std::string header =
        R"svg(<svg xmlns="http://www.w3.org/2000/svg" width="320" height="200" viewBox="0 0 320 200">
)svg";
    EXPECT_EQ(canvas.svg(), header + R"svg(<defs>
<pattern id="h7-00ff00" width="8" height="8" patternUnits="userSpaceOnUse"><path d="M0,8L8,0M-1,1L1,-1M7,9L9,7M0,0L8,8M-1,7L1,9M7,-1L9,1" stroke="#00ff00"/></pattern>
<pattern id="h2-00ff00" width="8" height="8" patternUnits="userSpaceOnUse"><path d="M0,4H8" stroke="#00ff00"/></pattern>
<pattern id="h7-ff8010" width="8" height="8" patternUnits="userSpaceOnUse"><path d="M0,8L8,0M-1,1L1,-1M7,9L9,7M0,0L8,8M-1,7L1,9M7,-1L9,1" stroke="#ff8010"/></pattern>
</defs>
<rect width="320" height="200" fill="#563412"/>
<polygon points="10,20 30,-4 50,60" fill="#ff8010" fill-rule="evenodd" stroke="none"/>
<polygon points="1,2 3,4 5,6" fill="none" fill-rule="evenodd" stroke="#00ff00"/>
<line x1="5" y1="6" x2="7" y2="8" stroke="#00ff00"/>
<line x1="7" y1="8" x2="9" y2="10" stroke="#00ff00"/>
<line x1="9" y1="10" x2="11" y2="12" stroke="none"/>
<text x="40" y="50" fill="#ffffff" dominant-baseline="hanging" font-family="sans-serif" font-size="11" xml:space="preserve">a&lt;b &amp; &quot;c&quot;</text>
<polygon points="0,0 10,0 10,10" fill="url(#h7-00ff00)" fill-rule="evenodd" stroke="none"/>
<polygon points="0,0 10,0 10,10" fill="url(#h7-00ff00)" fill-rule="evenodd" stroke="none"/>
<polygon points="0,0 10,0 10,10" fill="url(#h2-00ff00)" fill-rule="evenodd" stroke="none"/>
<polygon points="0,0 10,0 10,10" fill="url(#h7-ff8010)" fill-rule="evenodd" stroke="none"/>
</svg>
)svg");
    canvas.clear();
    EXPECT_EQ(canvas.svg(),
              header + "<rect width=\"320\" height=\"200\" fill=\"#563412\"/>\n</svg>\n");
}
