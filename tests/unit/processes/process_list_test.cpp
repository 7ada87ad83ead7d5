#include "processes/process_list.h"

#include "fakes/fake_icon_list.h"
#include "fakes/fake_processes.h"
#include "unit/mainwindow/main_window_fixture.h"

namespace processes {
namespace {

using Texts = std::vector<std::string>;

class ProcessListTest : public mainwindow::MainWindowTest {
protected:
    Texts Rows() const {  // cells and icon, joined by "|"
        Texts rows;
        const base::TableModel& list = model.List(mainwindow::ListId::lstvTask);
        for (std::size_t r = 0; r < list.RowCount(); ++r) {
            const auto& [c, icon] = list.RowAt(r);
            rows.push_back(c[0] + "|" + c[1] + "|" + c[2] + "|" + c[3] + "|" + std::to_string(icon));
        }
        return rows;
    }
    std::string Log() const { return files.Get("C:\\Lookout\\logs\\process20050622.txt"); }

    fakes::FakeProcesses processes;
    fakes::FakeIconList icons;
    ProcessListPage page{model, processes, icons, dialogs};
};

TEST_F(ProcessListTest, RebuildsRowsIconsPanelAndLogOnlyWhenTheCountChanges) {
    model.SetAutoLogChecked(true);
    processes.table = {{0}, {4, "C:\\WINDOWS\\smss.exe", 1536000}, {8, "C:\\a.exe", 0}, {12, "SYSTEM", 4096}};
    icons.noIcon = {"C:\\a.exe"};
    page.Refresh();
    const Texts built{"smss.exe|4|1,500 K|C:\\WINDOWS\\smss.exe|0", "a.exe|8|0|C:\\a.exe|1", "SYSTEM|12|4 K|SYSTEM|2"};
    EXPECT_EQ(Rows(), built);
    EXPECT_EQ(icons.images, (Texts{"C:\\WINDOWS\\smss.exe", "?", "?"}));
    EXPECT_EQ(model.PanelText(5), "プロセス : 3");
    EXPECT_EQ(Log(), "2005/06/22 09:05:03\tsmss.exe\t4\t1,500 K\tC:\\WINDOWS\\smss.exe\r\n"
                     "2005/06/22 09:05:03\ta.exe\t8\t0\tC:\\a.exe\r\n2005/06/22 09:05:03\tSYSTEM\t12\t4 K\tSYSTEM\r\n");
    // One process ends while another starts: nothing is touched.
    processes.table[1] = {16, "C:\\new.exe"};
    model.SetPanelText(5, "");
    icons.images.clear();
    const std::string log = Log();
    page.Refresh();
    EXPECT_EQ(Rows(), built);
    EXPECT_EQ(icons.images.size() + model.PanelText(5).size() + Log().size(), log.size());
    processes.table.push_back({20, "C:\\b.exe"});
    page.Refresh();
    EXPECT_EQ(Rows(), (Texts{"new.exe|16|0|C:\\new.exe|0", built[1], built[2], "b.exe|20|0|C:\\b.exe|3"}));
}

TEST_F(ProcessListTest, AnIdAbove32767OrA1001stRowEndsTheRefreshWithTheNewCountKept) {
    processes.table = {{4, "C:\\a.exe"}, {32768, "C:\\b.exe"}};
    page.Refresh();
    processes.table[1].id = 32767;  // the same count: no second try
    page.Refresh();
    EXPECT_TRUE(Rows().empty());
    for (std::uint32_t id = 1; id <= 1001; ++id) processes.table.push_back({id, "C:\\p.exe"});
    page.Refresh();
    EXPECT_EQ(dialogs.Texts(), Texts(2, "プロセス タブで Error Level t1 が発生しました。"));
}

}  // namespace
}  // namespace processes
