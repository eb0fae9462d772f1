#include <gtest/gtest.h>

#include "platform/headless/dialogs.h"
#include "tests/testing/world.h"

namespace quirn::test {

void ExpectMessage(const std::string& text, unsigned style, Answer answer, const std::string& caption) {
    headless::ExpectMessageBox({text, style, answer, caption});
}

WorldTest::WorldTest() {
    ResetWorld();
}

WorldTest::~WorldTest() {
    for (const auto& box : headless::TakeMissingBoxes()) ADD_FAILURE() << "missing message box \"" << box.text << "\"";
    EXPECT_EQ(headless::TakeMissingFileDialogs(), 0u) << "file dialogs that were expected have not come";
    EXPECT_EQ(headless::TakeMissingChoosers(), 0u) << "choosers of fonts or colours that were expected have not come";
    ResetWorld();
}

}  // namespace quirn::test

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    quirn::headless::SetDialogFailureReport([](const std::string& text) { ADD_FAILURE() << text; });
    quirn::test::OpenWorld();
    const int result = RUN_ALL_TESTS();
    quirn::test::CloseWorld();
    return result;
}
