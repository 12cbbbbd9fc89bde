// A query being read, row by row.
#pragma once

#include "vornix/sqlite/declared_kind.h"
#include "vornix/sqlite/value.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

namespace vornix::sqlite {

enum class ValueType { Null, Integer, Real, Text, Blob };

// Columns count from 0. A value can be read between a Next() that gave true and the following call of Next().
// The database must outlive the statement.
class Statement {
public:
    int ColumnCount() const { return columnCount_; }
    // UTF-16 name: the alias, or the column's own name.
    std::u16string ColumnName(int column) const;
    // As written in CREATE TABLE, also through views; empty for an expression.
    std::string DeclaredType(int column) const;
    DeclaredKind Kind(int column) const { return KindOfDeclaredType(DeclaredType(column)); }

    // The value of a parameter, which count from 1; before the first Next() or after Reset(). Raises Error.
    void Bind(int parameter, const Value& value);
    // Back to before the first row; the parameters keep their values.
    void Reset();

    // Steps to the next row; false after the last one. Raises Error.
    bool Next();

    ValueType Type(int column) const;
    std::int64_t Integer(int column) const;
    double Real(int column) const;
    // The bytes of a text as stored, or of a blob; 0 for a null. For a check before Text() makes a copy.
    std::size_t ByteCount(int column) const;
    // UTF-16; bytes that are no text read as U+FFFD. Valid until the next call on the same column. Raises Error
    // (TooLong).
    std::u16string_view Text(int column) const;
    // Of a text, in UTF-8, or of a blob, as stored as long as Text() of the column was not asked for; empty for anything
    // else. Valid until the next call on the same column.
    std::string_view Bytes(int column) const;
    Value ValueOf(int column) const;

private:
    friend class Database;
    struct Finalizer {
        void operator()(sqlite3_stmt* statement) const;
    };

    Statement(sqlite3* connection, sqlite3_stmt* statement);

    sqlite3* connection_;
    std::unique_ptr<sqlite3_stmt, Finalizer> statement_;
    int columnCount_;
};

} // namespace vornix::sqlite
