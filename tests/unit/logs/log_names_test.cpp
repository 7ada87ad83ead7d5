#include "logs/log_names.h"

#include <gtest/gtest.h>

#include "fakes/fake_file_system.h"
#include "unit/expect_runtime_error.h"

namespace logs {
namespace {

const base::LocalTime kDay{2005, 6, 22, 23, 59, 58};  // late in the day: the date, not the hour, names files
const std::string kFolder = "C:\\Lookout\\logs\\";

TEST(Rollover, TheFirstGapOrSmallFileOfTheSeriesWins) {
    fakes::FakeFileSystem files;
    const auto PutSized = [&](const std::string& name, std::size_t n) { files.Put(kFolder + name, std::string(n, 'x')); };
    const auto Next = [&] { return RolloverPath(files, kFolder, "process_log_20050622"); };
    PutSized("process_log_20050622.txt", 600000);
    PutSized("process_log_20050622_2.txt", 10);
    EXPECT_EQ(Next(), kFolder + "process_log_20050622_1.txt");  // _1 is absent, even though _2 exists

    PutSized("process_log_20050622_1.txt", 512000);  // the limit itself is not past it
    EXPECT_EQ(Next(), kFolder + "process_log_20050622_1.txt");
    PutSized("process_log_20050622_1.txt", 512001);
    EXPECT_EQ(Next(), kFolder + "process_log_20050622_2.txt");
}

// Every file of the series exists and is full.
class FullSeries : public fakes::FakeFileSystem {
public:
    bool FileExists(const std::string&) override { return true; }
    std::optional<std::uint64_t> FileSize(const std::string&) override { return kRolloverLimit + 1; }
};

TEST(RolloverCounter, PassingSixteenBitsRaisesOverflow) {
    FullSeries files;
    ExpectRuntimeError(base::RuntimeErrorNumber::Overflow, [&] { RolloverPath(files, kFolder, "process_log_20050622"); });
}

TEST(MainMonitorNumber, TheLowestFreeNumberFromOne) {
    fakes::FakeFileSystem files;
    EXPECT_EQ(NextMainMonitorPath(files, kFolder, kDay), kFolder + "20050622-1.txt");
    files.Put(kFolder + "20050622-1.txt", "");
    files.Put(kFolder + "20050622-2.txt", "");
    // Another day's files and gaps further up do not count.
    files.Put(kFolder + "20050621-3.txt", "");
    files.Put(kFolder + "20050622-5.txt", "");
    EXPECT_EQ(NextMainMonitorPath(files, kFolder, kDay), kFolder + "20050622-3.txt");
}

}  // namespace
}  // namespace logs
