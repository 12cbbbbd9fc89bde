// Writes changed cells and rows into a text file of separated values.
#pragma once

#include "csv_finder.h"
#include "csv_layout.h"
#include "csv_plan.h"
#include "loading.h"
#include "saver.h"

#include <string>
#include <vector>

namespace vornix::viewer {

// Everything that was not changed stays as it is in the file, byte for byte. A changed field stands in quotes when the
// old one did or when it has to, to be read as it was meant; one without a text is nothing at all, a null, or two quotes
// where the old one had them. The new file is read while it is written, and takes the old one's place only when it says
// what it should and will be opened with the same separator; whether its first row will still be taken for what it is, is
// told. A file that is not the one that was read is an error. Only a
// cell that held a truth value takes one; in others "0" and "-1" are what they are.
//
// A row that is removed takes its line break with it, and blank lines around it stay. A new one comes right behind the row
// it follows, with the file's line break, and with quotes where that row has them.
class CsvSaver final : public Saver {
public:
    // The table is what ReadCsv has made of the file, with `layout`, within `limits`; it must outlive this.
    CsvSaver(std::string path, const Table& table, const CsvLayout& layout, const LoadLimits& limits);

    std::optional<std::string> WhyReadOnly() const override;
    bool CanChange(int row, int column) const override;
    std::u16string_view LineBreak() const override { return layout_.lineBreak; }
    SaveOutcome Save(const Changes& changes) override;

private:
    bool Write(const CsvPlan& plan, CsvQuoting quoting);
    std::u16string Stored(int row, int column, std::u16string_view text) const;
    CsvPlan::Fields StoredFields(int row, const Edits::RowEdits& cells) const;
    CsvPlan PlanFor(const Changes& changes) const;
    std::vector<int> OrderWith(const Changes& changes) const;
    static std::vector<CellText> Mended(const Changes& changes);

    std::string path_;
    const Table& table_;
    CsvLayout layout_;
    LoadLimits limits_;
    std::string notice_; // about the file that was written last
    std::vector<int> order_; // the records of the file, without those that were left out
};

} // namespace vornix::viewer
