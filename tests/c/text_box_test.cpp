#include "c_grid.h"

#include <functional>
#include <thread>

namespace vornix::test {
namespace {

class CTextBox : public testing::Test {
protected:
    CTextBox()
    {
        EXPECT_EQ(vornix_text_box_create(nullptr, &box), 0);
        EXPECT_EQ(vornix_text_box_set_callback(box, &CTextBox::OnEvent, this), 0);
    }
    ~CTextBox() override { EXPECT_EQ(vornix_text_box_destroy(box), 0); }

    std::int32_t Call(const char* name, Values arguments = {})
    {
        return vornix_text_box_invoke(box, name, VORNIX_CALL, arguments.data(), arguments.size(), nullptr);
    }
    std::int32_t Let(const char* name, vornix_value value)
    {
        return vornix_text_box_invoke(box, name, VORNIX_LET, &value, 1, nullptr);
    }
    static Result Get(vornix_text_box* from, const char* name)
    {
        Result result;
        EXPECT_EQ(vornix_text_box_invoke(from, name, VORNIX_GET, nullptr, 0, result.Address()), 0) << name;
        return result;
    }
    std::u16string ReadText(const char* name = "Text") { return Get(box, name).ToText(); }

    vornix_text_box* box = nullptr;
    std::vector<std::string> said;
    std::function<void(int, vornix_value*)> handler;

private:
    static void OnEvent(
        void* user, vornix_text_box* /*box*/, std::int32_t number, vornix_value* arguments, std::size_t count)
    {
        auto& test = *static_cast<CTextBox*>(user);
        std::string line = std::to_string(number);
        for (std::size_t i = 0; i < count; ++i)
            line += ' ' + std::to_string(arguments[i].as.integer);
        test.said.push_back(line);
        if (test.handler)
            test.handler(number, arguments);
    }
};

TEST_F(CTextBox, HasMembersByName)
{
    EXPECT_EQ(Let("text", Text(u"some")), 0);
    EXPECT_EQ(ReadText(), u"some");
    EXPECT_EQ(Call("InitializeTextBox", { Integer(1), Boolean(true) }), 0);
    EXPECT_EQ(Get(box, "Alignment").ToInteger(), 1);
    EXPECT_EQ(Call("InitializeTextBox", { Integer(1) }), 450);
    EXPECT_EQ(Let("TextInput", Text(u"x")), 438);
    EXPECT_EQ(Call("Rows"), 438);
    EXPECT_EQ(Let("MaxLength", Text(u"many")), 13);
    EXPECT_EQ(Call("OLEDrag"), 445);
    EXPECT_EQ(vornix_text_box_invoke(box, "Text", 7, nullptr, 0, nullptr), 5);
    EXPECT_EQ(vornix_text_box_invoke(box, nullptr, VORNIX_GET, nullptr, 0, nullptr), 5);
    EXPECT_EQ(vornix_text_box_invoke(box, "InitializeTextBox", VORNIX_CALL, nullptr, 2, nullptr), 5);
    EXPECT_TRUE(said.empty());
}

TEST_F(CTextBox, TellsWhatItsUserDoes)
{
    ASSERT_EQ(vornix_text_box_type(box, View(u"a")), 0);
    EXPECT_EQ(said, (std::vector<std::string> { "14 65 0", "13 97", "1", "12 65 0" }));
    said.clear();
    ASSERT_EQ(vornix_text_box_press(box, "home", 0), 0);
    ASSERT_EQ(vornix_text_box_press_code(box, 37, 0), 0);
    EXPECT_EQ(said, (std::vector<std::string> { "14 36 0", "12 36 0", "14 37 0", "17 37", "12 37 0" }));
    said.clear();
    std::int16_t code = 46;
    ASSERT_EQ(vornix_text_box_key_down(box, &code, 0), 0);
    EXPECT_EQ(code, 46);
    EXPECT_EQ(ReadText(), u"");
    ASSERT_EQ(vornix_text_box_paste(box, View(u"pasted")), 0);
    EXPECT_EQ(ReadText(), u"pasted");
    EXPECT_EQ(said, (std::vector<std::string> { "14 46 0", "1", "1" }));
}

TEST_F(CTextBox, WhatHandlersSetComesBack)
{
    handler = [](int number, vornix_value* arguments) {
        if (number == VORNIX_TEXT_BOX_KEY_PRESS)
            arguments[0] = Integer(u'y');
    };
    std::int16_t character = u'x';
    ASSERT_EQ(vornix_text_box_key_press(box, &character, 0), 0);
    EXPECT_EQ(character, u'y');
    EXPECT_EQ(ReadText(), u"y");
    handler = [](int, vornix_value* arguments) { arguments[0] = Text(u"many"); };
    std::int16_t code = 65;
    EXPECT_EQ(vornix_text_box_key_up(box, &code, 0), 13) << "a value that does not fit fails the call";
    EXPECT_EQ(code, 65);
    handler = [](int, vornix_value* arguments) { arguments[0] = Integer(70000); };
    EXPECT_EQ(vornix_text_box_key_up(box, &code, 0), 6);
    handler = nullptr;
    EXPECT_EQ(vornix_text_box_key_up(box, &code, 0), 0) << "the next one does not";
}

TEST_F(CTextBox, AMaskShapesWhatComes)
{
    ASSERT_EQ(Let("Mask", Text(u"00-00")), 0);
    ASSERT_EQ(vornix_text_box_type(box, View(u"1x2")), 0);
    EXPECT_EQ(ReadText("TextInput"), u"12");
}

TEST_F(CTextBox, CannotBeDestroyedInItsOwnEvent)
{
    handler = [this](int, vornix_value*) { EXPECT_EQ(vornix_text_box_destroy(box), 5); };
    EXPECT_EQ(vornix_text_box_type(box, View(u"a")), 0);
    EXPECT_EQ(said.size(), 4u);
}

TEST_F(CTextBox, BelongsToItsThread)
{
    std::thread other([&] { EXPECT_EQ(vornix_text_box_type(box, View(u"a")), 5); });
    other.join();
}

TEST_F(CTextBox, IsSavedAndReadAgain)
{
    vornix_font_info font {};
    font.name = View(u"DejaVu Serif");
    font.size = 12;
    vornix_value value = Typed(VORNIX_FONT);
    ASSERT_EQ(vornix_font_create(&font, &value.as.font), 0);
    ASSERT_EQ(Let("Font", value), 0);
    vornix_font_release(value.as.font);
    ASSERT_EQ(Let("Text", Text(u"kept")), 0);
    ASSERT_EQ(Let("Locked", Boolean(true)), 0);

    std::size_t count = 0;
    ASSERT_EQ(vornix_text_box_save(box, nullptr, 0, &count), 0);
    ASSERT_GE(count, 3u);
    std::vector<vornix_bag_entry> entries(count);
    ASSERT_EQ(vornix_text_box_save(box, entries.data(), count, &count), 0);
    vornix_text_box_options options {};
    options.size = sizeof options;
    options.width = 60;
    options.has_bag = 1;
    options.bag = entries.data();
    options.bag_count = count;
    vornix_text_box* other = nullptr;
    ASSERT_EQ(vornix_text_box_create(&options, &other), 0);
    for (vornix_bag_entry& entry : entries)
        vornix_value_clear(&entry.value);
    EXPECT_EQ(Get(other, "Text").ToText(), u"kept");
    EXPECT_EQ(Get(other, "FontName").ToText(), u"DejaVu Serif");
    EXPECT_EQ(Get(other, "Locked").ToInteger(), -1);
    std::int32_t width = 0;
    std::int32_t height = 0;
    ASSERT_EQ(vornix_text_box_size(other, &width, &height), 0);
    EXPECT_EQ(width, 60);
    EXPECT_EQ(height, 21);
    EXPECT_EQ(vornix_text_box_destroy(other), 0);
    EXPECT_EQ(vornix_text_box_save(box, nullptr, 1, &count), 5);
}

TEST_F(CTextBox, HasItsLimits)
{
    EXPECT_EQ(vornix_text_box_resize(box, 300, 17), 0);
    EXPECT_EQ(vornix_text_box_resize(box, -1, 17), 5);
    EXPECT_EQ(vornix_text_box_press(box, "NoKey", 0), 5);
    EXPECT_EQ(vornix_text_box_press(box, nullptr, 0), 5);
    EXPECT_EQ(vornix_text_box_press_code(box, 0, 0), 5);
    EXPECT_EQ(vornix_text_box_press_code(box, 65, 9), 5);
    EXPECT_EQ(vornix_text_box_key_down(box, nullptr, 0), 5);
    EXPECT_EQ(vornix_text_box_type(box, { nullptr, 2 }), 5);
    EXPECT_EQ(vornix_text_box_size(box, nullptr, nullptr), 5);
    vornix_text_box_options options {};
    vornix_text_box* other = nullptr;
    EXPECT_EQ(vornix_text_box_create(&options, &other), 5) << "the size of the options";
    options.size = sizeof options;
    options.width = 40000;
    EXPECT_EQ(vornix_text_box_create(&options, &other), 5);
    EXPECT_EQ(other, nullptr);
    EXPECT_EQ(vornix_text_box_create(nullptr, nullptr), 5);
    EXPECT_EQ(vornix_text_box_destroy(nullptr), 0);
    EXPECT_EQ(vornix_text_box_type(nullptr, View(u"a")), 5);
    EXPECT_TRUE(said.empty());
}

} // namespace
} // namespace vornix::test
