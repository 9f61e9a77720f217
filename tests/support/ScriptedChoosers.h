#pragma once

#include "platform/ColorChooser.h"
#include "platform/FileChooser.h"
#include "support/AnswerQueue.h"

#include <cstdint>
#include <string>
#include <vector>

// A file chooser that answers from a queue the test fills (cancelling when it runs dry)
// and records the title and filter of every call.
class ScriptedFileChooser : public FileChooser {
public:
    struct Request {
        std::string title;
        std::string filter;
    };

    void queueAnswer(std::string path) { answers_.push(std::move(path)); }
    // The next call's answer before those queued; empty takes it back.
    void answerNext(std::string path) { next_ = std::move(path); }
    const std::vector<Request>& requests() const { return requests_; }

    std::string chooseFile(const std::string& title, const std::string& filter) override {
        requests_.push_back({title, filter});
        return !next_.empty() ? std::exchange(next_, {}) : answers_.take("");
    }

private:
    AnswerQueue<std::string> answers_;
    std::string next_;
    std::vector<Request> requests_;
};

// A colour chooser that answers from a queue, cancelling with -1 when it runs dry.
class ScriptedColorChooser : public ColorChooser {
public:
    void queueAnswer(int32_t color) { answers_.push(color); }

    int32_t chooseColor() override { return answers_.take(-1); }

private:
    AnswerQueue<int32_t> answers_;
};
