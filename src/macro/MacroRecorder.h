#pragma once

#include "app/UserEventListener.h"
#include "macro/MacroAction.h"
#include "platform/ColorChooser.h"
#include "platform/FileChooser.h"
#include "platform/ModalDialog.h"
#include "platform/ModalHost.h"
#include "platform/Prompts.h"

class MacroWriter;
class WindowFrame;
class frmTolvane;

// Writes what the user does in the editor as a macro: it hears the main window's events
// and every dialog's actions, and stands between the program and the hosts that ask the
// user (dialogs, message and input boxes, file and colour dialogs) to write their answers.
// Each line is written before the action runs, or, for an answer, as soon as it is given; the
// text of every message box is written before its answer, as an expect line. When a line
// cannot be written, the user is told once and recording stops; the editor goes on.
class MacroRecorder : public UserEventListener,
                      public ControlActionListener,
                      public ModalHost,
                      public Prompts,
                      public FileChooser,
                      public ColorChooser {
public:
    // dialogs shows the dialogs; the form is made with this recorder as its host.
    MacroRecorder(MacroWriter& writer, ModalHost& dialogs) : writer_(writer), dialogs_(dialogs) {}

    // Hears form's events and stands before the frame's choosers and prompts, which it
    // installs as the program's prompts in their place.
    void attach(frmTolvane& form, WindowFrame& frame, FileChooser& files, ColorChooser& colors,
                Prompts& prompts);

    void clientResized(int width, int height) override;
    void menuChosen(const MenuItem& item) override;
    void keyPressed(int keyCode) override;
    void mousePressed(int viewport, int button, int shift, float x, float y) override;
    void mouseMoved(int viewport, int button, int shift, float x, float y) override;
    void treeNodeClicked(const SceneTreeNode& node) override;
    void treeKeyPressed(int keyCode) override;
    void acted(const ModalDialog& dialog, const ControlAction& action) override;

    void showModal(ModalDialog& dialog) override;
    MessageAnswer messageBox(const std::string& text, const std::string& title, MessageIcon icon,
                             MessageButtons buttons) override;
    std::optional<std::string> inputBox(const std::string& prompt, const std::string& title,
                                        const std::string& defaultText) override;
    std::string chooseFile(const std::string& title, const std::string& filter) override;
    int32_t chooseColor() override;

private:
    void record(const MacroAction& action);

    MacroWriter& writer_;
    ModalHost& dialogs_;
    frmTolvane* form_ = nullptr;
    Prompts* prompts_ = nullptr;
    FileChooser* files_ = nullptr;
    ColorChooser* colors_ = nullptr;
    bool stopped_ = false;
};
