#pragma once
// frmApp, "アプリケーション管理", without a screen: the allowed names of app.ini in lstvAppEdit,
// added through an input box, removed by selection, and written back whole on "Ok". Deleting a
// name here does not take it from the running program's dictionary, which only grows.
#include "base/table_model.h"
#include "platform/dialogs.h"
#include "platform/input_box.h"
#include "processes/app_dictionary.h"
#include "processes/app_list_file.h"

namespace processes {

class AppEditor {
public:
    static constexpr const char* kCaption = "アプリケーション管理";

    // The form's load: reads MaxSize, creates a missing app.ini in the program folder and lists
    // every record with a name, in file order.
    AppEditor(AppListFile& file, AppDictionary& allowed, platform::IInputBox& input);

    base::TableModel& Rows() { return m_rows; }

    // cmdAdd: asks for a name and appends a row unless the answer is empty.
    void Add();
    // cmdDel: removes the selected row, if any.
    void Delete();
    // cmdOK: rewrites the file from the rows and reloads the dictionary; true when the dialog
    // closes (false only when the file cannot be written).
    bool Ok();

private:
    AppListFile& m_file;
    AppDictionary& m_allowed;
    platform::IInputBox& m_input;
    base::TableModel m_rows;
};

// mnuTouroku: registers the selected application of the applications tab and says so.
void RegisterApplication(AppDictionary& allowed, platform::IDialogs& dialogs, const std::string& name);

}  // namespace processes
