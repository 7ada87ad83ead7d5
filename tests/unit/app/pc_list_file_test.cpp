#include "app/pc_list_file.h"

#include <gtest/gtest.h>

#include "base/runtime_error.h"
#include "fakes/fake_file_system.h"

namespace app {
namespace {

TEST(PcListFile, SaveWritesTwentyOneQuotedRecordsThatLoadBackIntoTheirSlots) {
    fakes::FakeFileSystem files;
    std::array<std::string, 20> entries{};
    entries[0] = "FIRSTBOX";
    entries[1] = "192.168.0.5";
    entries[19] = "営業PC";
    SavePcList(files, "C:\\L\\pcset2.ini", true, entries);
    const std::string bytes = files.Get("C:\\L\\pcset2.ini");
    EXPECT_EQ(bytes.substr(0, 33), "\"OK\"\r\n\"FIRSTBOX\"\r\n\"192.168.0.5\"\r\n");
    EXPECT_EQ(bytes.substr(bytes.size() - 10), "\"\x89\x63\x8B\xC6PC\"\r\n");  // code page 932

    PcList list;
    LoadPcList(files, "C:\\L\\pcset2.ini", list);
    EXPECT_TRUE(IsEnforced(list));
    EXPECT_EQ(list[1], "FIRSTBOX");
    EXPECT_EQ(list[20], "営業PC");
}

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

TEST(PcListFile, MoreThanTwentyOneRecordsRaiseTheSubscriptError) {
    fakes::FakeFileSystem files;
    std::string bytes;
    for (int i = 0; i < 21; ++i) bytes += "\"r\"\r\n";
    files.Put("C:\\L\\pcset.ini", bytes);
    PcList list;
    EXPECT_NO_THROW(LoadPcList(files, "C:\\L\\pcset.ini", list));
    files.Put("C:\\L\\pcset.ini", bytes + "\"one too many\"\r\n");
    EXPECT_THROW(LoadPcList(files, "C:\\L\\pcset.ini", list), base::RuntimeError);
}

}  // namespace
}  // namespace app
