#include "logedit/logreader.h"
#include "logedit/logsave.h"
#include "platform/files.h"
#include "platform/headless/headless.h"
#include "tests/testing/world.h"

namespace quirn {
namespace {

using namespace test;

class LogSaveOnAFullDisk : public WorldTest {};

TEST_F(LogSaveOnAFullDisk, LeavesTheOldFileWhole) {
    const std::string path = Scratch() + "\\a.log";
    std::string text;
    for (int i = 0; i < 1000; ++i) text += "  Bob> line\r\n";
    PutFile(path, text);
    LogView view;
    EXPECT_FALSE(view.ApplyLogFilter(ReadLog({path}, {}, {}).Value(), LineFilter{0x7FF}, true));
    for (const size_t room : {size_t{0}, size_t{30}, text.size() + 6999}) {
        headless::TheWorld().diskRoom = room;
        const Failure failure = SaveFilteredLog(view, path);
        EXPECT_EQ(failure ? failure->number : 0, 61) << room;
        EXPECT_EQ(FileBytes(path), text);
        EXPECT_EQ(FileBytes(UnfinishedPath(path)), std::nullopt);
        EXPECT_EQ(headless::TheWorld().diskRoom, room);
    }
}

}  // namespace
}  // namespace quirn
