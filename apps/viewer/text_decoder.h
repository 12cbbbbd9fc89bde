// The bytes of a text file as UTF-16, piece by piece.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vornix::viewer {

enum class TextEncoding { Utf8, Utf16Little, Utf16Big };

struct EncodingGuess {
    TextEncoding encoding = TextEncoding::Utf8;
    std::size_t markLength = 0; // bytes of the byte order mark
};

// By the byte order mark, or without one by where the zero bytes are: text in UTF-16 has zeros in one half of the
// bytes, because its separators and line breaks have. `firstBytes` is the beginning of the file, the more the surer.
EncodingGuess GuessEncoding(std::string_view firstBytes);

class TextDecoder {
public:
    explicit TextDecoder(TextEncoding encoding)
        : encoding_(encoding)
    {
    }

    // Appends what the bytes say; a character cut in two by the end of the piece waits for the next one. Stops at
    // bytes that are no text in this encoding: from then on HasFailed().
    void Decode(std::string_view bytes, std::u16string& text);
    // To be called after the last piece: a character that is still cut in two is a failure.
    void Finish();
    bool HasFailed() const { return hasFailed_; }

private:
    void DecodeUtf8(std::string_view bytes, std::u16string& text);
    void DecodeUtf16(std::string_view bytes, std::u16string& text);
    void AcceptUnit(char16_t unit, std::u16string& text);

    TextEncoding encoding_;
    std::string waiting_; // bytes of a character that is not complete yet
    char16_t leadSurrogate_ = 0; // waiting for its other half
    bool hasFailed_ = false;
};

} // namespace vornix::viewer
