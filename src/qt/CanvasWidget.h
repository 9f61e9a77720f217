#pragma once

#include "qt/QtCanvas.h"

#include <QWidget>

// Shows a canvas's image and keeps the canvas the size of the widget.
class CanvasWidget : public QWidget {
    Q_OBJECT
public:
    explicit CanvasWidget(QWidget* parent = nullptr);

    QtCanvas& canvas() { return canvas_; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QtCanvas canvas_;
};
