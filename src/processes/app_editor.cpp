#include "processes/app_editor.h"

#include "base/product.h"

namespace processes {

AppEditor::AppEditor(AppListFile& file, AppDictionary& allowed, platform::IInputBox& input)
    : m_file(file), m_allowed(allowed), m_input(input) {
    // The form reads MaxSize as it always has; nothing here limits by it.
    static_cast<void>(m_file.MaxSize());
    m_file.CreateDefaultIfMissing();
    std::vector<base::TableModel::Row> rows;
    for (const auto& record : m_file.ReadRecords()) rows.push_back({{record.first}});
    m_rows.Replace(std::move(rows));
}

void AppEditor::Add() {
    const std::string name = m_input.Ask("許可するアプリケーションを入力してください。", "アプリケーションの追加");
    if (!name.empty()) m_rows.AddRow({name});
}

void AppEditor::Delete() {
    const std::optional<std::size_t> selected = m_rows.SelectedRow();
    if (!selected) return;
    std::vector<base::TableModel::Row> rows;
    for (std::size_t i = 0; i < m_rows.RowCount(); ++i) {
        if (i != *selected) rows.push_back(m_rows.RowAt(i));
    }
    m_rows.Replace(std::move(rows));
}

bool AppEditor::Ok() {
    std::vector<std::string> names;
    for (std::size_t i = 0; i < m_rows.RowCount(); ++i) names.push_back(m_rows.Cell(i, 0));
    if (!m_file.Rewrite(names)) return false;
    m_allowed.WriteCache2("");
    return true;
}

void RegisterApplication(AppDictionary& allowed, platform::IDialogs& dialogs, const std::string& name) {
    const char* outcome = allowed.WriteCache2(name) ? "の登録に成功しました。" : "の登録に失敗しました。";
    dialogs.ShowMessage(" アプリケーション：" + name + outcome, base::kProductName, platform::msgbox::kOkOnly);
}

}  // namespace processes
