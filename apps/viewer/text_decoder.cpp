#include "text_decoder.h"

#include "unicode.h"

#include <algorithm>

namespace vornix::viewer {

namespace {

char16_t UnitAt(std::string_view bytes, std::size_t position, TextEncoding encoding)
{
    const auto first = static_cast<unsigned char>(bytes[position]);
    const auto second = static_cast<unsigned char>(bytes[position + 1]);
    return static_cast<char16_t>(encoding == TextEncoding::Utf16Little ? first | second << 8 : first << 8 | second);
}

bool IsBadControl(char16_t unit)
{
    return unit < ' ' && unit != '\t' && unit != '\n' && unit != '\r';
}

// The share of units that are plain ASCII, in percent, or -1 when this cannot be text in this encoding.
int AsciiShare(std::string_view sample, TextEncoding encoding)
{
    std::size_t ascii = 0;
    const std::size_t units = sample.size() / 2;
    for (std::size_t i = 0; i < units; ++i) {
        const char16_t unit = UnitAt(sample, 2 * i, encoding);
        if (IsBadControl(unit) || unit >= 0xFFFE)
            return -1;
        ascii += unit < 0x80 ? 1 : 0;
    }
    std::u16string text;
    TextDecoder decoder(encoding);
    decoder.Decode(sample, text);
    return units == 0 || decoder.HasFailed() ? -1 : static_cast<int>(ascii * 100 / units);
}

// UTF-8 with a few zeros astray; other control characters are the halves of characters in UTF-16.
bool IsUtf8WithoutItsZeros(std::string_view sample)
{
    std::string bytes(sample);
    bytes.erase(std::remove(bytes.begin(), bytes.end(), '\0'), bytes.end());
    std::u16string text;
    TextDecoder decoder(TextEncoding::Utf8);
    decoder.Decode(bytes, text);
    return !decoder.HasFailed() && std::none_of(text.begin(), text.end(), IsBadControl);
}

} // namespace

EncodingGuess GuessEncoding(std::string_view firstBytes)
{
    if (firstBytes.starts_with("\xEF\xBB\xBF"))
        return { TextEncoding::Utf8, 3 };
    if (firstBytes.starts_with("\xFF\xFE"))
        return { TextEncoding::Utf16Little, 2 };
    if (firstBytes.starts_with("\xFE\xFF"))
        return { TextEncoding::Utf16Big, 2 };

    constexpr std::size_t sampleSize = 8192;
    const std::string_view sample = firstBytes.substr(0, std::min(sampleSize, firstBytes.size() & ~std::size_t(1)));
    // Mostly ASCII is certain; less of it (Chinese, say) only where the bytes are not UTF-8 with a few stray zeros.
    constexpr int certainShare = 50;
    constexpr int possibleShare = 3;
    const int little = AsciiShare(sample, TextEncoding::Utf16Little);
    const int big = AsciiShare(sample, TextEncoding::Utf16Big);
    const int best = std::max(little, big);
    if (best >= certainShare || (best >= possibleShare && !IsUtf8WithoutItsZeros(sample)))
        return { little >= big ? TextEncoding::Utf16Little : TextEncoding::Utf16Big, 0 };
    return {};
}

void TextDecoder::Decode(std::string_view bytes, std::u16string& text)
{
    if (hasFailed_)
        return;
    if (encoding_ == TextEncoding::Utf8)
        DecodeUtf8(bytes, text);
    else
        DecodeUtf16(bytes, text);
}

void TextDecoder::DecodeUtf8(std::string_view bytes, std::u16string& text)
{
    while (!waiting_.empty() && !bytes.empty()) {
        waiting_ += bytes.front();
        bytes.remove_prefix(1);
        if (IsIncompleteUtf8(waiting_))
            continue;
        hasFailed_ = AppendUtf8(waiting_, text) != waiting_.size();
        if (hasFailed_)
            return;
        waiting_.clear();
    }
    bytes.remove_prefix(AppendUtf8(bytes, text));
    if (bytes.empty())
        return;
    if (IsIncompleteUtf8(bytes))
        waiting_ = bytes;
    else
        hasFailed_ = true;
}

void TextDecoder::DecodeUtf16(std::string_view bytes, std::u16string& text)
{
    if (!waiting_.empty() && !bytes.empty()) {
        waiting_ += bytes.front();
        bytes.remove_prefix(1);
        AcceptUnit(UnitAt(waiting_, 0, encoding_), text);
        waiting_.clear();
    }
    for (std::size_t i = 0; i + 1 < bytes.size() && !hasFailed_; i += 2)
        AcceptUnit(UnitAt(bytes, i, encoding_), text);
    if (bytes.size() % 2 != 0)
        waiting_ = bytes.back();
}

void TextDecoder::AcceptUnit(char16_t unit, std::u16string& text)
{
    const bool isTrail = (unit & 0xFC00) == 0xDC00;
    if (isTrail != (leadSurrogate_ != 0)) {
        hasFailed_ = true;
        return;
    }
    if ((unit & 0xFC00) == 0xD800) {
        leadSurrogate_ = unit;
        return;
    }
    if (isTrail)
        text += leadSurrogate_;
    leadSurrogate_ = 0;
    text += unit;
}

void TextDecoder::Finish()
{
    if (!waiting_.empty() || leadSurrogate_ != 0)
        hasFailed_ = true;
}

} // namespace vornix::viewer
