// A text file of separated values as a plain model has it.
#pragma once

#include "text_decoder.h"
#include "text_encoder.h"

#include <random>
#include <string>
#include <utility>
#include <vector>

namespace vornix::viewer {

struct Change {
    int row;
    int column;
    std::u16string text;
};

// A file made of fields as they stand in it, so that what it should be after a change is plain to see.
class FileModel {
public:
    explicit FileModel(std::mt19937& random)
        : random_(random)
        , separator_(Pick<char16_t>({ u',', u';', u'\t', u'|' }))
        , encoding_(Pick<TextEncoding>({ TextEncoding::Utf8, TextEncoding::Utf16Little, TextEncoding::Utf16Big }))
        , hasMark_(encoding_ != TextEncoding::Utf8 || Chance(2))
        , rows_(static_cast<std::size_t>(Number(2, 12)),
              std::vector<std::u16string>(static_cast<std::size_t>(Number(2, 5))))
    {
        for (std::vector<std::u16string>& row : rows_) {
            for (std::u16string& field : row)
                field = Chance(3) ? Quoted(Text(true)) : Text(false);
            row.front() = u"1"; // no header, and no blank line
            lineEnds_.push_back(Pick<std::u16string>({ u"\n", u"\r\n", u"\r" }));
        }
        if (Chance(3))
            lineEnds_.back().clear();
        NoteSaved();
    }

    std::string Bytes() const
    {
        // Naming the separator leaves nothing to guess.
        std::u16string text = u"sep=" + std::u16string(1, separator_) + u"\n";
        for (std::size_t row = 0; row < rows_.size(); ++row) {
            for (std::size_t column = 0; column < rows_[row].size(); ++column)
                text += (column > 0 ? std::u16string(1, separator_) : u"") + rows_[row][column];
            text += lineEnds_[row];
        }
        std::string bytes;
        AppendEncoded((hasMark_ ? u"\uFEFF" : u"") + text, encoding_, bytes);
        return bytes;
    }

    Change ChangeOne()
    {
        const std::size_t row = static_cast<std::size_t>(Number(0, static_cast<int>(rows_.size()) - 1));
        const std::size_t column = static_cast<std::size_t>(Number(1, static_cast<int>(rows_[row].size()) - 1));
        const std::u16string text = Text(Chance(2));
        std::u16string& field = rows_[row][column];
        const bool mustBeQuoted = text.find_first_of(std::u16string(u"\"\r\n") + separator_) != std::u16string::npos;
        field = savedRows_[row][column].starts_with(u'"') || mustBeQuoted ? Quoted(text) : text;
        return { static_cast<int>(row), static_cast<int>(column), text };
    }

    int Rows() const { return static_cast<int>(rows_.size()); }
    int Columns() const { return static_cast<int>(rows_.front().size()); }

    // With these texts, where no text needs quotes but for what it says.
    void Add(int row, const std::vector<std::u16string>& texts, const std::u16string& lineBreak)
    {
        // The style is that of the row before, of the first one at the top.
        const std::vector<std::u16string>& example = savedRows_[static_cast<std::size_t>(std::max(row - 1, 0))];
        std::vector<std::u16string> fields;
        for (std::size_t column = 0; column < texts.size(); ++column) {
            const std::u16string& text = texts[column];
            const bool mustBeQuoted
                = text.find_first_of(std::u16string(u"\"\r\n") + separator_) != std::u16string::npos;
            fields.push_back(example[column].starts_with(u'"') || mustBeQuoted ? Quoted(text) : text);
        }
        // It stands in front of the line end of the row before.
        const auto place = static_cast<std::ptrdiff_t>(row);
        rows_.insert(rows_.begin() + place, fields);
        lineEnds_.insert(lineEnds_.begin() + std::max<std::ptrdiff_t>(place - 1, 0), lineBreak);
    }
    void Remove(int row)
    {
        const auto place = static_cast<std::ptrdiff_t>(row);
        const bool isUnfinished = lineEnds_[static_cast<std::size_t>(row)].empty();
        rows_.erase(rows_.begin() + place);
        lineEnds_.erase(lineEnds_.begin() + place);
        if (isUnfinished && row > 0)
            lineEnds_[static_cast<std::size_t>(row) - 1].clear();
    }
    std::u16string WildText() { return Text(Chance(2)); }
    int Pick(int count) { return Number(0, count - 1); }

    void NoteSaved() { savedRows_ = rows_; }

private:
    int Number(int least, int most)
    {
        return least + static_cast<int>(random_() % static_cast<unsigned>(most - least + 1));
    }
    bool Chance(int one) { return Number(1, one) == 1; }
    template <typename T> T Pick(std::vector<T> of) { return of[random_() % of.size()]; }

    static std::u16string Quoted(const std::u16string& text)
    {
        std::u16string quoted = u"\"";
        for (const char16_t unit : text)
            quoted += unit == u'"' ? u"\"\"" : std::u16string(1, unit);
        return quoted + u"\"";
    }
    std::u16string Text(bool isWild)
    {
        const std::u16string tame[] = { u"a", u"bc", u" ", u"ä", u"Ọ", u"😀", u"12" };
        const std::u16string wild[] = { u"\"", u"\r\n", u"\n", u"\r", u",", u";", u"\t", u"|", u"\"\"" };
        std::u16string text;
        for (int part = Number(0, 5); part > 0; --part)
            text += isWild && Chance(2) ? wild[random_() % std::size(wild)] : tame[random_() % std::size(tame)];
        return text;
    }

    std::mt19937& random_;
    const char16_t separator_;
    const TextEncoding encoding_;
    const bool hasMark_;
    std::vector<std::vector<std::u16string>> rows_;
    std::vector<std::vector<std::u16string>> savedRows_;
    std::vector<std::u16string> lineEnds_;
};

} // namespace vornix::viewer
