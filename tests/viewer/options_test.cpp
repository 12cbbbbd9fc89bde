#include "options.h"

#include <gmock/gmock.h>

using namespace vornix::viewer;
using testing::HasSubstr;

namespace {

ViewerOptions Parse(std::vector<const char*> arguments)
{
    arguments.insert(arguments.begin(), "vornix-view");
    return ParseOptions(static_cast<int>(arguments.size()), arguments.data());
}

std::string MessageOf(const std::vector<const char*>& arguments)
{
    try {
        Parse(arguments);
    } catch (const OptionsError& error) {
        EXPECT_EQ(std::string(error.what()).find('\n'), std::string::npos);
        return error.what();
    }
    return "no error";
}

} // namespace

TEST(Options, ShowTheSampleUnlessTold)
{
    const ViewerOptions options = Parse({});
    EXPECT_EQ(options.action, ViewerAction::Show);
    EXPECT_EQ(options.file, "");
    EXPECT_FALSE(options.table || options.query || options.snapshot);
    EXPECT_EQ(options.width, 1280);
    EXPECT_EQ(options.height, 800);
    EXPECT_EQ(options.scale, 1);
    EXPECT_FALSE(options.scaleGiven);
}

TEST(Options, TakeEverythingTheirHelpNames)
{
    const ViewerOptions options
        = Parse({ "--snapshot", "out.png", "data.db", "--table", "customers", "--size", "640x480", "--scale=1.25" });
    EXPECT_EQ(options.file, "data.db");
    EXPECT_EQ(options.table, "customers");
    EXPECT_EQ(options.snapshot, "out.png");
    EXPECT_EQ(options.width, 640);
    EXPECT_EQ(options.height, 480);
    EXPECT_EQ(options.scale, 1.25);
    EXPECT_TRUE(options.scaleGiven);
    EXPECT_EQ(Parse({ "a.db", "--query", "SELECT 1 -- one" }).query, "SELECT 1 -- one");
    EXPECT_EQ(Parse({ "--", "--list" }).file, "--list");
}

TEST(Options, ChooseAnAction)
{
    EXPECT_EQ(Parse({ "--list" }).action, ViewerAction::List);
    EXPECT_EQ(Parse({ "--text", "a.csv" }).action, ViewerAction::Text);
    EXPECT_EQ(Parse({ "--version" }).action, ViewerAction::Message);
    EXPECT_THAT(Parse({ "--version" }).message, testing::MatchesRegex("vornix-view [0-9]+\\.[0-9]+\\.[0-9]+\n"));
    const ViewerOptions help = Parse({ "--help" });
    EXPECT_EQ(help.action, ViewerAction::Message);
    for (const char* name :
        { "FILE", "--table NAME", "--query SQL", "--snapshot OUT.png", "--size WxH", "--scale S", "--list" })
        EXPECT_THAT(help.message, HasSubstr(name));
}

TEST(Options, BoundTheSize)
{
    EXPECT_EQ(Parse({ "--size", "1x1" }).width, 1);
    EXPECT_EQ(Parse({ "--size", "16384X16384" }).height, 16384);
    for (const char* size : { "640", "640x", "x480", "640x480x2", "a", "6.5x4", "640 x 480", "+5x5" })
        EXPECT_THAT(MessageOf({ "--size", size }), HasSubstr("is not of the form WIDTHxHEIGHT")) << size;
    for (const char* size : { "0x480", "640x0", "16385x1", "1x-4" })
        EXPECT_EQ(MessageOf({ "--size", size }), "--size: width and height must be from 1 to 16384") << size;
    EXPECT_THAT(MessageOf({ "--size", "99999999999x1" }), HasSubstr("is not of the form"));
}

TEST(Options, BoundTheScale)
{
    EXPECT_EQ(Parse({ "--scale", "4" }).scale, 4);
    EXPECT_EQ(Parse({ "--scale", "1.0" }).scale, 1);
    for (const char* scale : { "0.99", "4.01", "0", "-1", "nan", "inf", "two", "1.5x", "1,5" })
        EXPECT_THAT(MessageOf({ "--scale", scale }), HasSubstr("is not a number from 1 to 4")) << scale;
}

TEST(Options, BoundThePicture)
{
    EXPECT_EQ(MessageOf({ "--size", "8192x8192", "--scale", "2" }), "no error");
    EXPECT_THAT(MessageOf({ "--size", "16384x16384", "--scale", "1.5" }), HasSubstr("more than 256 million pixels"));
}

TEST(Options, RefuseWhatContradictsItself)
{
    EXPECT_THAT(MessageOf({ "--table", "a", "--query", "b" }), HasSubstr("excludes"));
    EXPECT_THAT(MessageOf({ "--list", "--text" }), HasSubstr("excludes"));
    EXPECT_THAT(MessageOf({ "--text", "--snapshot", "a.png" }), HasSubstr("excludes"));
}

TEST(Options, OpenAFileForChanging)
{
    EXPECT_FALSE(Parse({ "a.csv" }).edit);
    const ViewerOptions options = Parse({ "--edit", "a.db", "--table", "t" });
    EXPECT_TRUE(options.edit);
    EXPECT_EQ(options.action, ViewerAction::Show);
    EXPECT_EQ(options.table, "t");
    EXPECT_THAT(Parse({ "--help" }).message, HasSubstr("--edit"));
    EXPECT_EQ(MessageOf({ "--edit" }), "--edit needs the name of a file") << "the sample stays as it is";
    for (const char* other : { "--list", "--text", "--query=SELECT 1", "--snapshot=a.png" })
        EXPECT_THAT(MessageOf({ "--edit", "a.db", other }), HasSubstr("excludes")) << other;
}

TEST(Options, RefuseWhatTheyDoNotKnowOrWhatIsMissing)
{
    EXPECT_THAT(MessageOf({ "--bogus" }), HasSubstr("--bogus"));
    EXPECT_THAT(MessageOf({ "a.csv", "b.csv" }), HasSubstr("b.csv"));
    EXPECT_EQ(MessageOf({ "--table" }), "--table: 1 required value missing (see --help)");
    EXPECT_EQ(MessageOf({ "" }), "FILE is empty");
    EXPECT_EQ(MessageOf({ "--query", "" }), "--query is empty");
    EXPECT_THAT(MessageOf({ "--x\ny" }), HasSubstr("--x y"));
}
