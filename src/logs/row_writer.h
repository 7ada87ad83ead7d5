#pragma once
// Writes the rows of a list as lines of one file, gathered in blocks, pumping window messages
// after each row so that the window stays responsive during a long save.
#include <cstddef>
#include <functional>
#include <memory>
#include <string>

#include "base/table_model.h"
#include "logs/ansi_encoder.h"
#include "platform/files.h"
#include "platform/message_pump.h"

namespace logs {

// Builds one line in code page 932 from the row's UTF-8 texts.
using LineBuilder = std::function<void(const base::TableModel::Row& row, AnsiEncoder& encoder, std::string& line)>;

class RowWriter {
public:
    // file may be null (it could not be opened): the rows are gone through all the same.
    RowWriter(std::unique_ptr<platform::IOutputFile> file, const base::TableModel& rows, AnsiEncoder& encoder,
              LineBuilder build);
    RowWriter(const RowWriter&) = delete;
    RowWriter& operator=(const RowWriter&) = delete;

    // Writes as many rows as the list held when the writer was made, pumping after each, and
    // closes the file. Rows added meanwhile are left out; a list cleared or rebuilt meanwhile
    // is read as it then stands and ends the save at its end.
    void Run(platform::IMessagePump& pump);
    // Writes every row the list holds now from where the save stands, without pumping, and
    // closes the file; the running Run then stops.
    void Finish();

private:
    void WriteLine(std::size_t row);
    void Flush();
    void Close();

    std::unique_ptr<platform::IOutputFile> m_file;
    const base::TableModel& m_rows;
    AnsiEncoder& m_encoder;
    LineBuilder m_build;
    std::string m_block;
    std::size_t m_next = 0;
    std::size_t m_end;
    bool m_closed = false;
};

}  // namespace logs
