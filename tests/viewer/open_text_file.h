// A text file of separated values, read to be changed.
#pragma once

#include "csv_reader.h"
#include "csv_saver.h"
#include "input_file.h"

#include <string>
#include <utility>
#include <vector>

namespace vornix::viewer {

// A file, what was read of it, and changes to it.
class OpenFile {
public:
    explicit OpenFile(std::string filePath)
        : path(std::move(filePath))
        , table(Read(path, layout))
        , edits(table)
        , saver(path, table, layout, LoadLimits())
    {
    }

    std::vector<CellText> Save() { return saver.Save(edits).others; }
    std::string MessageOfSave()
    {
        try {
            Save();
        } catch (const SaveError& error) {
            return error.what();
        }
        return "saved";
    }

    const std::string path;
    CsvLayout layout;
    Table table;
    Edits edits;
    CsvSaver saver;

private:
    static Table Read(const std::string& path, CsvLayout& layout)
    {
        InputFile file(path);
        return ReadCsv(file, LoadLimits(), {}, &layout);
    }
};

} // namespace vornix::viewer
