#include "invoke_fixture.h"

#include <limits>
#include <string>

namespace vornix {
namespace {

class LateBinding : public InvokeTest {
protected:
    LateBinding() { Table(3, 4, 1, 1); }
};

TEST_F(LateBinding, ReadsAndWritesPropertiesByName)
{
    Let("Text", { i16 { 0 }, i16 { 1 }, u"hello" });
    EXPECT_EQ(Get("Text", { i16 { 0 }, i16 { 1 } }), Variant(u"hello"));
    EXPECT_EQ(Grid().Text(0, 1), u"hello");
    Let("Rows", { i16 { 7 } });
    EXPECT_EQ(Get("Rows"), Variant(i16 { 7 }));
}

TEST_F(LateBinding, FindsNamesInAnyCase)
{
    EXPECT_EQ(Get("rows"), Variant(i16 { 3 }));
    EXPECT_EQ(Get("ROWS"), Variant(i16 { 3 }));
    EXPECT_EQ(FindMember("hdc"), FindMember("hDC"));
    EXPECT_EQ(FindMember("GETWIDTHHEIGHTCELL")->name, "getWidthHeightCell");
}

TEST_F(LateBinding, FindsEveryMemberAndNothingElse)
{
    EXPECT_EQ(Members().size(), 272u);
    for (const MemberInfo& member : Members())
        EXPECT_EQ(FindMember(member.name), &member);
    for (const char* name : { "", "Row", "Rowss", " Rows", "Rows ", "R\xC3\xB6ws", "Invoke", "Resize" })
        EXPECT_EQ(FindMember(name), nullptr) << name;
    EXPECT_EQ(FindMember(std::string_view("Rows\0", 5)), nullptr);
    EXPECT_EQ(FindMember(std::string(100000, 'R')), nullptr);
}

TEST_F(LateBinding, AnUnknownNameIsError438)
{
    EXPECT_EQ(Error("Nonsense", InvokeKind::Get), 438);
    EXPECT_EQ(Error("Nonsense", InvokeKind::Let, { i16 { 1 } }), 438);
    EXPECT_EQ(Error("", InvokeKind::Call), 438);
}

TEST_F(LateBinding, AMemberOfAnotherTableIsError438)
{
    const MemberInfo copy = *FindMember("Rows");
    std::vector<Variant> arguments;
    EXPECT_EQ(ErrorOf([&] { Grid().Invoke(copy, InvokeKind::Get, arguments); }), 438);
    EXPECT_EQ(Grid().Invoke(*FindMember("Rows"), InvokeKind::Get, arguments), Variant(i16 { 3 }));
}

TEST_F(LateBinding, AKindThatTheMemberDoesNotHaveIsError438)
{
    EXPECT_EQ(Error("ParentRow", InvokeKind::Let, { i16 { 0 }, i16 { 0 }, i16 { 0 } }), 438) << "read only";
    EXPECT_EQ(Error("ColBackColor", InvokeKind::Get, { i16 { 0 } }), 438) << "write only";
    EXPECT_EQ(Error("ColBackColor", InvokeKind::Call, { i16 { 0 } }), 438) << "write only";
    EXPECT_EQ(Error("HideRow", InvokeKind::Let, { i16 { 0 } }), 438) << "a method";
    EXPECT_EQ(Error("Rows", static_cast<InvokeKind>(9)), 438);
}

TEST_F(LateBinding, GetAndCallAreOneForWhatCanBeRead)
{
    EXPECT_EQ(Call("Rows"), Variant(i16 { 3 }));
    EXPECT_EQ(Call("ParentRow", { i16 { 1 }, i16 { 2 } }), Variant(i16 { 1 }));
    EXPECT_EQ(Get("ColorBrightness", { i32 { 0 }, i16 { 100 } }), Variant(std::int64_t { 0xFFFFFF }));
}

TEST_F(LateBinding, WhatIsNotBuiltIsError445BeforeItsArgumentsAreLookedAt)
{
    EXPECT_EQ(Error("ADOUpdate", InvokeKind::Call), 445);
    EXPECT_EQ(Error("ADOUpdate", InvokeKind::Call, { u"x", u"x", u"x" }), 445);
    EXPECT_EQ(Error("adoupdate", InvokeKind::Let), 438) << "but not before the kind";
    EXPECT_EQ(Error("VirtualPageSize", InvokeKind::Let, {}), 445) << "only the writing";
    EXPECT_EQ(Get("VirtualPageSize"), Variant(i16 { 0 }));
}

TEST_F(LateBinding, ConvertsWhatCanBeConverted)
{
    Let("Rows", { u"5" });
    EXPECT_EQ(Grid().Rows(), 5);
    Let("Rows", { 6.4 });
    EXPECT_EQ(Grid().Rows(), 6);
    Let("Rows", { 6.5 });
    EXPECT_EQ(Grid().Rows(), 6) << "to the even one";
    Let("Rows", { Variant::FromCurrency(75000) });
    EXPECT_EQ(Grid().Rows(), 8) << "to the even one";
    Let("Rows", { Variant() });
    EXPECT_EQ(Grid().Rows(), 0) << "empty is 0";
    Let("Text", { i16 { -1 }, u"-1", true });
    EXPECT_EQ(Grid().Text(-1, -1), u"True");
    Let("Text", { i16 { -1 }, false, Variant::FromDate(36526) });
    EXPECT_EQ(Grid().Text(-1, 0), u"1/1/2000");
    Let("CellEnabled", { i16 { -1 }, i16 { 0 }, u"False" });
    EXPECT_FALSE(Grid().CellEnabled(-1, 0));
    Let("BackColor", { i32 { static_cast<i32>(0x80000005) } });
    EXPECT_EQ(Grid().BackColor(), 0x80000005u);
}

TEST_F(LateBinding, AValueThatCannotBeConvertedIsError13)
{
    EXPECT_EQ(Error("Rows", InvokeKind::Let, { u"x" }), 13);
    EXPECT_EQ(Error("Rows", InvokeKind::Let, { u"" }), 13);
    EXPECT_EQ(Error("Text", InvokeKind::Get, { MakeFont(u"Serif", 9), i16 { 0 } }), 13);
    EXPECT_EQ(Error("Font", InvokeKind::Let, { i16 { 1 } }), 13);
    EXPECT_EQ(Error("Font", InvokeKind::Let, { MakePicture(0) }), 13);
    EXPECT_EQ(Grid().Rows(), 3);
}

TEST_F(LateBinding, AnIntegerOutOfItsWidthIsError6)
{
    EXPECT_EQ(Error("Rows", InvokeKind::Let, { i32 { 40000 } }), 6);
    EXPECT_EQ(Error("Rows", InvokeKind::Let, { i32 { -32769 } }), 6);
    EXPECT_EQ(Error("Rows", InvokeKind::Let, { u"40000" }), 6);
    EXPECT_EQ(Error("Rows", InvokeKind::Let, { 32767.5 }), 6);
    EXPECT_EQ(Error("PictureBrightness", InvokeKind::Let, { std::int64_t { 1 } << 31 }), 6);
    EXPECT_EQ(Error("BackColor", InvokeKind::Let, { std::int64_t { 1 } << 32 }), 6);
    EXPECT_EQ(Error("Rows", InvokeKind::Let, { std::numeric_limits<double>::quiet_NaN() }), 6);
}

TEST_F(LateBinding, NullIsError94WhereAValueIsWanted)
{
    EXPECT_EQ(Error("Rows", InvokeKind::Let, { Variant::Null() }), 94);
    EXPECT_EQ(Error("Text", InvokeKind::Let, { i16 { 0 }, i16 { 0 }, Variant::Null() }), 94);
    Grid().SetPicture(MakePicture(0));
    Let("Picture", { Variant::Null() });
    EXPECT_EQ(Grid().Picture(), nullptr) << "but is no picture";
}

TEST_F(LateBinding, TheFirstBadArgumentMakesTheError)
{
    EXPECT_EQ(Error("Text", InvokeKind::Get, { u"x", i32 { 40000 } }), 13);
    EXPECT_EQ(Error("Text", InvokeKind::Get, { i32 { 40000 }, u"x" }), 6);
    EXPECT_EQ(Error("Text", InvokeKind::Get, { i16 { 100 }, u"x" }), 13) << "before the member sees any";
}

TEST_F(LateBinding, ErrorsOfTheMemberComeThrough)
{
    EXPECT_EQ(Error("Text", InvokeKind::Get, { i16 { 100 }, i16 { 0 } }), 9);
    EXPECT_EQ(Error("Text", InvokeKind::Get, { i16 { 32767 }, i16 { 0 } }), 6);
    EXPECT_EQ(Error("Font", InvokeKind::Let, { FontPtr() }), 5);
}

TEST_F(LateBinding, AWrongNumberOfArgumentsIsError450)
{
    EXPECT_EQ(Error("Rows", InvokeKind::Get, { i16 { 1 } }), 450);
    EXPECT_EQ(Error("Rows", InvokeKind::Let), 450);
    EXPECT_EQ(Error("Rows", InvokeKind::Let, { i16 { 1 }, i16 { 1 } }), 450);
    EXPECT_EQ(Error("Text", InvokeKind::Get, { i16 { 1 } }), 450);
    EXPECT_EQ(Error("Text", InvokeKind::Get, { u"x", u"x", u"x" }), 450) << "before any is converted";
    EXPECT_EQ(Error("HideRow", InvokeKind::Call), 450);
    EXPECT_EQ(Error("HideRow", InvokeKind::Call, { i16 { 0 }, i16 { 1 }, i16 { 1 } }), 450);
}

TEST_F(LateBinding, OptionalArgumentsMayBeLeftOut)
{
    Call("HideRow", { i16 { 0 } });
    EXPECT_TRUE(Grid().RowHide(0));
    EXPECT_FALSE(Grid().RowHide(1));
    Call("HideRow", { i16 { 1 }, Variant::Missing() });
    EXPECT_TRUE(Grid().RowHide(1));
    EXPECT_FALSE(Grid().RowHide(2));
    Call("ShowRow", { i16 { 0 }, i16 { 2 } });
    EXPECT_FALSE(Grid().RowHide(0) || Grid().RowHide(1));
}

TEST_F(LateBinding, ARequiredArgumentLeftOutIsError450)
{
    EXPECT_EQ(Error("HideRow", InvokeKind::Call, { Variant::Missing() }), 450);
    EXPECT_EQ(Error("HideRow", InvokeKind::Call, { Variant::Missing(), i16 { 1 } }), 450);
    EXPECT_EQ(Error("Rows", InvokeKind::Let, { Variant::Missing() }), 450);
    EXPECT_EQ(Error("Text", InvokeKind::Get, { i16 { 0 }, Variant::Missing() }), 450);
}

TEST_F(LateBinding, TakesArgumentsByName)
{
    CallNamed("HideRow", { i16 { 2 }, i16 { 1 } }, { "Rows", "Row" });
    EXPECT_FALSE(Grid().RowHide(0));
    EXPECT_TRUE(Grid().RowHide(1));
    EXPECT_TRUE(Grid().RowHide(2));
    CallNamed("ShowRow", { i16 { 1 } }, { "row" });
    EXPECT_FALSE(Grid().RowHide(1)) << "in any case";
    CallNamed("ShowRow", { i16 { 2 }, i16 { 1 } }, { "ROWS" });
    EXPECT_FALSE(Grid().RowHide(2)) << "behind those without names";
}

TEST_F(LateBinding, TakesTheWrittenValueByName)
{
    std::vector<Variant> arguments { u"named", i16 { 2 }, i16 { 1 } };
    const std::vector<std::string_view> names { "Value", "Col", "Row" };
    Grid().Invoke("Text", InvokeKind::Let, arguments, names);
    EXPECT_EQ(Grid().Text(1, 2), u"named");
    EXPECT_EQ(ErrorOf([&] { Grid().Invoke("Text", InvokeKind::Get, arguments, names); }), 450);
}

TEST_F(LateBinding, AnUnknownNameOfAnArgumentIsError448)
{
    EXPECT_EQ(ErrorOf([&] { CallNamed("HideRow", { i16 { 0 } }, { "Line" }); }), 448);
    EXPECT_EQ(ErrorOf([&] { CallNamed("HideRow", { i16 { 0 }, i16 { 0 } }, { "Value" }); }), 448);
    EXPECT_EQ(ErrorOf([&] { CallNamed("HideRow", { i16 { 0 } }, { "" }); }), 448);
}

TEST_F(LateBinding, AnArgumentGivenTwiceIsError450)
{
    EXPECT_EQ(ErrorOf([&] { CallNamed("HideRow", { i16 { 0 }, i16 { 0 } }, { "Row" }); }), 450);
    EXPECT_EQ(ErrorOf([&] { CallNamed("HideRow", { i16 { 0 }, i16 { 0 } }, { "Row", "ROW" }); }), 450);
    EXPECT_EQ(ErrorOf([&] {
        CallNamed("HideRow", { i16 { 0 } }, { "Row", "Rows" });
    }),
        450)
        << "more names than values";
    EXPECT_EQ(ErrorOf([&] { CallNamed("HideRow", { i16 { 1 } }, { "Rows" }); }), 450) << "and the other not at all";
}

TEST_F(LateBinding, ResultsByReferenceComeBackInTheirPlaces)
{
    std::vector<Variant> arguments { i32 { 5 }, u"5", Variant(), u"0" };
    const Variant found = Grid().Invoke("GetCellAtPos", InvokeKind::Call, arguments);
    EXPECT_EQ(found, Variant(true));
    EXPECT_EQ(arguments[0], Variant(i32 { 5 }));
    EXPECT_EQ(arguments[1], Variant(u"5")) << "what only comes in stays as it was given";
    EXPECT_EQ(arguments[2], Variant(i16 { -1 })) << "with the declared type";
    EXPECT_EQ(arguments[3], Variant(i16 { -1 }));
}

TEST_F(LateBinding, ResultsByReferenceComeBackWhereTheirNamesStand)
{
    const int x = Grid().ColWidth(-1) + 5;
    std::vector<Variant> arguments { i32 { x }, i16 { 7 }, i16 { 8 }, i32 { 5 } };
    const std::vector<std::string_view> names { "Col", "Row", "y" };
    const Variant found = Grid().Invoke("GetCellAtPos", InvokeKind::Call, arguments, names);
    EXPECT_EQ(found, Variant(true));
    EXPECT_EQ(arguments, (std::vector<Variant> { i32 { x }, i16 { 0 }, i16 { -1 }, i32 { 5 } }));
}

TEST_F(LateBinding, NothingComesBackFromACallThatFails)
{
    std::vector<Variant> arguments { i16 { 100 }, i16 { 0 }, u"7", u"8" };
    EXPECT_EQ(ErrorOf([&] { Grid().Invoke("GetSizeCell", InvokeKind::Call, arguments); }), 9);
    EXPECT_EQ(arguments[2], Variant(u"7"));
    EXPECT_EQ(arguments[3], Variant(u"8"));
    arguments = { i16 { 0 }, i16 { 0 }, u"7", u"x" };
    EXPECT_EQ(ErrorOf([&] { Grid().Invoke("GetSizeCell", InvokeKind::Call, arguments); }), 13);
    EXPECT_EQ(arguments[2], Variant(u"7"));
}

TEST_F(LateBinding, AnOptionalArgumentByReferenceMayBeLeftOut)
{
    Let("Text", { i16 { 0 }, i16 { 0 }, u"a" });
    Let("Text", { i16 { 1 }, i16 { 0 }, u"a" });
    Call("SpanRows", { i16 { 0 } });
    EXPECT_EQ(Grid().ParentRow(1, 0), 0);
    Call("RemoveSpanRows", { i16 { 0 } });
    EXPECT_EQ(Grid().ParentRow(1, 0), 1);
    std::vector<Variant> arguments { i16 { 0 }, Variant::Missing() };
    Grid().Invoke("SpanRows", InvokeKind::Call, arguments);
    EXPECT_TRUE(arguments[1].IsMissing()) << "what was not given does not come back";
    arguments[1] = i16 { 0 };
    Grid().Invoke("SpanRows", InvokeKind::Call, arguments);
    EXPECT_EQ(arguments[1], Variant(false));
}

TEST_F(LateBinding, ResultsHaveTheirDeclaredTypes)
{
    EXPECT_EQ(Get("BackColor").Type(), VariantType::I64);
    Grid().SetBackColor(0x80000005);
    EXPECT_EQ(Get("BackColor"), Variant(std::int64_t { 0x80000005 })) << "a colour is never negative";
    EXPECT_EQ(Get("GridLines").Type(), VariantType::I32);
    EXPECT_EQ(Get("GetScaleWidth").Type(), VariantType::Single);
    EXPECT_EQ(Get("Font").Type(), VariantType::Font);
    EXPECT_EQ(Get("CellPicture", { i16 { 0 }, i16 { 0 } }), Variant(PicturePtr()));
    EXPECT_EQ(Get("hDC"), Variant(static_cast<std::int64_t>(Grid().hDC())));
    EXPECT_TRUE(Call("Refresh").IsEmpty());
}

TEST_F(LateBinding, LoadsArrays)
{
    auto array = std::make_shared<VariantArray>();
    array->columns = { { u"a", u"b" }, { i16 { 1 }, Variant::Null() } };
    Call("LoadFromArray", { Variant::FromArray(array) });
    EXPECT_EQ(Grid().Cols(), 2);
    EXPECT_EQ(Grid().Text(3, 0), u"a");
    EXPECT_EQ(Error("LoadFromArray", InvokeKind::Call, { Variant::FromArray(array), false }), 94);
    EXPECT_EQ(Error("LoadFromArray", InvokeKind::Call, { u"a" }), 13);
}

TEST_F(LateBinding, AClosedControlIsError5BeforeAnythingElse)
{
    Grid().Terminate();
    EXPECT_EQ(Error("Rows", InvokeKind::Get), 5);
    EXPECT_EQ(Error("Nonsense", InvokeKind::Get), 5);
    EXPECT_EQ(Error("InsertRows", InvokeKind::Call), 5);
    std::vector<Variant> arguments;
    EXPECT_EQ(ErrorOf([&] { Grid().Invoke(Members()[0], InvokeKind::Get, arguments); }), 5);
}

TEST_F(LateBinding, WorksInsideAHandlerOfAnEvent)
{
    Grid().SetCellStyle(0, 0, vxCustomDraw);
    std::vector<Variant> texts;
    handlers.OnDrawCell = [&](i16 Row, i16 Col, Hdc&, bool&) { texts.push_back(Get("Text", { Row, Col })); };
    Let("Text", { i16 { 0 }, i16 { 0 }, u"drawn" });
    EXPECT_THAT(texts, testing::ElementsAre(Variant(u"drawn")));
}

TEST_F(LateBinding, AControlThatIsClosedInsideACallEndsItInGoodOrder)
{
    Grid().SetCellStyle(0, 0, vxCustomDraw);
    std::optional<int> afterwards;
    handlers.OnDrawCell = [&](i16, i16, Hdc&, bool&) {
        Grid().Terminate();
        afterwards = Error("Rows", InvokeKind::Get);
    };
    Let("Text", { i16 { 0 }, i16 { 0 }, u"drawn" });
    EXPECT_EQ(afterwards, 5);
    EXPECT_TRUE(Grid().IsTerminated());
    EXPECT_FALSE(Grid().IsInCall());
}

TEST_F(LateBinding, MemoryThatIsShortIsError7)
{
    Grid().SetCellStyle(0, 0, vxCustomDraw);
    handlers.OnDrawCell = [](i16, i16, Hdc&, bool&) { throw std::bad_alloc(); };
    EXPECT_EQ(Error("RefreshCell", InvokeKind::Call, { i16 { 0 }, i16 { 0 } }), 7);
    EXPECT_FALSE(Grid().IsInCall());
}

TEST(ErrorDescriptions, AreThereForEveryNumber)
{
    for (const int number : { 5, 6, 7, 9, 13, 94, 438, 445, 448, 450 })
        EXPECT_EQ(AutomationError(number).Description().find("Automation error"), std::string::npos) << number;
}

} // namespace
} // namespace vornix
