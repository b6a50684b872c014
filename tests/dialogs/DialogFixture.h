#pragma once
// What every test of the library's dialogs starts from: scripted message boxes and file
// choices, scripted dialogs, and a check that every queued script ran and nothing went wrong.

#include "platform/core/ScriptedUserInterface.h"
#include "platform/ui/ScriptedDialogs.h"

#include <gtest/gtest.h>

namespace seisplot::test {

struct DialogFixture : testing::Test {
    ScriptedUserInterface ui;
    ScopedUserInterface uiScope{ui};
    ScriptedDialogs dialogs;
    ScopedDialogDriver driverScope{dialogs};

    void TearDown() override {
        EXPECT_TRUE(dialogs.Problems().empty()) << dialogs.Problems().front();
        EXPECT_EQ(dialogs.Pending(), 0u);
        EXPECT_EQ(ui.Unanswered(), 0);
    }
};

} // namespace seisplot::test
