#include "data/search.h"

#include "model/store_support.h"

#include <gtest/gtest.h>

namespace vornix {
namespace {

using Kind = SearchPattern::Kind;

SearchPattern Pattern(std::u16string_view searchString, std::u16string_view wildcard)
{
    return { searchString, wildcard, BuiltinLocale() };
}

bool Finds(std::u16string_view searchString, std::u16string_view wildcard, std::u16string_view value)
{
    return Pattern(searchString, wildcard).Matches(value, BuiltinLocale());
}

struct Told {
    std::u16string searchString;
    std::u16string wildcard;
    Kind kind;
    std::u16string needle;
};

TEST(SearchPatternTest, TellsItsKindByTheWildcard)
{
    const Told cases[] = {
        { u"ab", u"", Kind::Exact, u"ab" },
        { u"", u"", Kind::Exact, u"" },
        { u"", u"*", Kind::Exact, u"" },
        { u"ab", u"*", Kind::Exact, u"ab" },
        { u"ab*", u"*", Kind::BeginsWith, u"ab" },
        { u"*ab", u"*", Kind::EndsWith, u"ab" },
        { u"*ab*", u"*", Kind::Contains, u"ab" },
        { u"**", u"*", Kind::Contains, u"" },
        { u"***", u"*", Kind::Contains, u"*" },
        { u"a*b", u"*", Kind::Nothing, u"a*b" },
        { u"*a*b", u"*", Kind::EndsWith, u"a*b" },
        { u"a*b*", u"*", Kind::BeginsWith, u"a*b" },
        { u"anyab", u"any", Kind::EndsWith, u"ab" },
        { u"abany", u"any", Kind::BeginsWith, u"ab" },
        { u"anyabany", u"any", Kind::Contains, u"ab" },
        { u"anyany", u"any", Kind::Contains, u"" },
        { u"an", u"any", Kind::Exact, u"an" },
        // It is looked for in any case, and then has to stand at an end in its own.
        { u"ANYab", u"any", Kind::Nothing, u"ANYab" },
        { u"ANYabany", u"any", Kind::BeginsWith, u"ANYab" },
        { u"abANY", u"any", Kind::Nothing, u"abANY" },
    };
    for (const Told& told : cases) {
        const SearchPattern pattern = Pattern(told.searchString, told.wildcard);
        EXPECT_EQ(pattern.MatchKind(), told.kind) << testing::PrintToString(told.searchString);
        EXPECT_EQ(pattern.Needle(), told.needle) << testing::PrintToString(told.searchString);
    }
}

TEST(SearchPatternTest, ATextTooShortForTwoWildcardsIsAnError)
{
    EXPECT_EQ(ErrorOf([] { Pattern(u"*", u"*"); }), ErrorNumber::InvalidArgument);
    EXPECT_EQ(ErrorOf([] { Pattern(u"any", u"any"); }), ErrorNumber::InvalidArgument);
    EXPECT_EQ(ErrorOf([] { Pattern(u"aba", u"aba"); }), ErrorNumber::InvalidArgument);
    EXPECT_EQ(ErrorOf([] { Pattern(u"ababa", u"aba"); }), ErrorNumber::InvalidArgument) << "they overlap";
    EXPECT_EQ(ErrorOf([] { Pattern(u"abaaba", u"aba"); }), 0);
    EXPECT_EQ(ErrorOf([] { Pattern(u"ANY", u"any"); }), 0) << "it begins and ends with another";
}

TEST(SearchPatternTest, FindsWholeTextsInAnyCase)
{
    EXPECT_TRUE(Finds(u"Oslo", u"", u"OSLO"));
    EXPECT_FALSE(Finds(u"Oslo", u"", u"Oslo "));
    EXPECT_FALSE(Finds(u"Oslo", u"", u""));
    EXPECT_TRUE(Finds(u"\u00C4rger", u"", u"\u00E4rger"));
    EXPECT_FALSE(Finds(u"co-op", u"", u"coop")) << "the hyphen decides between the two";
}

TEST(SearchPatternTest, AnEmptyTextFindsWhatIsEmpty)
{
    EXPECT_TRUE(Finds(u"", u"", u""));
    EXPECT_FALSE(Finds(u"", u"", u"a"));
    EXPECT_TRUE(Finds(u"", u"*", u""));
}

TEST(SearchPatternTest, FindsBeginnings)
{
    EXPECT_TRUE(Finds(u"ab*", u"*", u"ABc"));
    EXPECT_TRUE(Finds(u"ab*", u"*", u"ab"));
    EXPECT_FALSE(Finds(u"ab*", u"*", u"a"));
    EXPECT_FALSE(Finds(u"ab*", u"*", u""));
    EXPECT_FALSE(Finds(u"ab*", u"*", u"cab"));
}

TEST(SearchPatternTest, FindsEnds)
{
    EXPECT_TRUE(Finds(u"*ab", u"*", u"cAB"));
    EXPECT_TRUE(Finds(u"*ab", u"*", u"ab"));
    EXPECT_FALSE(Finds(u"*ab", u"*", u"b"));
    EXPECT_FALSE(Finds(u"*ab", u"*", u"abc"));
}

TEST(SearchPatternTest, FindsWhatIsInside)
{
    EXPECT_TRUE(Finds(u"*ab*", u"*", u"cABd"));
    EXPECT_TRUE(Finds(u"*ab*", u"*", u"ab"));
    EXPECT_FALSE(Finds(u"*ab*", u"*", u"acb"));
    EXPECT_FALSE(Finds(u"*ab*", u"*", u""));
}

TEST(SearchPatternTest, WildcardsAloneFindWhatIsNotEmpty)
{
    EXPECT_TRUE(Finds(u"**", u"*", u"x"));
    EXPECT_TRUE(Finds(u"**", u"*", u" "));
    EXPECT_FALSE(Finds(u"**", u"*", u""));
}

TEST(SearchPatternTest, AWildcardInsideFindsNothing)
{
    EXPECT_FALSE(Finds(u"a*b", u"*", u"a*b"));
    EXPECT_FALSE(Finds(u"a*b", u"*", u"axb"));
    EXPECT_FALSE(Pattern(u"a*b", u"*").MatchesWithExactEnd(u"a*b", BuiltinLocale()));
}

TEST(SearchPatternTest, AnExactEndHasItsCase)
{
    const Locale& locale = BuiltinLocale();
    EXPECT_TRUE(Pattern(u"*ab", u"*").MatchesWithExactEnd(u"cab", locale));
    EXPECT_FALSE(Pattern(u"*ab", u"*").MatchesWithExactEnd(u"cAb", locale));
    EXPECT_FALSE(Pattern(u"*ab", u"*").MatchesWithExactEnd(u"b", locale));
    EXPECT_TRUE(Pattern(u"ab", u"*").MatchesWithExactEnd(u"AB", locale));
    EXPECT_TRUE(Pattern(u"ab*", u"*").MatchesWithExactEnd(u"ABc", locale));
    EXPECT_TRUE(Pattern(u"*ab*", u"*").MatchesWithExactEnd(u"cABd", locale));
}

} // namespace
} // namespace vornix
