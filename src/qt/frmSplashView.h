#pragma once

#include "app/frmSplash.h"
#include "qt/QtClock.h"

#include <QTimer>
#include <QWidget>

class CanvasWidget;

// Shows the splash screen's logic (frmSplash): a canvas filling the window, animated by a
// short repeating timer rather than a busy loop, so that keys and the closing timer are
// handled between frames. Emits finished() once the splash is done.
class frmSplashView : public QWidget {
    Q_OBJECT
public:
    explicit frmSplashView(frmSplash& form, QWidget* parent = nullptr);

signals:
    void finished();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void handOverIfClosed();

    frmSplash& form_;
    QtClock clock_;
    CanvasWidget* picCanvas_;
    QTimer animation_;
    QTimer Timer1_;
};
