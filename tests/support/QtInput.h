#pragma once

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>
#include <stdexcept>
#include <string>

// What a user does to the Qt views, sent as the events the desktop would deliver.

inline void key(QWidget& widget, Qt::Key code, const QString& text = {}) {
    QKeyEvent event(QEvent::KeyPress, code, Qt::NoModifier, text);
    QApplication::sendEvent(&widget, &event);
}

inline void typeInto(QWidget& field, const QString& text) {
    for (const QChar c : text) {
        key(field, Qt::Key_unknown, QString(c));
    }
}

inline void sendMouse(QWidget& widget, QEvent::Type type, QPointF at, Qt::MouseButton button,
                      Qt::MouseButtons buttons) {
    QMouseEvent event(type, at, widget.mapToGlobal(at), button, buttons, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}

// A left click: press and release.
inline void click(QWidget& widget, QPointF at) {
    sendMouse(widget, QEvent::MouseButtonPress, at, Qt::LeftButton, Qt::LeftButton);
    sendMouse(widget, QEvent::MouseButtonRelease, at, Qt::LeftButton, Qt::NoButton);
}

// Shows the window and lets it take its size.
inline void showNow(QWidget& window) {
    window.show();
    QApplication::processEvents();
}

// The control of that name in the view; a missing one fails the test.
template <class Widget> Widget& child(QWidget& view, const char* name) {
    auto* widget = view.findChild<Widget*>(name);
    if (widget == nullptr) {
        throw std::logic_error(std::string("no control ") + name);
    }
    return *widget;
}
