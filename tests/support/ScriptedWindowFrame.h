#pragma once

#include "platform/WindowFrame.h"
#include "support/ScriptedChoosers.h"

#include <functional>

// A window frame that records the pointers it is given and answers a pop-up menu by running
// what the test queued (nothing chosen when the queue is dry).
class ScriptedWindowFrame : public WindowFrame {
public:
    void setMousePointer(MousePointer pointer) override { pointers_.push_back(pointer); }
    void showPopupMenu(Canvas&, int, int) override {
        if (const auto choose = choices_.take({})) {
            choose();
        }
    }
    void unload() override { ++unloads_; }
    void setTitle(const std::string& title, bool modified) override {
        title_ = title;
        modified_ = modified;
    }
    void showStatus(const std::string& text) override { status_ = text; }
    void showModeHint(const std::string& text) override { modeHint_ = text; }
    void answerNextFileDialog(const std::string& path) override {
        if (files != nullptr) {
            files->answerNext(path);
        }
    }
    // The chooser that takes the answers given beforehand.
    ScriptedFileChooser* files = nullptr;

    void queuePopupChoice(std::function<void()> choose) { choices_.push(std::move(choose)); }
    const std::vector<MousePointer>& pointers() const { return pointers_; }
    int unloads() const { return unloads_; }
    const std::string& title() const { return title_; }
    bool modified() const { return modified_; }
    const std::string& status() const { return status_; }
    const std::string& modeHint() const { return modeHint_; }

private:
    std::vector<MousePointer> pointers_;
    int unloads_ = 0;
    std::string title_;
    bool modified_ = false;
    std::string status_;
    std::string modeHint_;
    AnswerQueue<std::function<void()>> choices_;
};
