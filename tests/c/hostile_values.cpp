#include "hostile_values.h"

#include <cmath>
#include <limits>

namespace vornix::test {

namespace {

using DoubleLimits = std::numeric_limits<double>;

constexpr std::array<std::int64_t, 18> OddIntegers { 0, 1, -1, 2, 7, 16, 255, -32768, -32767, 32767, 32768, -32769,
    65536, 2147483647, -2147483648LL, 4294967295LL, std::numeric_limits<std::int64_t>::min(),
    std::numeric_limits<std::int64_t>::max() };

const std::array<double, 16> OddNumbers { 0.0, -0.0, 0.5, 1.5, -1, 2.5, 32767.5, -32768.5, 2147483647.5, 1e19, 1e300,
    -1e300, DoubleLimits::infinity(), -DoubleLimits::infinity(), DoubleLimits::quiet_NaN(),
    DoubleLimits::denorm_min() };

} // namespace

HostileValues::HostileValues(Chance& chance)
    : chance_(chance)
{
    MakeTexts();
    MakeFonts();
    MakePictures();
    MakeArrays();
    static int pointed = 0;
    vornix_object* object = nullptr;
    EXPECT_EQ(vornix_object_create(&pointed, nullptr, &object), 0);
    objects_.push_back(object);
}

HostileValues::~HostileValues()
{
    for (vornix_font* each : fonts_)
        vornix_font_release(each);
    for (vornix_picture* each : pictures_)
        vornix_picture_release(each);
    for (vornix_array* each : arrays_)
        vornix_array_release(each);
    for (vornix_object* each : objects_)
        vornix_object_release(each);
}

void HostileValues::MakeTexts()
{
    texts_ = { u"", u" ", u"0", u"1", u"-1", u"2", u"true", u"False", u"x", u"1.5", u"40000", u"-3000000000", u"1e400",
        u"12/31/9999", u"2/30/2024", u"&h7FFF", u"#,##0.00;(#,##0.00);\"zero\"", u"[Red", u"\"", u"\\", u"&&&&a&",
        u"General Date", u"@@@@@!", u"ColumnA", u"a\tb\r\nc\nd", u"\u0634\u0631\u0643\u0629 \u05D0\u05D1\u05D2 abc",
        u"\u4E2D\u6587 \U0001F600 e\u0301\u0301\u0301", u"DejaVu Sans" };
    texts_.push_back(std::u16string(1, u'\0'));
    texts_.push_back(std::u16string(3, u'\0') + u"after");
    texts_.push_back(std::u16string(1, 0xD800));
    texts_.push_back({ 0xDC00, 0xD800, u'a', 0xDFFF, 0xFFFE, 0xFFFF });
    texts_.push_back(std::u16string(300, u'w'));
    texts_.push_back(std::u16string(200, u'\n'));
}

void HostileValues::MakeFonts()
{
    const std::u16string noName;
    for (const double size : { 9.0, 0.001, 32767.0 }) {
        for (const std::u16string& name : { texts_.back(), noName, std::u16string(u"DejaVu Sans"), texts_[30] }) {
            vornix_font_info info {};
            info.name = View(name);
            info.size = size;
            info.bold = info.strikethrough = size > 1;
            info.charset = 255;
            vornix_font* font = nullptr;
            EXPECT_EQ(vornix_font_create(&info, &font), 0);
            fonts_.push_back(font);
        }
    }
}

void HostileValues::MakePictures()
{
    for (const auto& [width, height] : { std::pair { 0, 0 }, { 1, 1 }, { 1, 40 }, { 60, 30 } }) {
        std::vector<std::uint8_t> rgba(static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * 4);
        for (const int alpha : { 255, 0, 100 }) {
            for (std::size_t i = 0; i < rgba.size(); ++i)
                rgba[i] = static_cast<std::uint8_t>(i % 4 == 3 ? static_cast<std::size_t>(alpha) : i * 37);
            vornix_picture* picture = nullptr;
            EXPECT_EQ(vornix_picture_from_rgba(width, height, rgba.data(), rgba.size(), &picture), 0);
            pictures_.push_back(picture);
        }
    }
}

void HostileValues::MakeArrays()
{
    for (const auto& [columns, records] :
        { std::pair<std::size_t, std::size_t> { 0, 0 }, { 0, 5 }, { 5, 0 }, { 1, 1 }, { 3, 4 }, { 8, 2 } }) {
        vornix_array* array = nullptr;
        EXPECT_EQ(vornix_array_create(columns, records, &array), 0);
        for (std::size_t c = 0; c < columns; ++c) {
            for (std::size_t r = 0; r < records; ++r) {
                const vornix_value value = Any();
                vornix_array_set(array, c, r, &value);
            }
        }
        arrays_.push_back(array);
    }
}

std::int64_t HostileValues::Index()
{
    if (!chance_.OneIn(6))
        return chance_.Between(-2, 4);
    if (chance_.OneIn(2))
        return chance_.Between(-32768, 32767);
    return chance_.Of(OddIntegers);
}

std::int64_t HostileValues::AnyInteger()
{
    if (chance_.OneIn(8))
        return static_cast<std::int64_t>(chance_.Bits());
    return chance_.OneIn(2) ? chance_.Of(OddIntegers) : chance_.Between(-70000, 70000);
}

double HostileValues::AnyNumber()
{
    if (chance_.OneIn(2))
        return chance_.Of(OddNumbers);
    return static_cast<double>(static_cast<std::int64_t>(chance_.Bits())) * std::pow(10.0, chance_.Between(-20, 5));
}

float HostileValues::Coordinate()
{
    if (chance_.OneIn(10))
        return static_cast<float>(chance_.Of(OddNumbers));
    return static_cast<float>(chance_.Between(-20, 250)) / 2;
}

vornix_value HostileValues::Handle(int type)
{
    vornix_value value = Typed(type);
    if (type == VORNIX_FONT)
        value.as.font = chance_.Of(fonts_);
    else if (type == VORNIX_PICTURE)
        value.as.picture = chance_.Of(pictures_);
    else if (type == VORNIX_ARRAY)
        value.as.array = chance_.Of(arrays_);
    else
        value.as.object = chance_.Of(objects_);
    return value;
}

vornix_value HostileValues::Any()
{
    vornix_value value = Typed(chance_.OneIn(50) ? static_cast<int>(chance_.Below(65536)) : chance_.Between(0, 16));
    value.reserved = static_cast<std::uint32_t>(chance_.Bits());
    switch (value.type) {
    case VORNIX_SINGLE:
    case VORNIX_DOUBLE:
    case VORNIX_DATE:
        value.as.number = AnyNumber();
        break;
    case VORNIX_DECIMAL:
        value.as.decimal = { chance_.Bits(), static_cast<std::uint32_t>(chance_.Bits()),
            static_cast<std::uint8_t>(chance_.Below(40)), static_cast<std::uint8_t>(chance_.Below(3)) };
        break;
    case VORNIX_TEXT:
        value.as.text = View(AnyText());
        break;
    case VORNIX_FONT:
    case VORNIX_PICTURE:
    case VORNIX_OBJECT:
    case VORNIX_ARRAY:
        return Handle(value.type);
    default:
        value.as.integer = AnyInteger();
        break;
    }
    return value;
}

vornix_value HostileValues::For(int declaredType)
{
    if (chance_.OneIn(8))
        return Any();
    switch (declaredType) {
    case VORNIX_TYPE_TEXT:
        return Text(AnyText());
    case VORNIX_TYPE_BOOLEAN:
        return Boolean(chance_.OneIn(2));
    case VORNIX_TYPE_FONT:
        return Handle(VORNIX_FONT);
    case VORNIX_TYPE_PICTURE:
        return Handle(VORNIX_PICTURE);
    case VORNIX_TYPE_OBJECT:
        return Handle(VORNIX_OBJECT);
    case VORNIX_TYPE_ARRAY:
        return Handle(VORNIX_ARRAY);
    case VORNIX_TYPE_COLOR:
        return Integer(
            chance_.OneIn(4) ? AnyInteger() : static_cast<std::int64_t>(chance_.Below(0x1000000)), VORNIX_I64);
    default:
        return Integer(Index(), VORNIX_I64);
    }
}

} // namespace vornix::test
