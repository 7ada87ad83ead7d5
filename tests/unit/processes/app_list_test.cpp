// app.ini, the dictionary loaded from it, the editor that rewrites it and the registration
// command.
#include <gtest/gtest.h>

#include "base/delimited_text.h"
#include "fakes/fake_dialogs.h"
#include "fakes/fake_file_system.h"
#include "processes/app_editor.h"
#include "unit/processes/app_fakes.h"

namespace processes {
namespace {

constexpr const char* kDefault = "C:\\Lookout\\app.ini";

class AppListTest : public ::testing::Test {
protected:
    std::size_t Known(const std::vector<std::string>& names) {
        std::size_t alerts = alert.texts.size();
        for (const auto& name : names) dictionary.CheckDictionary2(name);
        return names.size() - (alert.texts.size() - alerts);
    }

    fakes::FakeFileSystem files;
    FakeProgramSettings settings;
    RecordingAlert alert;
    AppListFile file{files, settings, "C:\\Lookout\\"};
    AppDictionary dictionary{file, alert};
};

TEST(DelimitedText, QuotesHoldCommasAndAnOpenQuoteEndsWithItsLine) {
    EXPECT_EQ(base::DelimitedFields(R"(x"y,"say ""hi""",)"), (std::vector<std::string>{"x\"y", "say \"hi\"", ""}));
    std::vector<std::string> names;
    base::ForEachDelimitedRecord("\"open,Ok\r\n\r\nnext,Ok", [&](const auto& f) { names.push_back(f[0]); });
    EXPECT_EQ(names, (std::vector<std::string>{"open,Ok", "", "next"}));
}

TEST_F(AppListTest, LoadsEachNameOnceExactlyAndSplitsAnUnquotedComma) {
    files.Put(kDefault, "a.exe,Ok\r\n\r\na.exe,Ok\r\nb,c.exe,Ok\r\n\"d,e.exe\",Ok\r\n\x82\xa0\x82.exe,Ok\r\n" +
                            std::string(5000, 'x') + ",Ok");
    EXPECT_EQ(Known({"a.exe", "b", "d,e.exe", std::string(5000, 'x')}), 4u);
    EXPECT_EQ(Known({"A.exe", "b,c.exe", ""}), 0u);
    EXPECT_EQ(dictionary.CheckDictionary2("z.exe"), "4");
    dictionary.ResetAlertCounter();
    EXPECT_EQ(dictionary.CheckDictionary2("a.exe"), "0");
}

TEST_F(AppListTest, ThePathComesFromTheUsersSettingsAndOnlyTheDefaultFileIsCreated) {
    settings.values["Veskar_Lookout\\app\\Filename"] = "D:\\lists\\apps.txt";
    EXPECT_EQ(Known({"a.exe"}), 0u);
    EXPECT_FALSE(files.Has("D:\\lists\\apps.txt"));
    EXPECT_TRUE(files.Has(kDefault));  // the program folder's list is created, empty
    EXPECT_EQ(files.Get(kDefault), "");
    files.Put("D:\\lists\\apps.txt", "a.exe,Ok\r\n");
    EXPECT_TRUE(dictionary.WriteCache2("b.exe"));
    EXPECT_EQ(files.Get("D:\\lists\\apps.txt"), "a.exe,Ok\r\nb.exe,Ok\r\n");
    EXPECT_EQ(Known({"a.exe", "b.exe"}), 2u);
    EXPECT_FALSE(dictionary.WriteCache2(""));
    EXPECT_EQ(file.MaxSize(), 1000);
}

TEST_F(AppListTest, TheEditorRewritesTheFileTheDictionaryOnlyGrowsAndRegistrationSaysWhetherItWorked) {
    files.Put(kDefault, "a.exe,Ok\r\nb.exe,Ok\r\n");
    EXPECT_EQ(Known({"a.exe"}), 1u);
    FakeInputBox input;
    AppEditor editor(file, dictionary, input);
    input.answer = "c.exe";
    editor.Add();
    input.answer = "";
    editor.Add();
    editor.Delete();
    editor.Rows().SetSelectedRow(0);
    editor.Delete();
    EXPECT_EQ(input.asked[0], "許可するアプリケーションを入力してください。|アプリケーションの追加");
    EXPECT_TRUE(editor.Ok());
    EXPECT_EQ(files.Get(kDefault), "b.exe,Ok\r\nc.exe,Ok\r\n");
    EXPECT_EQ(Known({"a.exe", "b.exe", "c.exe"}), 3u);

    fakes::FakeDialogs dialogs;
    RegisterApplication(dictionary, dialogs, "x.exe");
    files.unwritable.insert(kDefault);
    RegisterApplication(dictionary, dialogs, "y.exe");
    EXPECT_EQ(dialogs.Texts(), (std::vector<std::string>{" アプリケーション：x.exeの登録に成功しました。",
                                                         " アプリケーション：y.exeの登録に失敗しました。"}));
    EXPECT_EQ(files.Get(kDefault), "b.exe,Ok\r\nc.exe,Ok\r\nx.exe,Ok\r\n");
}

}  // namespace
}  // namespace processes
