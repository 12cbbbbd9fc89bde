#include "text_file.h"

#include "input_file.h"

namespace vornix::viewer {

namespace {

constexpr std::size_t PieceSize = 1 << 18; // bytes

} // namespace

TextFile::TextFile(InputFile& file)
    : file_(file)
    , buffer_(PieceSize)
{
}

bool TextFile::Next()
{
    const bool isFirst = bytesRead_ == 0;
    std::string_view bytes = ReadBytes();
    text_.clear();
    if (bytes.empty()) {
        decoder_.Finish();
        return false;
    }
    if (isFirst) {
        guess_ = GuessEncoding(bytes);
        mark_ = bytes.substr(0, guess_.markLength);
        decoder_ = TextDecoder(guess_.encoding);
        bytes.remove_prefix(guess_.markLength);
    }
    decoder_.Decode(bytes, text_);
    return true;
}

const char* TextFile::EncodingName() const
{
    return guess_.encoding == TextEncoding::Utf8 ? "UTF-8" : "UTF-16";
}

std::string_view TextFile::ReadBytes()
{
    const std::size_t count = file_.Read(buffer_);
    bytesRead_ += count;
    print_.Add({ buffer_.data(), count });
    return { buffer_.data(), count };
}

} // namespace vornix::viewer
