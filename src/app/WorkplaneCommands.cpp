#include "app/WorkplaneCommands.h"

#include "app/MainMenu.h"
#include "app/SceneDocument.h"
#include "app/SceneTreeModel.h"
#include "modelling/frmWorkPlaneParametric.h"
#include "platform/ModalHost.h"

void WorkplaneCommands::bind(MainMenu& menus, ModalHost& dialogs, ColorChooser& colors,
                             SceneDocument& document, SceneTreeModel& tree) {
    menus.bind("mnuParameterCreation", [&dialogs, &colors, &document, &tree] {
        frmWorkPlaneParametric dialog(colors);
        dialogs.showModal(dialog);
        if (dialog.hasCreated()) {
            const auto workPlane = dialog.getWorkPlane();
            document.workPlanes.push_back(workPlane);
            tree.addWorkplaneNode(workPlane, "Workplane");
        }
    });
}
