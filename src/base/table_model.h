#pragma once
// The rows behind one list view: cell texts and an icon index per row. Logic appends,
// clears and rebuilds it; the view reads cells on demand, so row count costs nothing to show.
#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace base {

class TableModel {
public:
    struct Row {
        std::vector<std::string> cells;
        int icon = -1;
    };
    // Told after every change whether rows were only appended (what is drawn stays valid).
    using ChangeListener = std::function<void(bool appended)>;

    std::size_t RowCount() const { return m_rows.size(); }
    // The text of a cell; empty for a cell the row does not have.
    const std::string& Cell(std::size_t row, std::size_t column) const;
    int Icon(std::size_t row) const;
    const Row& RowAt(std::size_t row) const { return m_rows.at(row); }

    void AddRow(std::vector<std::string> cells, int icon = -1);
    void Clear();
    // A whole rebuild (all rows removed, then all added) that the view hears of once.
    void Replace(std::vector<Row> rows);
    // Row n shows image n; the view hears of it once.
    void ShowIconPerRow();

    // The row the user selected in the view, if any; a rebuild or a clear selects nothing.
    std::optional<std::size_t> SelectedRow() const { return m_selected; }
    void SetSelectedRow(std::optional<std::size_t> row);

    // Called after every change; the view uses it to renew its item count.
    void SetChangeListener(ChangeListener listener) { m_listener = std::move(listener); }

private:
    void Changed(bool appended) const;

    std::vector<Row> m_rows;
    std::optional<std::size_t> m_selected;
    ChangeListener m_listener;
};

}  // namespace base
