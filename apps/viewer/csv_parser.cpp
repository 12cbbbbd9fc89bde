#include "csv_parser.h"

namespace vornix::viewer {

namespace {

constexpr char16_t Quote = u'"';

} // namespace

CsvParser::CsvParser(char16_t separator, const LoadLimits& limits, RecordFunction onRecord)
    : separator_(separator)
    , limits_(limits)
    , onRecord_(std::move(onRecord))
{
}

void CsvParser::Feed(std::u16string_view text)
{
    std::size_t position = 0;
    while (position < text.size()) {
        switch (state_) {
        case State::FieldStart:
            position = BeginField(text, position);
            break;
        case State::Plain:
            position = TakePlain(text, position);
            break;
        case State::Quoted:
            position = TakeQuoted(text, position);
            break;
        case State::QuoteInQuoted:
            position = EndQuotes(text, position);
            break;
        }
    }
    pieceStart_ += text.size();
}

void CsvParser::Finish()
{
    if (state_ == State::Quoted)
        Raise(fieldLine_, "the quoted field that begins here does not end");
    const bool nothingBegun = state_ == State::FieldStart && fieldCount_ == 0;
    if (nothingBegun)
        return;
    if (state_ == State::FieldStart)
        fieldPlace_ = pieceStart_;
    EndRecord(pieceStart_);
}

std::size_t CsvParser::BeginField(std::u16string_view text, std::size_t position)
{
    const bool isRestOfLineBreak = previousWasReturn_ && text[position] == u'\n';
    previousWasReturn_ = false;
    if (isRestOfLineBreak)
        return position + 1;

    fieldLine_ = line_;
    fieldPlace_ = pieceStart_ + position;
    if (text[position] != Quote) {
        state_ = State::Plain;
        return position;
    }
    state_ = State::Quoted;
    fieldWasQuoted_ = true;
    return position + 1;
}

std::size_t CsvParser::TakePlain(std::u16string_view text, std::size_t position)
{
    const std::size_t start = position;
    while (position < text.size() && text[position] != separator_ && text[position] != u'\n' && text[position] != u'\r'
        && text[position] != 0)
        ++position;
    Append(text.substr(start, position - start));
    if (position == text.size())
        return position;

    const char16_t unit = text[position];
    if (unit == 0)
        Raise(line_, "there is a NUL byte, so this is not a text file");
    if (unit == separator_) {
        EndField(pieceStart_ + position);
        return position + 1;
    }
    EndRecord(pieceStart_ + position);
    previousWasReturn_ = unit == u'\r';
    ++line_;
    BeginRecord();
    return position + 1;
}

std::size_t CsvParser::TakeQuoted(std::u16string_view text, std::size_t position)
{
    const std::size_t start = position;
    while (position < text.size() && text[position] != Quote) {
        const char16_t unit = text[position];
        if (unit == 0)
            Raise(line_, "there is a NUL byte, so this is not a text file");
        if (unit == u'\r' || (unit == u'\n' && !previousWasReturn_))
            ++line_;
        previousWasReturn_ = unit == u'\r';
        ++position;
    }
    Append(text.substr(start, position - start));
    if (position == text.size())
        return position;
    state_ = State::QuoteInQuoted;
    previousWasReturn_ = false;
    return position + 1;
}

std::size_t CsvParser::EndQuotes(std::u16string_view text, std::size_t position)
{
    if (text[position] != Quote) {
        state_ = State::Plain;
        return position;
    }
    Append(text.substr(position, 1));
    state_ = State::Quoted;
    return position + 1;
}

void CsvParser::Append(std::u16string_view text)
{
    if (text_.size() - fieldStart_ + text.size() > limits_.maxFieldLength)
        Raise(fieldLine_,
            "a field is longer than " + std::to_string(limits_.maxFieldLength) + " characters, the most a cell takes");
    if (text_.size() + text.size() > limits_.maxTextLength)
        Raise(recordLine_, "the row is longer than the table can hold");
    if (fieldCount_ <= static_cast<std::size_t>(limits_.maxColumns))
        text_.append(text);
}

void CsvParser::EndField(std::uint64_t place)
{
    ++fieldCount_;
    // Beyond the limit only the count matters, for the message.
    if (fieldCount_ <= static_cast<std::size_t>(limits_.maxColumns)) {
        ends_.push_back(text_.size());
        places_.push_back({ fieldPlace_, place, fieldWasQuoted_ });
    }
    fieldStart_ = text_.size();
    fieldWasQuoted_ = false;
    state_ = State::FieldStart;
}

void CsvParser::EndRecord(std::uint64_t place)
{
    const bool isBlank = IsBlankLine();
    EndField(place);
    if (fieldCount_ > static_cast<std::size_t>(limits_.maxColumns))
        Raise(recordLine_,
            std::to_string(fieldCount_) + " columns are more than the grid can hold (at most "
                + std::to_string(limits_.maxColumns) + ")");
    if (!isBlank)
        PassOn();
}

bool CsvParser::IsBlankLine() const
{
    return fieldCount_ == 0 && !fieldWasQuoted_ && text_.find_first_not_of(u' ') == std::u16string::npos;
}

void CsvParser::PassOn()
{
    fields_.clear();
    std::size_t start = 0;
    for (std::size_t field = 0; field < ends_.size(); ++field) {
        const auto text = std::u16string_view(text_).substr(start, ends_[field] - start);
        fields_.push_back({ text, text.empty() && !places_[field].isQuoted });
        start = ends_[field];
    }
    onRecord_({ fields_, places_, recordLine_ });
}

void CsvParser::BeginRecord()
{
    recordLine_ = line_;
    text_.clear();
    ends_.clear();
    places_.clear();
    fieldCount_ = 0;
    fieldStart_ = 0;
}

void CsvParser::Raise(std::uint64_t line, const std::string& message)
{
    throw LoadError("line " + std::to_string(line) + ": " + message);
}

} // namespace vornix::viewer
