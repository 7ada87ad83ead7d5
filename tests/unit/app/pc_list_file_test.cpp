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
    // An unquoted comma separates two records.
    EXPECT_EQ(std::vector<std::string>(&list[0], &list[7]),
              (std::vector<std::string>{"OK", "plain", "A", "B", "x,y", "", "last"}));
}

}  // namespace
}  // namespace app
