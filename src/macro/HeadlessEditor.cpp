#include "macro/HeadlessEditor.h"

#include "platform/Prompts.h"

HeadlessEditor::HeadlessEditor(UserSource& source, const std::array<Canvas*, 4>& canvases)
    : player(source) {
    installPrompts(&player);
    form.attachCanvases(canvases);
    player.attach(form);
    form.Form_Resize(frmTolvane::startUpClientWidth, frmTolvane::startUpClientHeight);
    form.Form_Load();
}

HeadlessEditor::~HeadlessEditor() {
    installPrompts(nullptr);
}
