// What the type written in CREATE TABLE says about a column's content.
#pragma once

#include <string_view>

namespace vornix::sqlite {

enum class DeclaredKind { None, Text, Integer, Real, Money, Date, DateTime, Boolean, Blob };

// Reads names such as VARCHAR(40), DECIMAL(10,2), BOOLEAN and TIMESTAMP, in any case. An exact number
// with no decimals is Integer, with two or an unstated number Money, with any other number Real.
// None for an empty or unknown type, which is what an expression in a query has.
DeclaredKind KindOfDeclaredType(std::string_view declaredType);

} // namespace vornix::sqlite
