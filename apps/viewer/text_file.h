// The text of a file, piece by piece, and a fingerprint of its bytes.
#pragma once

#include "fingerprint.h"
#include "text_decoder.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vornix::viewer {

class InputFile;

class TextFile {
public:
    // Reads from where the file stands, which is its beginning.
    explicit TextFile(InputFile& file);

    // Reads the next piece; false after the last one. Raises LoadError.
    bool Next();
    // The piece, without the byte order mark; up to the bytes that are no text once HasFailed(). May be changed.
    std::u16string& Text() { return text_; }
    const std::u16string& Text() const { return text_; }
    // True when the bytes read so far are no text in this encoding. Not certain before Next() was false.
    bool HasFailed() const { return decoder_.HasFailed(); }

    const EncodingGuess& Encoding() const { return guess_; }
    // As a message names it: UTF-8 or UTF-16.
    const char* EncodingName() const;
    std::string_view Mark() const { return mark_; }
    std::uint64_t BytesRead() const { return bytesRead_; }
    // Of the bytes read so far.
    std::uint64_t Print() const { return print_.Value(); }

private:
    std::string_view ReadBytes();

    InputFile& file_;
    std::vector<char> buffer_;
    EncodingGuess guess_;
    std::string mark_; // the byte order mark
    TextDecoder decoder_ { TextEncoding::Utf8 };
    std::u16string text_;
    std::uint64_t bytesRead_ = 0;
    Fingerprint print_;
};

} // namespace vornix::viewer
