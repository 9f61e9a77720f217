#include "app/EventGuard.h"

#include "support/ScriptedPrompts.h"

#include <gtest/gtest.h>
#include <stdexcept>

TEST(EventGuard, AnEscapingExceptionBecomesACriticalMessage) {
    ScriptedPrompts prompts;
    EventGuard::run([] { throw std::runtime_error("disk on fire"); });
    EventGuard::run([] { throw 42; });
    ASSERT_EQ(prompts.messages().size(), 2u);
    EXPECT_EQ(prompts.messages()[0].text, "The command could not be completed: disk on fire");
    EXPECT_EQ(prompts.messages()[0].icon, MessageIcon::Critical);
    EXPECT_EQ(prompts.messages()[1].text, "The command could not be completed: unknown error");
}
