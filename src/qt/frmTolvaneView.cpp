#include "qt/frmTolvaneView.h"

#include "app/EventGuard.h"
#include "app/MenuItem.h"
#include "io/PosixFileSystem.h"
#include "qt/CanvasWidget.h"
#include "qt/DesktopKey.h"
#include "qt/SceneTreeView.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QPointer>
#include <QResizeEvent>
#include <QStatusBar>
#include <QTimer>
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

// A check mark shows only on an item that carries one: an item that can be checked
// would show an empty box beside its caption in some styles.
void showItem(QAction& action, const MenuItem& item) {
    action.setText(QString::fromStdString(item.getCaption()));
    action.setCheckable(item.isChecked());
    action.setChecked(item.isChecked());
    action.setEnabled(item.isEnabled());
    action.setVisible(item.isVisible());
    action.setStatusTip(QString::fromStdString(item.getStatusTip()));
}

} // namespace

frmTolvaneView::frmTolvaneView(frmTolvane& form, QWidget* parent)
    : QMainWindow(parent), form_(form), files_(this), colors_(this),
      pictures_(PosixFileSystem::instance()) {
    auto* client = new ClientArea([this](int w, int h) { clientResized(w, h); });
    setCentralWidget(client);

    std::array<Canvas*, 4> canvases{};
    for (int i = 0; i < 4; ++i) {
        auto* widget = new CanvasWidget(client);
        // A click on a viewport takes the keyboard from the tree, so that the window's keys
        // (C closes the profile being drawn) reach the window.
        widget->setFocusPolicy(Qt::ClickFocus);
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
                    if (button != 0) {
                        dragPause_.start();
                    }
                });
        connect(widget, &CanvasWidget::mouseReleased, this,
                [this] { EventGuard::run([&] { form_.picOrtho_MouseUp(); }); });
    }
    // A drag draws its viewport with a depth buffer; the release, or a pause this long with
    // the button held, draws the exact picture.
    form_.enableDragPictures(true);
    dragPause_.setSingleShot(true);
    dragPause_.setInterval(250);
    connect(&dragPause_, &QTimer::timeout, this,
            [this] { EventGuard::run([&] { form_.picOrtho_MouseUp(); }); });
    MenuItem& popup = form_.getMenus().getPopupMenu();
    for (const auto& menu : form_.getMenus().getMenuBar().getChildren()) {
        auto* shown = new QMenu(QString::fromStdString(menu->getCaption()), this);
        mirror(*menu, *shown);
        if (menu.get() == &popup) {
            popup_ = shown;
        } else {
            menuBar()->addMenu(shown);
        }
    }

    tree_ = new SceneTreeView(form_, client);

    // The mode hint stays at the foot; results of commands show beside it for a while.
    modeHint_ = new QLabel(this);
    statusBar()->addPermanentWidget(modeHint_);
    form_.attachCanvases(canvases);
    form_.attachFrame(*this, files_, colors_);
    form_.attachPictureWriter(pictures_);
    // The status bar lies outside the client area, as the menu bar does.
    statusBar()->show();
    setAcceptDrops(true);
    resize(frmTolvane::startUpClientWidth, frmTolvane::startUpClientHeight +
                                               menuBar()->sizeHint().height() +
                                               statusBar()->sizeHint().height());
    EventGuard::run([this] { form_.Form_Load(); });
}

void frmTolvaneView::setClientSize(int width, int height) {
    QWidget* client = centralWidget();
    resize(width + this->width() - client->width(), height + this->height() - client->height());
    // A visible child takes its new size at once, so the logic hears of it now and not when
    // the window system has answered.
    client->resize(width, height);
}

void frmTolvaneView::clientResized(int width, int height) {
    EventGuard::run([&] { form_.Form_Resize(width, height); });
    const ControlPlacement& tree = form_.getViewports().getTreePlacement();
    tree_->setGeometry(tree.left, tree.top, tree.width, tree.height);
}

