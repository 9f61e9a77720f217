#include "qt/CanvasWidget.h"

#include <QMouseEvent>
#include <QPainter>
#include <QResizeEvent>

namespace {

int shiftState(Qt::KeyboardModifiers modifiers) {
    return (modifiers & Qt::ShiftModifier ? 1 : 0) + (modifiers & Qt::ControlModifier ? 2 : 0) +
           (modifiers & Qt::AltModifier ? 4 : 0);
}

int buttonCode(Qt::MouseButtons buttons) {
    return (buttons & Qt::LeftButton ? 1 : 0) + (buttons & Qt::RightButton ? 2 : 0) +
           (buttons & Qt::MiddleButton ? 4 : 0);
}

Qt::CursorShape cursorFor(MousePointer pointer) {
    switch (pointer) {
    case MousePointer::Default:
        return Qt::ArrowCursor;
    case MousePointer::Crosshair:
        return Qt::CrossCursor;
    case MousePointer::SizeDiagonal:
        return Qt::SizeBDiagCursor;
    case MousePointer::SizeVertical:
        return Qt::SizeVerCursor;
    case MousePointer::Hourglass:
        return Qt::WaitCursor;
    case MousePointer::SizeAll:
        return Qt::SizeAllCursor;
    }
    return Qt::ArrowCursor;
}

} // namespace

CanvasWidget::Surface::Surface(CanvasWidget& widget)
    : QtCanvas(widget.width(), widget.height()), widget_(widget) {}

void CanvasWidget::Surface::move(int left, int top, int width, int height) {
    QtCanvas::move(left, top, width, height);
    widget_.setGeometry(left, top, width, height);
}

void CanvasWidget::Surface::setVisible(bool visible) {
    QtCanvas::setVisible(visible);
    widget_.setVisible(visible);
}

void CanvasWidget::Surface::setMousePointer(MousePointer pointer) {
    QtCanvas::setMousePointer(pointer);
    widget_.setCursor(cursorFor(pointer));
}

void CanvasWidget::Surface::refresh() {
    QtCanvas::refresh();
    widget_.update();
}

CanvasWidget::CanvasWidget(QWidget* parent) : QWidget(parent), canvas_(*this) {
    // The image covers the whole widget, so Qt need not erase the background first.
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
}

void CanvasWidget::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.drawImage(0, 0, canvas_.image());
}

void CanvasWidget::resizeEvent(QResizeEvent* event) {
    if (event->size() != canvas_.image().size()) {
        canvas_.resize(event->size().width(), event->size().height());
    }
    QWidget::resizeEvent(event);
}

void CanvasWidget::mousePressEvent(QMouseEvent* event) {
    emit mousePressed(buttonCode(event->button()), shiftState(event->modifiers()),
                      event->position().x(), event->position().y());
}

void CanvasWidget::mouseDoubleClickEvent(QMouseEvent* event) {
    // Qt reports the second click of a double-click as a press and then once more as a
    // double-click; the press is the click, so the double-click is dropped.
    event->accept();
}

void CanvasWidget::mouseMoveEvent(QMouseEvent* event) {
    emit mouseMoved(buttonCode(event->buttons()), shiftState(event->modifiers()),
                    event->position().x(), event->position().y());
}

void CanvasWidget::mouseReleaseEvent(QMouseEvent* event) {
    event->accept();
    emit mouseReleased();
}
