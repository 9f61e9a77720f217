#include "qt/frmWorkPlanePropertyView.h"

#include "app/EventGuard.h"
#include "qt/AccessKey.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QPushButton>

frmWorkPlanePropertyView::frmWorkPlanePropertyView(frmWorkPlaneProperty& form, QWidget* parent)
    : WorkPlaneDialogView(form, parent) {
    auto* chkVisible = new QCheckBox(withAccessKey(form.chkVisible.Caption, 'V'), this);
    chkVisible->setObjectName("chkVisible");
    chkVisible->setChecked(form.chkVisible.Value);
    connect(chkVisible, &QCheckBox::toggled, this, [&form](bool checked) {
        EventGuard::run([&form, checked] { form.setChecked("chkVisible", checked); });
    });
    rows().addRow(chkVisible);
    setTabOrder(&selectButton(), chkVisible);
}
