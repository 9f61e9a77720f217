#include "scene/ADTQueue.h"

#include <functional>
#include <gtest/gtest.h>
#include <string>

namespace {

std::string errorOf(const std::function<void()>& call) {
    try {
        call();
    } catch (const NumberedError& e) {
        return std::to_string(e.number()) + " " + e.what();
    }
    return "none";
}

} // namespace

TEST(ADTQueue, HandsObjectsBackFirstInFirstOutAndRefusesNothing) {
    ADTQueue<int> q;
    const auto a = std::make_shared<int>(1), b = std::make_shared<int>(2);
    EXPECT_EQ(errorOf([&] { q.dequeue(); }),
              "1 Cannot dequeue from ADTQueue since there are no objects in queue.");
    EXPECT_EQ(errorOf([&] { q.peek(); }),
              "2 Cannot peek from ADTQueue since there are no objects in queue.");
    EXPECT_TRUE(q.enqueue(a));
    EXPECT_FALSE(q.enqueue(nullptr));
    EXPECT_TRUE(q.enqueue(b));
    EXPECT_EQ(q.peek(), a);
    EXPECT_EQ(q.peek(), a);
    EXPECT_EQ(q.dequeue(), a);
    EXPECT_EQ(q.dequeue(), b);
    EXPECT_TRUE(q.isEmpty());
}

TEST(ADTQueue, CloneSharesObjectsAndLeavesTheOriginalIntact) {
    ADTQueue<int> q;
    const auto a = std::make_shared<int>(1), b = std::make_shared<int>(2);
    q.enqueue(a);
    q.enqueue(b);
    ADTQueue<int> copy = q.clone();
    EXPECT_EQ(copy.dequeue(), a);
    EXPECT_EQ(copy.dequeue(), b);
    EXPECT_TRUE(copy.isEmpty());
    EXPECT_EQ(q.dequeue(), a);
    EXPECT_EQ(q.peek(), b);
    q.emptyQueue();
    EXPECT_TRUE(q.isEmpty());
}
