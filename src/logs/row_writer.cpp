#include "logs/row_writer.h"

#include <algorithm>

namespace logs {
namespace {

// Lines are gathered in blocks of about this size: one write per block instead of one per line.
constexpr std::size_t kBlockBytes = 64 * 1024;

}  // namespace

RowWriter::RowWriter(std::unique_ptr<platform::IOutputFile> file, const base::TableModel& rows, AnsiEncoder& encoder,
                     LineBuilder build)
    : m_file(std::move(file)), m_rows(rows), m_encoder(encoder), m_build(std::move(build)), m_end(rows.RowCount()) {
    m_block.reserve(kBlockBytes + 4096);
}

void RowWriter::Run(platform::IMessagePump& pump) {
    while (!m_closed && m_next < std::min(m_end, m_rows.RowCount())) {
        WriteLine(m_next++);
        pump.DoEvents();
    }
    Close();
}

void RowWriter::Finish() {
    while (!m_closed && m_next < m_rows.RowCount()) WriteLine(m_next++);
    Close();
}

void RowWriter::WriteLine(std::size_t row) {
    m_build(m_rows.RowAt(row), m_encoder, m_block);
    m_block += "\r\n";
    if (m_block.size() >= kBlockBytes) Flush();
}

void RowWriter::Flush() {
    if (m_file && !m_block.empty()) m_file->Write(m_block);
    m_block.clear();
}

void RowWriter::Close() {
    if (m_closed) return;
    Flush();
    m_file.reset();
    m_closed = true;
}

}  // namespace logs
