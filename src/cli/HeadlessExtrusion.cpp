#include "cli/HeadlessExtrusion.h"

#include "cli/CliError.h"
#include "cli/FixedColorChooser.h"
#include "cli/RecordingPrompts.h"
#include "cli/SilentModalHost.h"
#include "modelling/EmptyPreviewTarget.h"
#include "modelling/frmExtrude.h"

namespace {

// The dialog's message boxes are kept while it runs, not shown.
class PromptsGuard {
public:
    explicit PromptsGuard(Prompts& prompts) : previous_(activePrompts()) {
        installPrompts(&prompts);
    }
    ~PromptsGuard() { installPrompts(&previous_); }
    PromptsGuard(const PromptsGuard&) = delete;
    PromptsGuard& operator=(const PromptsGuard&) = delete;

private:
    Prompts& previous_;
};

void chooseColor(frmExtrude& dialog, FixedColorChooser& colors, const char* check,
                 const char* select, int32_t color) {
    dialog.setChecked(check, true);
    colors.setColor(color);
    dialog.press(select);
}

void setScrollBar(frmExtrude& dialog, const char* check, const char* bar, int value) {
    dialog.setChecked(check, true);
    dialog.moveScrollBar(bar, value);
}

} // namespace

HeadlessExtrusion::Result HeadlessExtrusion::run(const std::shared_ptr<Profile>& profile,
                                                 const CliOptions::Extrusion& settings) {
    RecordingPrompts prompts;
    PromptsGuard guard(prompts);
    SilentModalHost dialogs;
    FixedColorChooser colors;
    EmptyPreviewTarget preview;
    frmExtrude dialog(dialogs, colors, preview);
    dialog.initialize(profile);
    // A profile without a normal closes the dialog at once, as the editor's does.
    if (!dialog.isClosed()) {
        dialog.typeText("txtExtrusionLength", settings.length);
        dialog.typeText("txtIncrements", settings.subdivisions);
        dialog.chooseOption("optExtrude(" + std::to_string(static_cast<int>(settings.orientation)) +
                            ")");
        dialog.setChecked("chkCapEnds", settings.capEnds);
        // The user adds entries one at a time through the picker; here they are given whole.
        dialog.List1.items = settings.transforms;
        if (settings.ambient) {
            chooseColor(dialog, colors, "useAmbient", "cmdColorSelect", *settings.ambient);
        }
        if (settings.diffuse) {
            chooseColor(dialog, colors, "useDiffuse", "cmdColorSelect2", *settings.diffuse);
        }
        if (settings.specularK) {
            setScrollBar(dialog, "UseSpecularK", "HScrollSpecK", *settings.specularK);
        }
        if (settings.specularN) {
            setScrollBar(dialog, "useSpecularN", "HScrollSpecN", *settings.specularN);
        }
        dialog.press("mnuExtrude");
    }
    if (!dialog.getExtrusion()) {
        // The dialog's last message says why; earlier ones come from the arithmetic under it.
        throw CliError(prompts.messages().empty() ? "the extrusion was not made"
                                                  : prompts.messages().back(),
                       CliError::failure);
    }
    return {dialog.getExtrusion(), prompts.messages()};
}
