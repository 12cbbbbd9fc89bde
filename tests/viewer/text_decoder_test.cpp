#include "text_decoder.h"

#include "scratch_folder.h"
#include "unicode.h"

#include <gtest/gtest.h>

using namespace vornix::viewer;
using namespace std::string_literals;

namespace {

struct Decoded {
    std::u16string text;
    bool hasFailed = false;
};

Decoded Decode(std::string_view bytes, TextEncoding encoding, std::size_t pieceSize)
{
    Decoded decoded;
    TextDecoder decoder(encoding);
    for (; !bytes.empty(); bytes.remove_prefix(std::min(pieceSize, bytes.size())))
        decoder.Decode(bytes.substr(0, pieceSize), decoded.text);
    decoder.Finish();
    decoded.hasFailed = decoder.HasFailed();
    return decoded;
}

TextEncoding Guess(std::string_view bytes)
{
    return GuessEncoding(bytes).encoding;
}

const std::u16string Mixed = u"aé中😀\r\nשלום,हिन्दी\n";

} // namespace

TEST(TextDecoder, GivesTheSameForPiecesOfEverySize)
{
    const std::string little = Utf16Bytes(Mixed, false);
    const std::string big = Utf16Bytes(Mixed, true);
    for (std::size_t size = 1; size < 12; ++size) {
        for (const auto& decoded : { Decode(ToUtf8(Mixed), TextEncoding::Utf8, size),
                 Decode(little, TextEncoding::Utf16Little, size), Decode(big, TextEncoding::Utf16Big, size) }) {
            EXPECT_EQ(decoded.text, Mixed) << size;
            EXPECT_FALSE(decoded.hasFailed) << size;
        }
    }
}

TEST(TextDecoder, StopsAtBytesThatAreNoUtf8)
{
    for (std::size_t size = 1; size < 6; ++size) {
        for (const auto* bad : { "ok\xFFzz", "ok\xE4zz", "ok\xC0\x80zz", "ok\xE4\xB8" }) {
            const Decoded decoded = Decode(bad, TextEncoding::Utf8, size);
            EXPECT_EQ(decoded.text, u"ok");
            EXPECT_TRUE(decoded.hasFailed);
        }
    }
}

TEST(TextDecoder, StopsAtHalvesOfCharactersInUtf16)
{
    const std::string lone = Utf16Bytes(std::u16string { u'o', 0xD83D, u'k' }, false);
    const std::string trail = Utf16Bytes(std::u16string { u'o', 0xDE00, u'k' }, false);
    const std::string cut = Utf16Bytes(u"ok", false) + "z";
    const std::string cutPair = Utf16Bytes(std::u16string { u'o', 0xD83D }, true);
    EXPECT_TRUE(Decode(lone, TextEncoding::Utf16Little, 3).hasFailed);
    EXPECT_TRUE(Decode(trail, TextEncoding::Utf16Little, 3).hasFailed);
    EXPECT_TRUE(Decode(cut, TextEncoding::Utf16Little, 3).hasFailed);
    EXPECT_TRUE(Decode(cutPair, TextEncoding::Utf16Big, 3).hasFailed);
}

TEST(TextDecoder, BelievesAByteOrderMark)
{
    EXPECT_EQ(Guess("\xEF\xBB\xBF"
                    "a"),
        TextEncoding::Utf8);
    EXPECT_EQ(GuessEncoding("\xEF\xBB\xBF"
                            "a")
                  .markLength,
        3u);
    EXPECT_EQ(Guess("\xFF\xFE"
                    "a\0"s),
        TextEncoding::Utf16Little);
    EXPECT_EQ(GuessEncoding("\xFE\xFF\0a"s).markLength, 2u);
    EXPECT_EQ(Guess("\xFE\xFF\0a"s), TextEncoding::Utf16Big);
}

TEST(TextDecoder, RecognisesUtf16WithoutAMark)
{
    for (const std::u16string text :
        { u"id,name\n1,Anna\n", u"名前,年齢\n佐久間,34\n渡邊,51\n", u"имя;город\nОксана;Львів\n" }) {
        EXPECT_EQ(Guess(Utf16Bytes(text, false)), TextEncoding::Utf16Little) << ToUtf8(text);
        EXPECT_EQ(Guess(Utf16Bytes(text, true)), TextEncoding::Utf16Big) << ToUtf8(text);
        EXPECT_EQ(Guess(ToUtf8(text)), TextEncoding::Utf8) << ToUtf8(text);
    }
}

TEST(TextDecoder, TakesNoUtf8WithStrayZerosForUtf16)
{
    EXPECT_EQ(Guess("id,name\n1,a\0b\n"s), TextEncoding::Utf8);
    EXPECT_EQ(Guess("id,name\n1,ab\0\n2,é\n"s), TextEncoding::Utf8);
    EXPECT_EQ(Guess(""), TextEncoding::Utf8);
    EXPECT_EQ(Guess("a"), TextEncoding::Utf8);
    EXPECT_EQ(Guess(std::string(100, '\0')), TextEncoding::Utf8);
    EXPECT_EQ(Guess("\x7F"
                    "ELF\2\1\1\0\0\0\0\0\0\0\0\0\3\0\x3E\0"s),
        TextEncoding::Utf8);
    EXPECT_EQ(Guess("caf\xE9,na\xEFve\n"), TextEncoding::Utf8);
}
