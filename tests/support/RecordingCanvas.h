#pragma once

#include "platform/Canvas.h"

#include <string>
#include <vector>

// A canvas that paints nothing and records every drawing call with the state in force.
class RecordingCanvas : public Canvas {
public:
    enum class Kind { Polygon, MoveTo, LineTo, Text, Clear, Refresh, StretchBlit };

    struct Call {
        Kind kind;
        std::vector<CanvasPoint> points; // polygon corners, or the one point of the call
        std::string text;
        int fillStyle;
        int drawStyle;
        int32_t foreColor;
        int32_t fillColor;
    };

    explicit RecordingCanvas(int width = 400, int height = 300) : width_(width), height_(height) {}

    int scaleWidth() const override { return width_; }
    int scaleHeight() const override { return height_; }
    void move(int left, int top, int width, int height) override {
        left_ = left;
        top_ = top;
        width_ = width;
        height_ = height;
    }
    int left() const { return left_; }
    int top() const { return top_; }

    void polygon(const std::vector<CanvasPoint>& points) override { record(Kind::Polygon, points); }
    void moveTo(int x, int y) override { record(Kind::MoveTo, {{x, y}}); }
    void lineTo(int x, int y) override { record(Kind::LineTo, {{x, y}}); }
    void textOut(int x, int y, const std::string& text) override {
        record(Kind::Text, {{x, y}}, text);
    }
    void clear() override { record(Kind::Clear, {}); }
    void refresh() override { record(Kind::Refresh, {}); }
    void stretchBlitOr(const Bitmap&, int dx, int dy, int dw, int dh, int, int, int, int) override {
        record(Kind::StretchBlit, {{dx, dy}, {dx + dw, dy + dh}});
    }

    // Records the name and answers as the test set; the image itself is not written.
    bool saveBitmap(const std::string& path) const override {
        savedBitmaps_.push_back(path);
        return saveSucceeds_;
    }
    void setSaveSucceeds(bool succeeds) { saveSucceeds_ = succeeds; }
    const std::vector<std::string>& savedBitmaps() const { return savedBitmaps_; }

    const std::vector<Call>& calls() const { return calls_; }
    std::vector<Call> polygons() const;
    void forget() { calls_.clear(); }

private:
    void record(Kind kind, std::vector<CanvasPoint> points, std::string text = {});

    int width_;
    int height_;
    int left_ = 0;
    int top_ = 0;
    std::vector<Call> calls_;
    mutable std::vector<std::string> savedBitmaps_;
    bool saveSucceeds_ = true;
};
