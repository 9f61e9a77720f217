#pragma once

#include "macro/UserSource.h"
#include "platform/ColorChooser.h"
#include "platform/FileChooser.h"
#include "platform/ModalHost.h"
#include "platform/Prompts.h"
#include "platform/WindowFrame.h"

#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>

class MacroWriter;
class SceneTreeNode;
class frmTolvane;

// Plays actions from a source on the main window's logic, as a user would: it takes the
// place of everything that waits for the user (the dialogs' host, the message and input
// boxes, the file and colour dialogs, the window's pop-up menu), so that each command runs
// as it runs in the editor and asks the source for what the user did next. An action that
// does not fit what it meets (a dialog that is not open, a disabled menu item, an unknown
// control) stops the play with Error.
class MacroPlayer : public ModalHost,
                    public Prompts,
                    public FileChooser,
                    public ColorChooser,
                    public WindowFrame {
public:
    // One line: where the action came from and why it does not fit.
    class Error : public std::runtime_error {
    public:
        explicit Error(const std::string& message, bool unreadable = false)
            : std::runtime_error(message), unreadable_(unreadable) {}
        // Whether the source could not be read on (UserSource::Unreadable), rather than an
        // action that did not fit.
        bool unreadable() const { return unreadable_; }

    private:
        bool unreadable_;
    };

    explicit MacroPlayer(UserSource& source) : source_(source) {}

    // Plays on form, which was made with this player as its dialogs' host: the player
    // becomes its frame and choosers. shown, when given, is the window that shows the form;
    // pointer changes and the closing go on to it.
    void attach(frmTolvane& form, WindowFrame* shown = nullptr);
    // Every action played goes to writer first, or to none.
    void echoTo(MacroWriter* writer) { echo_ = writer; }
    // How a resize reaches the form; by default it is handed straight to the form.
    void setResizer(std::function<void(int, int)> resizer) { resizer_ = std::move(resizer); }
    // Every file the actions name goes to the file of the same name in folder instead, so that
    // a macro neither reads nor writes where it was made.
    void setSandbox(std::string folder) { sandbox_ = std::move(folder); }

    // Plays the next action the window hears, with all it leads to. False at the end of
    // the actions or once the window has been closed. Throws Error.
    bool step();
    // Steps to the end; throws Error.
    void playAll();
    // Actions played so far (expect lines are not actions).
    long played() const { return played_; }
    bool windowClosed() const { return closed_; }

    void showModal(ModalDialog& dialog) override;
    MessageAnswer messageBox(const std::string& text, const std::string& title, MessageIcon icon,
                             MessageButtons buttons) override;
    std::optional<std::string> inputBox(const std::string& prompt, const std::string& title,
                                        const std::string& defaultText) override;
    std::string chooseFile(const std::string& title, const std::string& filter) override;
    int32_t chooseColor() override;
    void setMousePointer(MousePointer pointer) override;
    void showPopupMenu(Canvas& canvas, int x, int y) override;
    void unload() override;
    void setTitle(const std::string& title, bool modified) override;
    void showStatus(const std::string& text) override;
    void showModeHint(const std::string& text) override;
    // A replay answers every file dialog from its macro.
    void answerNextFileDialog(const std::string&) override {}

private:
    // The source's next action for what waits, after checking the expect lines before it.
    std::optional<MacroAction> next(const Waiting& waiting);
    // The next action for what waits; stops when there is none.
    MacroAction take(const Waiting& waiting, const std::string& what);
    void check(const macro::Expect& expect);
    // Stops when an expected message box did not come.
    void checkNoMessageExpected();
    // The tree node with this path of texts from the top, or null.
    std::shared_ptr<SceneTreeNode> findNode(const std::vector<std::string>& textPath) const;
    [[noreturn]] void stop(const std::string& why) const;
    void playWindowAction(const MacroAction& action);
    void playMenu(const macro::Menu& menu);
    void playMouse(const macro::Mouse& mouse);
    void playTreeClick(const macro::TreeClick& click);
    template <class Answer>
    const Answer& expect(const MacroAction& action, const std::string& what);

    UserSource& source_;
    frmTolvane* form_ = nullptr;
    WindowFrame* shown_ = nullptr;
    MacroWriter* echo_ = nullptr;
    std::function<void(int, int)> resizer_;
    std::string sandbox_;
    // The text the next message box must show, and the line that said so.
    std::optional<std::string> expectedMessage_;
    std::string expectedWhere_;
    long played_ = 0;
    bool closed_ = false;
};
