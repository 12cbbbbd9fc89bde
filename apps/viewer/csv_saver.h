// Writes changed cells into a text file of separated values.
#pragma once

#include "csv_layout.h"
#include "loading.h"
#include "saver.h"

#include <map>
#include <string>
#include <vector>

namespace vornix::viewer {

// The second one quotes all that could be taken for a separator of the file.
enum class CsvQuoting { WhereNeeded, AllSeparators };

// Everything that was not changed stays as it is in the file, byte for byte. A changed field stands in quotes when the
// old one did or when it has to, to be read as it was meant; one without a text is nothing at all, a null, or two quotes
// where the old one had them. The new file is read while it is written, and takes the old one's place only when it says
// what it should and will be opened with the same separator. A file that is not the one that was read is an error. Only a
// cell that held a truth value takes one; in others "0" and "-1" are what they are.
class CsvSaver final : public Saver {
public:
    // The table is what ReadCsv has made of the file, with `layout`, within `limits`; it must outlive this.
    CsvSaver(std::string path, const Table& table, const CsvLayout& layout, const LoadLimits& limits);

    std::optional<std::string> WhyReadOnly() const override;
    bool CanChange(int row, int column) const override;
    std::u16string_view LineBreak() const override { return layout_.lineBreak; }
    std::vector<CellText> Save(const Edits& edits) override;

private:
    bool Write(const std::map<int, Edits::RowEdits>& rows, CsvQuoting quoting);
    std::u16string Stored(int row, int column, std::u16string_view text) const;
    std::map<int, Edits::RowEdits> StoredRows(const Edits& edits) const;
    static std::vector<CellText> Mended(const Edits& edits);

    std::string path_;
    const Table& table_;
    CsvLayout layout_;
    LoadLimits limits_;
};

} // namespace vornix::viewer
