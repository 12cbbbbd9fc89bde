#include "text_output.h"

#include <gtest/gtest.h>

#include <sstream>

using namespace vornix::viewer;

TEST(WriteAsText, QuotesOnlyWhereItIsNeeded)
{
    Table table;
    table.Columns() = { { u"name" }, { u"a\tb" }, { u"paid", ColumnKind::Boolean } };
    const Field first[] = { { u"Ọlá 😀, \"so\"" }, { u"two\nlines" }, { u"-1" } };
    const Field second[] = { { u"\"quoted\"" }, { u"" }, { u"0" } };
    const Field third[] = { { u"", true }, { u"tab\there" } };
    table.AppendRow(first);
    table.AppendRow(second);
    table.AppendRow(third);
    std::ostringstream output;
    WriteAsText(table, output);
    EXPECT_EQ(output.str(),
        "name\t\"a\tb\"\tpaid\n"
        "Ọlá 😀, \"so\"\t\"two\nlines\"\ttrue\n"
        "\"\"\"quoted\"\"\"\t\"\"\tfalse\n"
        "\t\"tab\there\"\t\n");
}
