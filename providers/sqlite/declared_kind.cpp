#include "vornix/sqlite/declared_kind.h"

#include <algorithm>
#include <charconv>
#include <string>

namespace vornix::sqlite {

namespace {

std::string UpperCase(std::string_view text)
{
    std::string upper(text);
    std::transform(upper.begin(), upper.end(), upper.begin(),
        [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
    return upper;
}

// The number of decimals in DECIMAL(10,2); 0 for DECIMAL(10), -1 when nothing is stated.
int StatedDecimals(const std::string& type)
{
    const auto open = type.find('(');
    if (open == std::string::npos)
        return -1;
    const auto comma = type.find(',', open);
    if (comma == std::string::npos)
        return 0;
    const auto digits = type.find_first_not_of(' ', comma + 1);
    if (digits == std::string::npos)
        return -1;
    int decimals = -1;
    std::from_chars(type.data() + digits, type.data() + type.size(), decimals);
    return decimals;
}

DeclaredKind KindOfExactNumber(const std::string& type)
{
    const int decimals = StatedDecimals(type);
    if (decimals == 0)
        return DeclaredKind::Integer;
    return decimals == 2 || decimals < 0 ? DeclaredKind::Money : DeclaredKind::Real;
}

} // namespace

DeclaredKind KindOfDeclaredType(std::string_view declaredType)
{
    const std::string type = UpperCase(declaredType);
    const auto has = [&](std::string_view part) { return type.find(part) != std::string::npos; };

    if (has("BOOL") || type == "BIT" || type == "BIT(1)")
        return DeclaredKind::Boolean;
    if (has("DATETIME") || has("TIMESTAMP"))
        return DeclaredKind::DateTime;
    if (has("DATE"))
        return DeclaredKind::Date;
    if (has("MONEY") || has("CURRENCY"))
        return DeclaredKind::Money;
    if (has("DECIMAL") || has("NUMERIC"))
        return KindOfExactNumber(type);
    if (has("INT"))
        return DeclaredKind::Integer;
    if (has("CHAR") || has("CLOB") || has("TEXT"))
        return DeclaredKind::Text;
    if (has("REAL") || has("FLOA") || has("DOUB"))
        return DeclaredKind::Real;
    return has("BLOB") ? DeclaredKind::Blob : DeclaredKind::None;
}

} // namespace vornix::sqlite