void frmTolvaneView::mirror(MenuItem& item, QMenu& menu) {
    for (const auto& child : item.getChildren()) {
        const QString caption = QString::fromStdString(child->getCaption());
        if (child->isSeparator()) {
            menu.addSeparator();
        } else if (!child->getChildren().empty()) {
            mirror(*child, *menu.addMenu(caption));
        } else {
            QAction* action = menu.addAction(caption);
            QList<QKeySequence> keys;
            for (const std::string& key : child->getShortcuts()) {
                keys.append(QKeySequence::fromString(QString::fromStdString(key),
                                                     QKeySequence::PortableText));
            }
            action->setShortcuts(keys);
            MenuItem* model = child.get();
            showItem(*action, *model);
            model->setListener([shown = QPointer<QAction>(action)](const MenuItem& changed) {
                if (shown) {
                    showItem(*shown, changed);
                }
            });
            connect(action, &QAction::triggered, this, [this, action, model] {
                EventGuard::run([model] { model->click(); });
                // Qt toggled a checkable action by itself; the item says what it shows.
                showItem(*action, *model);
            });
        }
    }
}

void frmTolvaneView::setMousePointer(MousePointer pointer) {
    // Over the whole window, children included, until the default comes back.
    const bool busy = pointer == MousePointer::Hourglass;
    if (busy && !busy_) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
    } else if (!busy && busy_) {
        QApplication::restoreOverrideCursor();
    }
    busy_ = busy;
}

void frmTolvaneView::showPopupMenu(Canvas& canvas, int x, int y) {
    for (CanvasWidget* widget : canvases_) {
        if (&widget->canvas() == &canvas) {
            popup_->exec(widget->mapToGlobal(QPoint(x, y)));
            return;
        }
    }
}

void frmTolvaneView::unload() {
    unloading_ = true;
    close();
}

void frmTolvaneView::setTitle(const std::string& title, bool modified) {
    setWindowTitle(QString::fromStdString(title));
    setWindowModified(modified);
}

void frmTolvaneView::showStatus(const std::string& text) {
    statusBar()->showMessage(QString::fromStdString(text));
}

void frmTolvaneView::showModeHint(const std::string& text) {
    modeHint_->setText(QString::fromStdString(text));
}

void frmTolvaneView::attachSettings(SettingsStore& store) {
    std::optional<WindowGeometry> window;
    EventGuard::run([&] { window = form_.attachSettings(store); });
    if (window) {
        setGeometry(window->x, window->y, window->width, window->height);
    }
}

void frmTolvaneView::dragEnterEvent(QDragEnterEvent* event) {
    const QList<QUrl> urls = event->mimeData()->urls();
    if (!urls.isEmpty() && urls.front().isLocalFile()) {
        event->acceptProposedAction();
    }
}

void frmTolvaneView::dropEvent(QDropEvent* event) {
    const QList<QUrl> urls = event->mimeData()->urls();
    if (urls.isEmpty() || !urls.front().isLocalFile()) {
        return;
    }
    event->acceptProposedAction();
    // Opened once the drop is over: the command may ask questions in boxes of its own.
    QTimer::singleShot(0, this, [this, path = urls.front().toLocalFile().toStdString()] {
        EventGuard::run([&] { form_.openFile(path); });
    });
}

void frmTolvaneView::closeEvent(QCloseEvent* event) {
    bool mayClose = unloading_;
    if (!mayClose) {
        EventGuard::run([&] { mayClose = form_.Form_QueryUnload(); });
    }
    unloading_ = false;
    if (mayClose) {
        const QRect shown = geometry();
        EventGuard::run([&] {
            form_.saveSettings(WindowGeometry{shown.x(), shown.y(), shown.width(), shown.height()});
        });
        event->accept();
    } else {
        event->ignore();
    }
}

void frmTolvaneView::keyPressEvent(QKeyEvent* event) {
    const std::optional<int> code = desktopKeyCode(*event);
    if (!code) {
        QMainWindow::keyPressEvent(event);
        return;
    }
    EventGuard::run([this, code] { form_.Form_KeyDown(*code); });
}
