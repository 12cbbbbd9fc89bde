#include "text_block.h"

#include "line_breaks.h"

#include <optional>

namespace vornix::viewer {

namespace {

constexpr char16_t Quote = u'"';

std::u16string FieldOf(std::u16string_view text)
{
    if (!text.starts_with(Quote) && text.find_first_of(u"\t\r\n") == std::u16string_view::npos)
        return std::u16string(text);
    std::u16string field(1, Quote);
    for (const char16_t unit : WithLineBreaks(text, u"\n")) {
        field += unit;
        if (unit == Quote)
            field += Quote;
    }
    return field + Quote;
}

// Takes fields from the front of a text.
class FieldReader {
public:
    explicit FieldReader(std::u16string_view text)
        : text_(text)
    {
    }

    bool IsAtEnd() const { return place_ == text_.size(); }
    std::u16string TakeField();
    // What ends a field, which is not the end of the text. True where it ends the row too.
    bool TakeEnd();

private:
    bool EndsField(std::size_t place) const;
    std::optional<std::u16string> TakeQuoted();

    std::u16string_view text_;
    std::size_t place_ = 0;
    // Marks that were passed in search of one that ends a field. Where there was none, there is none for the next search that
    // comes upon one of these.
    std::vector<bool> isPassed_;
};

std::u16string FieldReader::TakeField()
{
    if (std::optional<std::u16string> quoted = TakeQuoted())
        return std::move(*quoted);
    std::u16string field(text_.substr(place_, text_.find_first_of(u"\t\r\n", place_) - place_));
    place_ += field.size();
    return field;
}

bool FieldReader::TakeEnd()
{
    const std::u16string_view rest = text_.substr(place_);
    place_ += rest.starts_with(u"\r\n") ? 2 : 1;
    return rest.front() != u'\t';
}

bool FieldReader::EndsField(std::size_t place) const
{
    return place == text_.size() || text_[place] == u'\t' || text_[place] == u'\r' || text_[place] == u'\n';
}

// Nothing, and nothing taken, when no mark ends it.
std::optional<std::u16string> FieldReader::TakeQuoted()
{
    if (!text_.substr(place_).starts_with(Quote))
        return {};
    isPassed_.resize(text_.size());
    std::u16string field;
    std::size_t begin = place_ + 1;
    while (true) {
        const std::size_t mark = text_.find(Quote, begin);
        if (mark == std::u16string_view::npos || isPassed_[mark])
            return {};
        isPassed_[mark] = true;
        field += text_.substr(begin, mark - begin);
        begin = mark + 1;
        if (EndsField(begin)) {
            place_ = begin;
            return field;
        }
        // Two are one; one alone stays.
        field += Quote;
        if (text_[begin] == Quote)
            ++begin;
    }
}

} // namespace

std::u16string TextOf(const TextBlock& block)
{
    std::u16string text;
    for (std::size_t row = 0; row < block.size(); ++row) {
        text += row > 0 ? u"\r\n" : u"";
        for (std::size_t column = 0; column < block[row].size(); ++column) {
            text += column > 0 ? u"\t" : u"";
            text += FieldOf(block[row][column]);
        }
    }
    // Nothing at all would be no row.
    const bool endsEmpty = !block.empty() && block.back() == std::vector<std::u16string>(1);
    return endsEmpty ? text + u"\r\n" : text;
}

TextBlock BlockOf(std::u16string_view text)
{
    TextBlock block;
    FieldReader reader(text);
    for (bool isNewRow = true; !reader.IsAtEnd() || !isNewRow;) {
        if (isNewRow)
            block.emplace_back();
        block.back().push_back(reader.TakeField());
        if (reader.IsAtEnd())
            break;
        isNewRow = reader.TakeEnd();
    }
    return block;
}

} // namespace vornix::viewer
