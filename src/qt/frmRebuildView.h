#pragma once

#include "app/frmRebuild.h"

#include <QDialog>

// Shows the rebuild notice (frmRebuild) without waiting, and paints it at once: the rebuild
// that follows keeps the event loop busy until it is done. Destroy it to close the notice.
class frmRebuildView : public QDialog {
public:
    explicit frmRebuildView(const frmRebuild& form, QWidget* parent = nullptr);
};
