#include "qt/frmTolvaneView.h"

#include "app/EventGuard.h"
#include "qt/CanvasWidget.h"
#include "qt/SceneTreeView.h"

#include <QMenuBar>
#include <QResizeEvent>
#include <functional>

namespace {

// The client area: tells the window's logic its size; the logic places the children.
class ClientArea : public QWidget {
public:
    explicit ClientArea(std::function<void(int, int)> resized) : resized_(std::move(resized)) {}

protected:
    void resizeEvent(QResizeEvent* event) override {
        QWidget::resizeEvent(event);
        resized_(event->size().width(), event->size().height());
    }

private:
    std::function<void(int, int)> resized_;
};

} // namespace

frmTolvaneView::frmTolvaneView(frmTolvane& form, QWidget* parent)
    : QMainWindow(parent), form_(form) {
    setWindowTitle(QString::fromStdString(form_.caption()));
    auto* client = new ClientArea([this](int w, int h) { clientResized(w, h); });
    setCentralWidget(client);

    std::array<Canvas*, 4> canvases{};
    for (int i = 0; i < 4; ++i) {
        auto* widget = new CanvasWidget(client);
        canvases_[static_cast<size_t>(i)] = widget;
        canvases[static_cast<size_t>(i)] = &widget->canvas();
        connect(widget, &CanvasWidget::mousePressed, this,
                [this, i](int button, int shift, double x, double y) {
                    EventGuard::run([&] {
                        form_.picOrtho_MouseDown(i, button, shift, static_cast<float>(x),
                                                 static_cast<float>(y));
                    });
                });
        connect(widget, &CanvasWidget::mouseMoved, this,
                [this, i](int button, int shift, double x, double y) {
                    EventGuard::run([&] {
                        form_.picOrtho_MouseMove(i, button, shift, static_cast<float>(x),
                                                 static_cast<float>(y));
                    });
                });
    }
    QMenu* options = menuBar()->addMenu("&Options");
    connect(options->addAction("&Set Mouse Sensivity"), &QAction::triggered, this,
            [this] { EventGuard::run([this] { form_.mnuSetMouseSensivity_Click(); }); });

    tree_ = new SceneTreeView(form_, client);

    form_.attachCanvases(canvases);
    resize(1280, 800);
    EventGuard::run([this] { form_.Form_Load(); });
}

void frmTolvaneView::clientResized(int width, int height) {
    EventGuard::run([&] { form_.Form_Resize(width, height); });
    const ControlPlacement& tree = form_.getTreePlacement();
    tree_->setGeometry(tree.left, tree.top, tree.width, tree.height);
}
