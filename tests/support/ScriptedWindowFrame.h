#pragma once

#include "platform/WindowFrame.h"
#include "support/AnswerQueue.h"

#include <functional>
#include <vector>

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
    void unload() override {}

    void queuePopupChoice(std::function<void()> choose) { choices_.push(std::move(choose)); }
    const std::vector<MousePointer>& pointers() const { return pointers_; }

private:
    std::vector<MousePointer> pointers_;
    AnswerQueue<std::function<void()>> choices_;
};
