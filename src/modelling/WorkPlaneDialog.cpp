#include "modelling/WorkPlaneDialog.h"

#include "geometry/NumberText.h"
#include "modelling/SurfaceControls.h"
#include "platform/ColorChooser.h"
#include "platform/Prompts.h"

#include <optional>
#include <string>

namespace {

// Both dialogs report under the creation dialog's title.
const std::string checkTitle = "Parametric Workplane Creation";

} // namespace

WorkPlaneDialog::WorkPlaneDialog(ColorChooser& colors) : colors_(colors) {
    addControl("lblSize", lblSize);
    addControl("Text1", Text1);
    addControl("lblXRotation", lblXRotation);
    addControl("Text2", Text2);
    addControl("lblYRotation", lblYRotation);
    addControl("Text3", Text3);
    addControl("lblOffset", lblOffset);
    addControl("Text5", Text5);
    addControl("lblColor", lblColor);
    addControl("picWPColor", picWPColor);
    addControl("Command1", Command1, [this] { Command1_Click(); });
    addControl("mnuAccept", mnuAccept, [this] { mnuAccept_Click(); });
    addControl("mnuCancel", mnuCancel, [this] { mnuCancel_Click(); });
}

void WorkPlaneDialog::Command1_Click() {
    SurfaceControls::chooseColor(colors_, picWPColor);
}

void WorkPlaneDialog::mnuAccept_Click() {
    TextBoxState* const fields[] = {&Text1, &Text2, &Text3, &Text5};
    for (TextBoxState* field : fields) {
        field->Focused = false;
    }
    // Reads one field; a failing one is reported, emptied and given the focus.
    const auto read = [](TextBoxState& field, bool positive,
                         const std::string& message) -> std::optional<float> {
        const std::optional<float> value = NumberText::parseSingle(field.Text);
        if (value && (!positive || *value > 0)) {
            return value;
        }
        showMessage(message, checkTitle, MessageIcon::Information);
        field.Text.clear();
        field.Focused = true;
        return std::nullopt;
    };
    const auto size =
        read(Text1, true, "Invalid Workplane Size.  Value must be numeric and greater than 0.");
    if (!size) {
        return;
    }
    const auto xRotation = read(Text2, false, "Invalid X Rotation.  Value must be numeric.");
    if (!xRotation) {
        return;
    }
    const auto yRotation = read(Text3, false, "Invalid Y Rotation.  Value must be numeric.");
    if (!yRotation) {
        return;
    }
    const auto offset = read(Text5, false, "Invalid Offset.  Value must be numeric.");
    if (!offset) {
        return;
    }
    apply(*size, *xRotation, *yRotation, *offset, picWPColor.BackColor);
    close();
}

void WorkPlaneDialog::mnuCancel_Click() {
    close();
}
