#include "cli/SvgCanvas.h"

#include <QXmlStreamReader>
#include <gtest/gtest.h>

namespace {

// The names of the document's elements in order, or a failure when it is not well-formed XML.
std::vector<std::string> elementNames(const std::string& svg) {
    QXmlStreamReader xml(QByteArray::fromStdString(svg));
    std::vector<std::string> names;
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement) {
            names.push_back(xml.name().toString().toStdString());
        }
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString() << "\n" << svg;
    return names;
}

size_t count(const std::string& text, const std::string& part) {
    size_t n = 0;
    for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) {
        ++n;
    }
    return n;
}

constexpr int32_t Orange = 0xFF + 0x80 * 256 + 0x10 * 65536; // #ff8010
constexpr int32_t Green = 0xFF * 256;                        // #00ff00

} // namespace

TEST(SvgCanvas, WritesOneElementPerCallInPaintOrder) {
    SvgCanvas canvas(320, 200);
    canvas.setBackColor(0x123456);
    canvas.clear();
    canvas.setFillStyle(FillSolid);
    canvas.setFillColor(Orange);
    canvas.setDrawStyle(DrawInvisible);
    canvas.polygon({{10, 20}, {30, -4}, {50, 60}});
    canvas.setFillStyle(FillTransparent);
    canvas.setDrawStyle(DrawSolid);
    canvas.setForeColor(Green);
    canvas.polygon({{1, 2}, {3, 4}, {5, 6}});
    canvas.moveTo(5, 6);
    canvas.lineTo(7, 8);
    canvas.lineTo(9, 10);
    canvas.setDrawStyle(DrawInvisible);
    canvas.lineTo(11, 12);
    canvas.setForeColor(0xFFFFFF);
    canvas.textOut(40, 50, "a<b & \"c\"");
    canvas.refresh();
    canvas.stretchBlitOr(Bitmap{1, 1, {0xFFFFFF}}, 0, 0, 10, 10, 0, 0, 1, 1);

    const std::string svg = canvas.svg();
    EXPECT_EQ(svg.rfind("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"320\" height=\"200\" "
                        "viewBox=\"0 0 320 200\">",
                        0),
              0u);
    EXPECT_EQ(elementNames(svg), (std::vector<std::string>{"svg", "rect", "polygon", "polygon",
                                                           "line", "line", "line", "text"}));
    EXPECT_NE(svg.find("<rect width=\"320\" height=\"200\" fill=\"#563412\""), std::string::npos);
    EXPECT_NE(svg.find("<polygon points=\"10,20 30,-4 50,60\" fill=\"#ff8010\""),
              std::string::npos);
    EXPECT_NE(svg.find("points=\"1,2 3,4 5,6\" fill=\"none\""), std::string::npos);
    EXPECT_EQ(count(svg, "stroke=\"none\""), 2u); // the first polygon and the last line
    EXPECT_NE(svg.find("<line x1=\"5\" y1=\"6\" x2=\"7\" y2=\"8\" stroke=\"#00ff00\"/>"),
              std::string::npos);
    EXPECT_NE(svg.find("<line x1=\"7\" y1=\"8\" x2=\"9\" y2=\"10\" stroke=\"#00ff00\"/>"),
              std::string::npos);
    EXPECT_NE(svg.find("<line x1=\"9\" y1=\"10\" x2=\"11\" y2=\"12\" stroke=\"none\"/>"),
              std::string::npos);
    EXPECT_NE(svg.find("<text x=\"40\" y=\"50\" fill=\"#ffffff\" dominant-baseline=\"hanging\""),
              std::string::npos);
    EXPECT_NE(svg.find(">a&lt;b &amp; &quot;c&quot;</text>"), std::string::npos);
    EXPECT_EQ(svg.find("<defs>"), std::string::npos);
}

TEST(SvgCanvas, HatchesReferToOnePatternPerStyleAndColour) {
    SvgCanvas canvas(100, 100);
    canvas.setDrawStyle(DrawSolid);
    canvas.setForeColor(Orange);
    canvas.setFillColor(Green);
    for (int style : {FillDiagonalCross, FillDiagonalCross, FillHorizontalLine}) {
        canvas.setFillStyle(style);
        canvas.polygon({{0, 0}, {10, 0}, {10, 10}});
    }
    canvas.setFillColor(Orange);
    canvas.setFillStyle(FillDiagonalCross);
    canvas.polygon({{0, 0}, {10, 0}, {10, 10}});
    canvas.polygon({});

    const std::string svg = canvas.svg();
    EXPECT_EQ(elementNames(svg), (std::vector<std::string>{
                                     "svg", "defs", "pattern", "path", "pattern", "path", "pattern",
                                     "path", "polygon", "polygon", "polygon", "polygon"}));
    EXPECT_EQ(count(svg, "fill=\"url(#h7-00ff00)\" fill-rule=\"evenodd\" stroke=\"#ff8010\""), 2u);
    EXPECT_EQ(count(svg, "fill=\"url(#h2-00ff00)\""), 1u);
    EXPECT_EQ(count(svg, "fill=\"url(#h7-ff8010)\""), 1u);
    EXPECT_EQ(count(svg, "<pattern id=\"h7-00ff00\""), 1u);
    EXPECT_NE(svg.find("<pattern id=\"h2-00ff00\""), std::string::npos);
    EXPECT_NE(svg.find("<pattern id=\"h7-ff8010\""), std::string::npos);
    EXPECT_NE(svg.find("stroke=\"#00ff00\"/></pattern>"), std::string::npos);

    // A clear covers the whole picture: nothing before it, patterns included, is kept.
    canvas.clear();
    EXPECT_EQ(elementNames(canvas.svg()), (std::vector<std::string>{"svg", "rect"}));
}
