#include "platform/Progress.h"

#include <gtest/gtest.h>

// A headless caller must never see a cancel.
TEST(NoProgress, NeverCancels) {
    NoProgress progress;
    progress.setValue(50);
    EXPECT_FALSE(progress.poll());
}
