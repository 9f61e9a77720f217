#include "qt/frmSplashView.h"

#include "app/EventGuard.h"
#include "qt/CanvasWidget.h"

#include <QImage>
#include <QKeyEvent>
#include <QResizeEvent>

namespace {

// The timer only has to be at least as fast as the camera's steps.
constexpr int frameInterval = 10;

// The logo from the program's resources, as 0x00RRGGBB pixels.
Bitmap loadLogo() {
    const QImage image = QImage(":/korvan/logo.png").convertToFormat(QImage::Format_RGB32);
    Bitmap logo{image.width(), image.height(), {}};
    logo.pixels.reserve(static_cast<size_t>(logo.width) * static_cast<size_t>(logo.height));
    for (int y = 0; y < image.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            logo.pixels.push_back(line[x] & 0xFFFFFFu);
        }
    }
    return logo;
}

} // namespace

frmSplashView::frmSplashView(frmSplash& form, QWidget* parent)
    : QWidget(parent), form_(form), picCanvas_(new CanvasWidget(this)) {
    setWindowTitle(QString::fromStdString(form_.caption()));
    QPalette lightGrey = palette();
    lightGrey.setColor(QPalette::Window, QColor(192, 192, 192));
    setPalette(lightGrey);
    setAutoFillBackground(true);
    setFocusPolicy(Qt::StrongFocus);
    resize(400, 400);

    form_.Form_Load(picCanvas_->canvas(), loadLogo(), clock_.tickCount());

    animation_.setInterval(frameInterval);
    connect(&animation_, &QTimer::timeout, this,
            [this] { EventGuard::run([this] { form_.tick(clock_.tickCount()); }); });
    Timer1_.setSingleShot(true);
    Timer1_.setInterval(frmSplash::Timer1Interval);
    connect(&Timer1_, &QTimer::timeout, this, [this] {
        EventGuard::run([this] { form_.Timer1_Timer(); });
        handOverIfClosed();
    });
    animation_.start();
    Timer1_.start();
}

void frmSplashView::keyPressEvent(QKeyEvent*) {
    EventGuard::run([this] { form_.Form_KeyDown(); });
    handOverIfClosed();
}

void frmSplashView::resizeEvent(QResizeEvent* event) {
    EventGuard::run([&] { form_.Form_Resize(event->size().width(), event->size().height()); });
    QWidget::resizeEvent(event);
}

// finished() goes out before the window closes, so that the main window is already shown
// and the application never finds its last window closed.
void frmSplashView::handOverIfClosed() {
    if (!form_.isClosed() || !animation_.isActive()) {
        return;
    }
    animation_.stop();
    Timer1_.stop();
    emit finished();
    close();
}
