#include "vornix/sqlite/declared_kind.h"

#include <gtest/gtest.h>

using namespace vornix::sqlite;

TEST(DeclaredKind, ReadsTheUsualNamesInAnyCase)
{
    EXPECT_EQ(KindOfDeclaredType("VARCHAR(40)"), DeclaredKind::Text);
    EXPECT_EQ(KindOfDeclaredType("text"), DeclaredKind::Text);
    EXPECT_EQ(KindOfDeclaredType("Integer"), DeclaredKind::Integer);
    EXPECT_EQ(KindOfDeclaredType("UNSIGNED BIG INT"), DeclaredKind::Integer);
    EXPECT_EQ(KindOfDeclaredType("double precision"), DeclaredKind::Real);
    EXPECT_EQ(KindOfDeclaredType("REAL"), DeclaredKind::Real);
    EXPECT_EQ(KindOfDeclaredType("BLOB"), DeclaredKind::Blob);
}

TEST(DeclaredKind, TellsDatesFromTimestampsAndBooleansFromIntegers)
{
    EXPECT_EQ(KindOfDeclaredType("DATE"), DeclaredKind::Date);
    EXPECT_EQ(KindOfDeclaredType("DATETIME"), DeclaredKind::DateTime);
    EXPECT_EQ(KindOfDeclaredType("timestamp with time zone"), DeclaredKind::DateTime);
    EXPECT_EQ(KindOfDeclaredType("BOOLEAN"), DeclaredKind::Boolean);
    EXPECT_EQ(KindOfDeclaredType("bool"), DeclaredKind::Boolean);
    EXPECT_EQ(KindOfDeclaredType("BIT"), DeclaredKind::Boolean);
}

TEST(DeclaredKind, TakesExactNumbersByTheirDecimals)
{
    EXPECT_EQ(KindOfDeclaredType("DECIMAL(10,2)"), DeclaredKind::Money);
    EXPECT_EQ(KindOfDeclaredType("numeric( 10 , 2 )"), DeclaredKind::Money);
    EXPECT_EQ(KindOfDeclaredType("NUMERIC"), DeclaredKind::Money);
    EXPECT_EQ(KindOfDeclaredType("MONEY"), DeclaredKind::Money);
    EXPECT_EQ(KindOfDeclaredType("DECIMAL(10,0)"), DeclaredKind::Integer);
    EXPECT_EQ(KindOfDeclaredType("DECIMAL(10)"), DeclaredKind::Integer);
    EXPECT_EQ(KindOfDeclaredType("DECIMAL(10,4)"), DeclaredKind::Real);
}

TEST(DeclaredKind, IsNoneForNothingAndForUnknownNames)
{
    EXPECT_EQ(KindOfDeclaredType(""), DeclaredKind::None);
    EXPECT_EQ(KindOfDeclaredType("GEOGRAPHY"), DeclaredKind::None);
    EXPECT_EQ(KindOfDeclaredType("DECIMAL(10,"), DeclaredKind::Money);
}
