#include "app/pc_list_file.h"

#include <gtest/gtest.h>

#include "fakes/fake_file_system.h"

namespace app {
namespace {

TEST(PcListFile, RecordsAreReadAsSequentialInputFields) {
    fakes::FakeFileSystem files;
    files.Put("C:\\L\\pcset.ini", "\"OK\"\r\n  plain  \r\nA,B\r\n\"x,y\"\r\n\r\nlast");
    PcList list;
    LoadPcList(files, "C:\\L\\pcset.ini", list);
    EXPECT_EQ(list[1], "plain");
    EXPECT_EQ(list[2], "A");  // an unquoted comma separates two records
    EXPECT_EQ(list[3], "B");
    EXPECT_EQ(list[4], "x,y");
    EXPECT_EQ(list[5], "");
    EXPECT_EQ(list[6], "last");
}

}  // namespace
}  // namespace app
