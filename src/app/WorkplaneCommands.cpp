#include "app/WorkplaneCommands.h"

#include "app/EditorPort.h"
#include "app/ListChange.h"
#include "app/MainMenu.h"
#include "app/SceneDocument.h"
#include "app/SceneTreeModel.h"
#include "app/UndoHistory.h"
#include "modelling/frmWorkPlaneParametric.h"
#include "platform/ModalHost.h"

void WorkplaneCommands::bind(MainMenu& menus, EditorPort& editor, ModalHost& dialogs,
                             ColorChooser& colors, SceneDocument& document, SceneTreeModel& tree) {
    menus.bind("mnuParameterCreation", [&editor, &dialogs, &colors, &document, &tree] {
        frmWorkPlaneParametric dialog(colors);
        dialogs.showModal(dialog);
        if (dialog.hasCreated()) {
            const auto workPlane = dialog.getWorkPlane();
            editor.history().push("New Workplane",
                                  ListChange<WorkPlane>::insert(document, workPlane, 0));
            tree.addWorkplaneNode(workPlane, "Workplane");
        }
    });
}
