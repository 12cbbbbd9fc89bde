#include "member_calls.h"

#include "vornix/vornix_constants.h"

#include <map>

namespace vornix::test {

namespace {

// What is passed in these tests and has to live as long as they do.
class Objects {
public:
    Objects()
    {
        vornix_font_info info {};
        info.name = View(u"DejaVu Sans Mono");
        info.size = 11;
        info.bold = 1;
        info.charset = 1;
        EXPECT_EQ(vornix_font_create(&info, &font_), 0);
        const std::uint8_t red[] = { 255, 0, 0, 255, 255, 0, 0, 255 };
        EXPECT_EQ(vornix_picture_from_rgba(2, 1, red, 8, &picture_), 0);
        EXPECT_EQ(vornix_array_create(3, 2, &array_), 0);
        const std::int64_t numbers[] = { 71, 72 };
        EXPECT_EQ(vornix_array_set_integers(array_, 1, VORNIX_I32, numbers, 2), 0);
    }
    ~Objects()
    {
        vornix_font_release(font_);
        vornix_picture_release(picture_);
        vornix_array_release(array_);
    }
    Objects(const Objects&) = delete;
    Objects& operator=(const Objects&) = delete;

    vornix_value Font() const
    {
        vornix_value value = Typed(VORNIX_FONT);
        value.as.font = font_;
        return value;
    }
    vornix_value Picture() const
    {
        vornix_value value = Typed(VORNIX_PICTURE);
        value.as.picture = picture_;
        return value;
    }
    vornix_value Array() const
    {
        vornix_value value = Typed(VORNIX_ARRAY);
        value.as.array = array_;
        return value;
    }

private:
    vornix_font* font_ = nullptr;
    vornix_picture* picture_ = nullptr;
    vornix_array* array_ = nullptr;
};

const Objects& TheObjects()
{
    static const Objects objects;
    return objects;
}

std::string Ascii(const std::u16string& text)
{
    return std::string(text.begin(), text.end());
}

// Of an index, a place or a number, by the argument's name.
vornix_value RightArgument(const vornix_argument_info& argument)
{
    static const std::map<std::string, int> numbers {
        { "Row", 1 },
        { "Row1", 1 },
        { "iRow", 1 },
        { "ParentRow", 1 },
        { "Row2", 2 }, //
        { "Col", 1 },
        { "Col1", 1 },
        { "iCol", 1 },
        { "ParentCol", 1 },
        { "Col2", 2 }, //
        { "Rows", 1 },
        { "Cols", 1 },
        { "Lines", 1 },
        { "index", 1 },
        { "Percent", -100 },
        { "AlphaPourcent", 50 }, //
        { "x", 150 },
        { "y", 50 },
    };
    switch (argument.type) {
    case VORNIX_TYPE_COLOR:
        return Integer(0xFFFFFF);
    case VORNIX_TYPE_TEXT:
        // A text that is nothing but the wildcard is an error.
        return Text(argument.name == std::string("Wildcard") ? u"*" : u"1");
    case VORNIX_TYPE_BOOLEAN:
        return Boolean(true);
    case VORNIX_TYPE_ARRAY:
        return SomeArray();
    default: {
        const auto found = numbers.find(argument.name);
        return Integer(found == numbers.end() ? 0 : found->second);
    }
    }
}

vornix_value RightValue(int type)
{
    switch (type) {
    case VORNIX_TYPE_I16:
        return Integer(2, VORNIX_I16);
    case VORNIX_TYPE_I32:
        return Integer(1);
    case VORNIX_TYPE_BOOLEAN:
        return Boolean(true);
    case VORNIX_TYPE_TEXT:
        return Text(u"written");
    case VORNIX_TYPE_COLOR:
        return Integer(0x123456);
    case VORNIX_TYPE_FONT:
        return SomeFont();
    case VORNIX_TYPE_PICTURE:
        return SomePicture();
    case VORNIX_TYPE_HANDLE:
        return Integer(0);
    default:
        ADD_FAILURE() << "no value for the type " << type;
        return {};
    }
}

} // namespace

vornix_value SomeFont()
{
    return TheObjects().Font();
}

vornix_value SomePicture()
{
    return TheObjects().Picture();
}

vornix_value SomeArray()
{
    return TheObjects().Array();
}

std::vector<Member> AllMembers()
{
    std::vector<Member> members;
    for (std::size_t i = 0; i < vornix_member_count(); ++i) {
        const vornix_member* const handle = vornix_member_at(i);
        members.push_back({ handle, *vornix_describe_member(handle) });
    }
    return members;
}

int InvokeMember(vornix_grid* grid, const Member& member, int kind, Values arguments, Result* result)
{
    return vornix_invoke_member(
        grid, member.handle, kind, arguments.data(), arguments.size(), result ? result->Address() : nullptr);
}

std::string Described(const vornix_value& value)
{
    switch (value.type) {
    case VORNIX_EMPTY:
        return "empty";
    case VORNIX_I16:
        return "i16 " + std::to_string(value.as.integer);
    case VORNIX_I32:
        return "i32 " + std::to_string(value.as.integer);
    case VORNIX_I64:
        return "i64 " + std::to_string(value.as.integer);
    case VORNIX_SINGLE:
        return "single " + std::to_string(value.as.number);
    case VORNIX_BOOLEAN:
        return value.as.integer ? "true" : "false";
    case VORNIX_TEXT:
        return "text " + Ascii(ToString(value.as.text));
    case VORNIX_FONT: {
        vornix_font_info info {};
        EXPECT_EQ(vornix_font_describe(value.as.font, &info), 0);
        return "font " + Ascii(ToString(info.name)) + (info.bold ? " bold" : "");
    }
    case VORNIX_PICTURE: {
        vornix_picture_info info {};
        if (value.as.picture == nullptr)
            return "no picture";
        EXPECT_EQ(vornix_picture_describe(value.as.picture, &info), 0);
        return "picture of type " + std::to_string(info.type);
    }
    default:
        return "a value of type " + std::to_string(value.type);
    }
}

Values RightArguments(const Member& member)
{
    Values arguments;
    for (std::size_t i = 0; i < member.info.argument_count; ++i)
        arguments.push_back(RightArgument(member.info.arguments[i]));
    return arguments;
}

Writing WritingOf(const Member& member)
{
    // Without a bar the view stays at its start, and nothing is split off.
    const auto scrolls = [](vornix_grid* grid) {
        LetOk(grid, "Rows", { Integer(200) });
        LetOk(grid, "Cols", { Integer(20) });
    };
    const auto splits = [=](vornix_grid* grid) {
        scrolls(grid);
        LetOk(grid, "ShowSplit", { Boolean(true) });
    };
    const auto edits = [](vornix_grid* grid) {
        LetOk(grid, "CellMode", { Integer(1), Integer(1), Integer(vxTextBox) });
        CallOk(grid, "CurrentPos", { Integer(1), Integer(1) });
        CallOk(grid, "EnterEdit");
    };
    const std::map<std::string, Writing> special {
        // Off is what the default is not.
        { "Redraw", { Boolean(false) } },
        { "CellEnabled", { Boolean(false) } },
        { "ColEnabled", { Boolean(false) } },
        { "ColResize", { Boolean(false) } },
        { "RowResize", { Boolean(false) } },
        { "RowEnabled", { Boolean(false) } },
        { "CheckEnable", { Boolean(false) } },
        { "ResizingRows", { Boolean(false) } },
        // vxNoPrefix is always among the common flags.
        { "CommonTextAlign", { Integer(vxTxtVCenter), "i32 " + std::to_string(vxTxtVCenter | vxNoPrefix) } },
        // Writing does nothing.
        { "ScrollBarSize", { Integer(5), "i16 17" } },
        { "ScrollBarStyle", { Integer(vxSBFlat), "i32 0" } },
        // Only while a split is shown, and below the last column.
        { "SplitCols", { Integer(1), "", splits } },
        { "ColWidth", { Integer(55) } },
        { "RowHeight", { Integer(33) } },
        { "Rows", { Integer(6) } },
        { "Cols", { Integer(5) } },
        { "FirstRow", { Integer(1), "", scrolls } },
        { "FirstCol", { Integer(1), "", scrolls } },
        { "LastRow", { Integer(150), "", scrolls } },
        { "LastCol", { Integer(15), "", scrolls } },
        { "Caption", { Text(u"title") } },
        // What takes the place of the selection is not selected.
        { "SelText", { Text(u"written"), "text ", edits } },
    };
    const auto found = special.find(member.info.name);
    return found == special.end() ? Writing { RightValue(member.info.type) } : found->second;
}

std::string DescribedGet(vornix_grid* grid, const char* name, Values arguments)
{
    return Described(Get(grid, name, std::move(arguments)).Value());
}

void LetOk(vornix_grid* grid, const char* name, Values arguments)
{
    EXPECT_EQ(Let(grid, name, std::move(arguments)), 0) << name << ": " << vornix_last_error();
}

void CallOk(vornix_grid* grid, const char* name, Values arguments)
{
    EXPECT_EQ(Call(grid, name, std::move(arguments)), 0) << name << ": " << vornix_last_error();
}

} // namespace vornix::test
