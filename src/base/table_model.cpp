#include "base/table_model.h"


namespace base {
namespace {
const std::string kEmpty;
}

const std::string& TableModel::Cell(std::size_t row, std::size_t column) const {
    if (row >= m_rows.size()) return kEmpty;
    const auto& cells = m_rows[row].cells;
    return column < cells.size() ? cells[column] : kEmpty;
}

int TableModel::Icon(std::size_t row) const { return row < m_rows.size() ? m_rows[row].icon : -1; }

void TableModel::AddRow(std::vector<std::string> cells, int icon) {
    m_rows.push_back(Row{std::move(cells), icon});
    Changed(true);
}

void TableModel::Clear() {
    if (m_rows.empty()) return;  // nothing for the view to redraw
    m_rows.clear();
    m_selected.reset();
    Changed(false);
}

void TableModel::Replace(std::vector<Row> rows) {
    if (rows.empty() && m_rows.empty()) return;
    m_rows = std::move(rows);
    m_selected.reset();
    Changed(false);
}

void TableModel::ShowIconPerRow() {
    for (std::size_t row = 0; row < m_rows.size(); ++row) m_rows[row].icon = static_cast<int>(row);
    Changed(false);
}

void TableModel::SetSelectedRow(std::optional<std::size_t> row) {
    m_selected = row && *row < m_rows.size() ? row : std::nullopt;
}

void TableModel::Changed(bool appended) const {
    if (m_listener) m_listener(appended);
}

}  // namespace base
