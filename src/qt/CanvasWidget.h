#pragma once

#include "qt/QtCanvas.h"

#include <QWidget>

// A viewport on screen: shows its canvas's image, lets the core place, show, hide and
// point it through the canvas, and reports mouse events with the button codes of the core
// (1 left, 2 right, 4 middle, added up) and the shift state (1 shift, 2 ctrl, 4 alt), one
// press per click.
class CanvasWidget : public QWidget {
    Q_OBJECT
public:
    explicit CanvasWidget(QWidget* parent = nullptr);

    QtCanvas& canvas() { return canvas_; }

signals:
    void mousePressed(int button, int shift, double x, double y);
    void mouseMoved(int button, int shift, double x, double y);
    void mouseReleased();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    // The canvas of a widget: placement, visibility, pointer and refresh act on the widget.
    class Surface : public QtCanvas {
    public:
        explicit Surface(CanvasWidget& widget);
        void move(int left, int top, int width, int height) override;
        void setVisible(bool visible) override;
        void setMousePointer(MousePointer pointer) override;
        void refresh() override;

    private:
        CanvasWidget& widget_;
    };

    Surface canvas_;
};
