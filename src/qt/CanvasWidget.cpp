#include "qt/CanvasWidget.h"

#include <QPainter>
#include <QResizeEvent>

CanvasWidget::CanvasWidget(QWidget* parent) : QWidget(parent), canvas_(width(), height()) {
    // The image covers the whole widget, so Qt need not erase the background first.
    setAttribute(Qt::WA_OpaquePaintEvent);
    canvas_.setRefreshHandler([this] { update(); });
}

void CanvasWidget::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.drawImage(0, 0, canvas_.image());
}

void CanvasWidget::resizeEvent(QResizeEvent* event) {
    canvas_.resize(event->size().width(), event->size().height());
    QWidget::resizeEvent(event);
}
