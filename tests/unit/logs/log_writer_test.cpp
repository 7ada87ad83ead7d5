#include "logs/log_writer.h"

#include <gtest/gtest.h>

#include "base/text_encoding.h"
#include "fakes/fake_clock.h"
#include "fakes/fake_dialogs.h"
#include "fakes/fake_file_system.h"
#include "fakes/fake_message_pump.h"

namespace logs {
namespace {

const std::string kProgram = "C:\\Lookout\\";
const std::string kLogs = "C:\\Lookout\\logs\\";

class LogWriterTest : public ::testing::Test {
protected:
    LogWriterTest() { files.folders.insert("C:\\Lookout"); }

    ListRows Process() { return {table, 4}; }
    std::string File(const std::string& name) { return base::AnsiToUtf8(files.Get(kLogs + name)); }

    fakes::FakeFileSystem files;
    fakes::FakeClock clock;  // 2005/06/22 09:05:03
    fakes::FakeMessagePump pump;
    fakes::FakeDialogs dialogs;
    std::string folder = kProgram;
    LogWriter writer{folder, {files, clock, pump}};
    base::TableModel table;
};

TEST_F(LogWriterTest, ListLinesAreStampThenEveryColumnAppendedOrReplaced) {
    table.AddRow({"explorer.exe", "1234", "5,120 KB", "C:\\WINDOWS\\explorer.exe"});
    table.AddRow({"短い"});  // fewer cells than columns: the missing ones are empty fields
    for (int i = 0; i < 2; ++i) {
        writer.AppendSave(LogKind::Process, Process());
        writer.TemporarySave(LogKind::Process, Process());
    }
    EXPECT_TRUE(files.FolderExists("C:\\Lookout\\logs"));
    const std::string lines =
        "2005/06/22 09:05:03\texplorer.exe\t1234\t5,120 KB\tC:\\WINDOWS\\explorer.exe\r\n"
        "2005/06/22 09:05:03\t短い\t\t\t\r\n";
    EXPECT_EQ(File("process_log_20050622.txt"), lines + lines);
    EXPECT_EQ(File("process_tmplog_20050622.txt"), lines);
    // On disk the text is code page 932.
    EXPECT_NE(files.Get(kLogs + "process_log_20050622.txt").find("\x92\x5A\x82\xA2"), std::string::npos);
}

// Whether it writes at all follows the tab's check box (see the main window's commands); where
// the limit lies, the rollover's own test.
TEST_F(LogWriterTest, AutomaticLogHasItsOwnFileAndRollsOver) {
    table.AddRow({"app.exe", "10", "80", "TCP", "C:\\app.exe"});
    writer.AutomaticLog(LogKind::Application, {table, 5}, true);
    EXPECT_EQ(File("application20050622.txt"), "2005/06/22 09:05:03\tapp.exe\t10\t80\tTCP\tC:\\app.exe\r\n");

    files.Put(kLogs + "application20050622.txt", std::string(512001, 'x'));
    writer.AutomaticLog(LogKind::Application, {table, 5}, true);
    EXPECT_TRUE(files.Has(kLogs + "application20050622_1.txt"));
}

TEST_F(LogWriterTest, ASaveToleratesTheListChangingWhileItPumps) {
    for (int i = 0; i < 5; ++i) table.AddRow({"old" + std::to_string(i)});
    // After the second line a refresh rebuilds the list with three rows.
    pump.onPump = [&] {
        if (pump.calls != 2) return;
        table.Clear();
        for (int i = 0; i < 3; ++i) table.AddRow({"new" + std::to_string(i)});
    };
    writer.TemporarySave(LogKind::Process, Process());
    EXPECT_EQ(File("process_tmplog_20050622.txt"),
              "2005/06/22 09:05:03\told0\t\t\t\r\n"
              "2005/06/22 09:05:03\told1\t\t\t\r\n"
              "2005/06/22 09:05:03\tnew2\t\t\t\r\n");

    // A list emptied during the save ends it.
    pump.calls = 0;
    pump.onPump = [&] { table.Clear(); };
    writer.TemporarySave(LogKind::Process, Process());
    EXPECT_EQ(File("process_tmplog_20050622.txt"), "2005/06/22 09:05:03\tnew0\t\t\t\r\n");
}

// The process may be ended as soon as the session end is answered, so that save finishes the one
// under way there and then; a save asked for by anything else meanwhile writes nothing.
TEST_F(LogWriterTest, TheSessionEndFinishesTheMainMonitorSaveUnderWay) {
    table.AddRow({"banner"});
    table.AddRow({"row"});
    pump.onPump = [&] {
        table.AddRow({"tick"});
        EXPECT_FALSE(writer.SaveMainMonitor(table));
        pump.onPump = [&] {
            table.AddRow({"Windowsが終了されました。"});
            writer.SaveMainMonitorBeforeSessionEnd(table);
            EXPECT_EQ(File("20050622-1.txt"), "banner\r\nrow\r\ntick\r\nWindowsが終了されました。\r\n");
        };
    };
    EXPECT_TRUE(writer.SaveMainMonitor(table));
    EXPECT_EQ(pump.calls, 2);
    EXPECT_FALSE(files.Has(kLogs + "20050622-2.txt"));

    // Otherwise a save writes the rows there were when it started: what a tick adds is not
    // written after the session-end row.
    pump.onPump = [&] { table.AddRow({"tick"}); };
    writer.SaveMainMonitor(table);
    EXPECT_TRUE(File("20050622-2.txt").ends_with("tick\r\nWindowsが終了されました。\r\n"));
}

TEST_F(LogWriterTest, FailuresArePassedOverSilently) {
    table.AddRow({"x"});
    files.failFolderCreation = true;
    files.unwritable.insert("C:\\Lookout\\logs\\process_log_20050622.txt");
    writer.AppendSave(LogKind::Process, Process());  // neither folder nor file: nothing, no throw
    EXPECT_FALSE(files.Has(kLogs + "process_log_20050622.txt"));
    writer.TemporarySave(LogKind::Process, Process());  // the next step goes on regardless
    EXPECT_TRUE(files.Has(kLogs + "process_tmplog_20050622.txt"));
}

// Which number and what bytes, the session-end test shows.
TEST_F(LogWriterTest, TheMainMonitorGoesUnderTheProgramFolderAsItIsAtTheSave) {
    table.AddRow({"Veskar_Lookout v1.01"});
    folder = "E:\\Other\\";
    writer.SaveMainMonitor(table);
    EXPECT_TRUE(files.Has("E:\\Other\\logs\\20050622-1.txt"));
}

// That ".TXT" is not ".txt" is seen end to end.
TEST_F(LogWriterTest, SaveAsProposesTheNextFileAndAppendsAMissingTxt) {
    table.AddRow({"line"});
    files.Put(kLogs + "20050622-1.txt", "");
    dialogs.saveAnswer = "D:\\mylog";
    writer.SaveMainMonitorAs(table, dialogs);

    ASSERT_EQ(dialogs.saveRequests.size(), 1u);
    EXPECT_EQ(dialogs.saveRequests[0].filter, "(*.txt)|*txt|");
    EXPECT_EQ(dialogs.saveRequests[0].fileName, kLogs + "20050622-2.txt");
    EXPECT_EQ(files.Get("D:\\mylog.txt"), "line\r\n");

    dialogs.saveAnswer = "D:\\kept.txt";
    writer.SaveMainMonitorAs(table, dialogs);
    EXPECT_TRUE(files.Has("D:\\kept.txt"));
    EXPECT_FALSE(files.Has("D:\\kept.txt.txt"));
}

}  // namespace
}  // namespace logs
