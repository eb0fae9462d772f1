#include "profile/splitpath.h"

#include <gtest/gtest.h>

namespace quirn {
namespace {

TEST(SplitPathTest, CutsTheNameAtItsFirstPoint) {
    const struct {
        const char *path, *drive, *folder, *name, *extension;
    } rows[] = {{"C:\\games\\my.best.qrn", "C:", "\\games", "my", "best.qrn"},
                {"  D:a.qrn ", "D:", "", "a", "qrn"},
                {"\\\\host\\share.d\\plain", "", "\\\\host\\share.d", "plain", ""},
                {"C:\\", "C:", "", "", ""},
                {".qrn", "", "", "", "qrn"},
                {"<untitled.qrn>", "", "", "<untitled", "qrn>"},
                {"a:b:c", "a:", "", "b:c", ""},
                {"  ", "", "", "", ""}};
    for (const auto& row : rows) {
        const PathParts parts = SplitPath(row.path);
        EXPECT_EQ(parts.drive, row.drive) << row.path;
        EXPECT_EQ(parts.folder, row.folder) << row.path;
        EXPECT_EQ(parts.name, row.name) << row.path;
        EXPECT_EQ(parts.extension, row.extension) << row.path;
    }
}

}  // namespace
}  // namespace quirn
