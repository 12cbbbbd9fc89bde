#include "vornix/sqlite/statement.h"

#include "raise.h"

namespace vornix::sqlite {

void Statement::Finalizer::operator()(sqlite3_stmt* statement) const
{
    sqlite3_finalize(statement);
}

Statement::Statement(sqlite3* connection, sqlite3_stmt* statement)
    : connection_(connection)
    , statement_(statement)
    , columnCount_(sqlite3_column_count(statement))
{
}

std::u16string Statement::ColumnName(int column) const
{
    const auto* name = static_cast<const char16_t*>(sqlite3_column_name16(statement_.get(), column));
    return name ? std::u16string(name) : std::u16string();
}

std::string Statement::DeclaredType(int column) const
{
    const char* type = sqlite3_column_decltype(statement_.get(), column);
    return type ? type : "";
}

namespace {

struct Binder {
    sqlite3_stmt* statement;
    int parameter;

    int operator()(std::monostate) const { return sqlite3_bind_null(statement, parameter); }
    int operator()(std::int64_t value) const { return sqlite3_bind_int64(statement, parameter, value); }
    int operator()(double value) const { return sqlite3_bind_double(statement, parameter, value); }
    int operator()(const std::string& text) const
    {
        return sqlite3_bind_text64(statement, parameter, text.data(), text.size(), CopyOf(), SQLITE_UTF8);
    }
    int operator()(const Blob& blob) const
    {
        return sqlite3_bind_blob64(statement, parameter, blob.bytes.data(), blob.bytes.size(), CopyOf());
    }

    // SQLITE_TRANSIENT without its cast.
    static sqlite3_destructor_type CopyOf() { return reinterpret_cast<sqlite3_destructor_type>(std::intptr_t(-1)); }
};

} // namespace

void Statement::Bind(int parameter, const Value& value)
{
    const int result = std::visit(Binder { statement_.get(), parameter }, value);
    if (result != SQLITE_OK)
        throw ErrorOf(connection_, result);
}

void Statement::Reset()
{
    sqlite3_reset(statement_.get());
}

bool Statement::Next()
{
    const int result = sqlite3_step(statement_.get());
    if (result == SQLITE_ROW)
        return true;
    if (result == SQLITE_DONE)
        return false;
    throw ErrorOf(connection_, result);
}

ValueType Statement::Type(int column) const
{
    switch (sqlite3_column_type(statement_.get(), column)) {
    case SQLITE_INTEGER:
        return ValueType::Integer;
    case SQLITE_FLOAT:
        return ValueType::Real;
    case SQLITE_TEXT:
        return ValueType::Text;
    case SQLITE_BLOB:
        return ValueType::Blob;
    default:
        return ValueType::Null;
    }
}

std::int64_t Statement::Integer(int column) const
{
    return sqlite3_column_int64(statement_.get(), column);
}

double Statement::Real(int column) const
{
    return sqlite3_column_double(statement_.get(), column);
}

std::size_t Statement::ByteCount(int column) const
{
    return static_cast<std::size_t>(sqlite3_column_bytes(statement_.get(), column));
}

std::u16string_view Statement::Text(int column) const
{
    const auto* text = static_cast<const char16_t*>(sqlite3_column_text16(statement_.get(), column));
    const auto bytes = static_cast<std::size_t>(sqlite3_column_bytes16(statement_.get(), column));
    if (!text && sqlite3_column_type(statement_.get(), column) != SQLITE_NULL)
        throw Error(ErrorKind::TooLong, "a text of the database is too long");
    return text ? std::u16string_view(text, bytes / sizeof(char16_t)) : std::u16string_view();
}

std::string_view Statement::Bytes(int column) const
{
    const ValueType type = Type(column);
    if (type != ValueType::Text && type != ValueType::Blob)
        return {};
    const void* const bytes = type == ValueType::Text ? sqlite3_column_text(statement_.get(), column)
                                                      : sqlite3_column_blob(statement_.get(), column);
    return { static_cast<const char*>(bytes), bytes ? ByteCount(column) : 0 };
}

Value Statement::ValueOf(int column) const
{
    switch (Type(column)) {
    case ValueType::Integer:
        return Integer(column);
    case ValueType::Real:
        return Real(column);
    case ValueType::Text:
        return std::string(Bytes(column));
    case ValueType::Blob:
        return Blob { std::string(Bytes(column)) };
    default:
        return std::monostate();
    }
}

} // namespace vornix::sqlite
