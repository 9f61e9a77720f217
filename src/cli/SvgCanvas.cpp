#include "cli/SvgCanvas.h"

#include "geometry/PackedColor.h"

#include <algorithm>
#include <cstdio>

namespace {

std::string hexDigits(int32_t color) {
    char text[8];
    const PackedColor c = PackedColor::split(color);
    std::snprintf(text, sizeof text, "%02x%02x%02x", c.red, c.green, c.blue);
    return text;
}

std::string hexColor(int32_t color) {
    return "#" + hexDigits(color);
}

std::string patternId(int style, int32_t color) {
    return "h" + std::to_string(style) + "-" + hexDigits(color);
}

// Text and attribute values both, so quotes are escaped too. Control characters are not
// allowed in XML at all and become blanks.
std::string escapeXml(const std::string& text) {
    std::string escaped;
    for (const char c : text) {
        switch (c) {
        case '&':
            escaped += "&amp;";
            break;
        case '<':
            escaped += "&lt;";
            break;
        case '>':
            escaped += "&gt;";
            break;
        case '"':
            escaped += "&quot;";
            break;
        case '\'':
            escaped += "&apos;";
            break;
        default:
            const bool control =
                static_cast<unsigned char>(c) < 0x20 && c != '\t' && c != '\n' && c != '\r';
            escaped += control ? ' ' : c;
        }
    }
    return escaped;
}

// The lines of one 8 x 8 hatch cell, like the brushes of a classic device context.
std::string hatchPath(int style) {
    const std::string horizontal = "M0,4H8";
    const std::string vertical = "M4,0V8";
    // The short strokes at the corners join the diagonals of neighbouring cells seamlessly.
    const std::string upward = "M0,8L8,0M-1,1L1,-1M7,9L9,7";
    const std::string downward = "M0,0L8,8M-1,7L1,9M7,-1L9,1";
    switch (style) {
    case FillHorizontalLine:
        return horizontal;
    case FillVerticalLine:
        return vertical;
    case FillUpwardDiagonal:
        return upward;
    case FillDownwardDiagonal:
        return downward;
    case FillCross:
        return horizontal + vertical;
    default:
        return upward + downward;
    }
}

} // namespace

std::string SvgCanvas::patternFor(int style, int32_t color) {
    const std::pair<int, int32_t> key{style, color & 0xFFFFFF};
    if (std::find(patterns_.begin(), patterns_.end(), key) == patterns_.end()) {
        patterns_.push_back(key);
    }
    return "url(#" + patternId(key.first, key.second) + ")";
}

void SvgCanvas::polygon(const std::vector<CanvasPoint>& points) {
    if (points.empty()) {
        return; // nothing to paint, as on any canvas
    }
    std::string element = "<polygon points=\"";
    for (size_t i = 0; i < points.size(); ++i) {
        element +=
            (i > 0 ? " " : "") + std::to_string(points[i].x) + "," + std::to_string(points[i].y);
    }
    std::string fill;
    if (fillStyle() == FillSolid) {
        fill = hexColor(fillColor());
    } else if (fillStyle() >= FillHorizontalLine && fillStyle() <= FillDiagonalCross) {
        fill = patternFor(fillStyle(), fillColor());
    } else {
        fill = "none";
    }
    const std::string stroke = drawStyle() == DrawInvisible ? "none" : hexColor(foreColor());
    // Overlapping edges leave holes, as the alternate fill mode of the platform polygon does.
    elements_.push_back(element + "\" fill=\"" + fill + "\" fill-rule=\"evenodd\" stroke=\"" +
                        stroke + "\"/>");
}

void SvgCanvas::moveTo(int x, int y) {
    penX_ = x;
    penY_ = y;
}

void SvgCanvas::lineTo(int x, int y) {
    const std::string stroke = drawStyle() == DrawInvisible ? "none" : hexColor(foreColor());
    elements_.push_back("<line x1=\"" + std::to_string(penX_) + "\" y1=\"" + std::to_string(penY_) +
                        "\" x2=\"" + std::to_string(x) + "\" y2=\"" + std::to_string(y) +
                        "\" stroke=\"" + stroke + "\"/>");
    penX_ = x;
    penY_ = y;
}

void SvgCanvas::textOut(int x, int y, const std::string& text) {
    elements_.push_back("<text x=\"" + std::to_string(x) + "\" y=\"" + std::to_string(y) +
                        "\" fill=\"" + hexColor(foreColor()) +
                        "\" dominant-baseline=\"hanging\" font-family=\"sans-serif\" "
                        "font-size=\"11\" xml:space=\"preserve\">" +
                        escapeXml(text) + "</text>");
}

void SvgCanvas::clear() {
    // The back colour covers everything drawn so far, so the picture starts afresh.
    elements_.clear();
    patterns_.clear();
    elements_.push_back("<rect width=\"" + std::to_string(width_) + "\" height=\"" +
                        std::to_string(height_) + "\" fill=\"" + hexColor(backColor()) + "\"/>");
}

std::string SvgCanvas::svg() const {
    const std::string w = std::to_string(width_);
    const std::string h = std::to_string(height_);
    std::string document = "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" + w +
                           "\" height=\"" + h + "\" viewBox=\"0 0 " + w + " " + h + "\">\n";
    if (!patterns_.empty()) {
        document += "<defs>\n";
        for (const auto& [style, color] : patterns_) {
            document += "<pattern id=\"" + patternId(style, color) +
                        "\" width=\"8\" height=\"8\" patternUnits=\"userSpaceOnUse\"><path d=\"" +
                        hatchPath(style) + "\" stroke=\"" + hexColor(color) + "\"/></pattern>\n";
        }
        document += "</defs>\n";
    }
    for (const std::string& element : elements_) {
        document += element + "\n";
    }
    return document + "</svg>\n";
}
