#pragma once

#include <deque>
#include <utility>

// What a test queued for a scripted double to answer, taken in turn; the fallback once the
// queue runs dry.
template <class Answer> class AnswerQueue {
public:
    void push(Answer answer) { answers_.push_back(std::move(answer)); }
    Answer take(Answer fallback) {
        if (answers_.empty()) {
            return fallback;
        }
        Answer answer = std::move(answers_.front());
        answers_.pop_front();
        return answer;
    }

private:
    std::deque<Answer> answers_;
};
