// Splits text into records and fields: separators, quotes, line breaks.
#pragma once

#include "loading.h"
#include "table.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace vornix::viewer {

// Fields are separated by one character; records end at CR, LF or CRLF. A field that begins with a quotation mark ends
// at the next one that is not doubled and may hold separators and line breaks; text after that closing mark, up to the
// separator, belongs to the field. A quotation mark inside an unquoted field is a character like any other. A field of
// no characters and no quotes is a null. Lines with nothing on them are passed over.
//
// Text comes in pieces of any size. Raises LoadError, naming the line (from 1; line breaks in quotes count).
class CsvParser {
public:
    // Where a field stands, its quotes included, in UTF-16 units of all the text fed.
    struct Place {
        std::uint64_t begin = 0;
        std::uint64_t end = 0;
        bool isQuoted = false;
    };
    // Valid during the call.
    struct Record {
        const std::vector<Field>& fields;
        const std::vector<Place>& places; // of the same fields
        std::uint64_t line = 1; // where it begins
    };
    using RecordFunction = std::function<void(const Record&)>;

    // A separator of 0 means that there is none: every line is one field.
    CsvParser(char16_t separator, const LoadLimits& limits, RecordFunction onRecord);

    void Feed(std::u16string_view text);
    // After the last piece: reports the last record, which needs no line break.
    void Finish();
    // The line that the text fed so far ends in.
    std::uint64_t Line() const { return line_; }

private:
    enum class State { FieldStart, Plain, Quoted, QuoteInQuoted };

    // Each takes what belongs to its state and returns the position of what it leaves.
    std::size_t BeginField(std::u16string_view text, std::size_t position);
    std::size_t TakePlain(std::u16string_view text, std::size_t position);
    std::size_t TakeQuoted(std::u16string_view text, std::size_t position);
    std::size_t EndQuotes(std::u16string_view text, std::size_t position);
    void Append(std::u16string_view text);
    // Each takes where in all of the text the field ends.
    void EndField(std::uint64_t place);
    void EndRecord(std::uint64_t place);
    void BeginRecord();
    bool IsBlankLine() const;
    void PassOn();
    [[noreturn]] static void Raise(std::uint64_t line, const std::string& message);

    char16_t separator_;
    LoadLimits limits_;
    RecordFunction onRecord_;

    State state_ = State::FieldStart;
    bool fieldWasQuoted_ = false;
    bool previousWasReturn_ = false; // a line feed that follows belongs to it
    std::uint64_t line_ = 1;
    std::uint64_t recordLine_ = 1;
    std::uint64_t fieldLine_ = 1;
    std::uint64_t pieceStart_ = 0; // units fed before the present piece
    std::uint64_t fieldPlace_ = 0; // where in all of the text the field begins
    std::size_t fieldStart_ = 0; // into text_
    std::size_t fieldCount_ = 0; // of the record so far; ends_ and places_ stop at the limit
    std::u16string text_; // the record's fields so far, one after the other
    std::vector<std::size_t> ends_; // into text_
    std::vector<Place> places_;
    std::vector<Field> fields_;
};

} // namespace vornix::viewer
