#pragma once

#include "platform/ColorChooser.h"
#include "platform/FileChooser.h"

#include <cstdint>
#include <deque>
#include <string>
#include <utility>
#include <vector>

// A file chooser that answers from a queue the test fills (cancelling when it runs dry)
// and records the title and filter of every call.
class ScriptedFileChooser : public FileChooser {
public:
    struct Request {
        std::string title;
        std::string filter;
    };

    void queueAnswer(std::string path) { answers_.push_back(std::move(path)); }
    const std::vector<Request>& requests() const { return requests_; }

    std::string chooseFile(const std::string& title, const std::string& filter) override {
        requests_.push_back({title, filter});
        if (answers_.empty()) {
            return "";
        }
        std::string answer = answers_.front();
        answers_.pop_front();
        return answer;
    }

private:
    std::deque<std::string> answers_;
    std::vector<Request> requests_;
};

// A colour chooser that answers from a queue (cancelling with -1 when it runs dry) and
// counts its calls.
class ScriptedColorChooser : public ColorChooser {
public:
    void queueAnswer(int32_t color) { answers_.push_back(color); }
    int calls() const { return calls_; }

    int32_t chooseColor() override {
        ++calls_;
        if (answers_.empty()) {
            return -1;
        }
        const int32_t answer = answers_.front();
        answers_.pop_front();
        return answer;
    }

private:
    std::deque<int32_t> answers_;
    int calls_ = 0;
};
