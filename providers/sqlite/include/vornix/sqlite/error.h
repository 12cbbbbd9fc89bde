// What can go wrong while reading a database, in one line each.
#pragma once

#include <stdexcept>
#include <string>

namespace vornix::sqlite {

enum class ErrorKind {
    CannotOpen, // missing, a folder, or not permitted
    NotADatabase, // the file holds something else, or is encrypted
    InUse, // another program holds a lock on it
    Unfinished, // a change was begun, and only a program that may write can end it or take it back
    Damaged, // cut short or overwritten
    Sql, // the statement is wrong: syntax, unknown names, failing expressions
    NotAQuery, // the statement is fine but gives no rows to show, or would change something
    TooLong, // a value is longer than the library can hand over
    NoRoom, // the disk is full
    Constraint, // the table, a foreign key or a trigger does not take the change
    Stopped, // the progress function said so
    Other,
};

// what() is a single line without the file's name.
class Error : public std::runtime_error {
public:
    Error(ErrorKind kind, const std::string& message);
    ErrorKind Kind() const { return kind_; }

private:
    ErrorKind kind_;
};

} // namespace vornix::sqlite
