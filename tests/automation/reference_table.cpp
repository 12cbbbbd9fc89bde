#include "automation/reference_table.h"

#include <fstream>
#include <stdexcept>

namespace vornix::test {

namespace {

char32_t NextCodePoint(std::string_view text, std::size_t& at)
{
    const auto lead = static_cast<unsigned char>(text[at++]);
    if (lead < 0x80)
        return lead;
    const int following = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : 1;
    char32_t codePoint = lead & (0x3Fu >> following);
    for (int i = 0; i < following; ++i)
        codePoint = codePoint << 6 | (static_cast<unsigned char>(text.at(at++)) & 0x3Fu);
    return codePoint;
}

std::u16string FieldText(std::string_view raw)
{
    std::u16string field;
    for (std::size_t at = 0; at < raw.size();) {
        const char32_t codePoint = NextCodePoint(raw, at);
        if (codePoint != U'\\') {
            field += static_cast<char16_t>(codePoint);
            continue;
        }
        const char kind = raw.at(at++);
        if (kind == 'u') {
            field += static_cast<char16_t>(std::stoi(std::string(raw.substr(at, 4)), nullptr, 16));
            at += 4;
        } else {
            field += kind == 't' ? u'\t' : kind == 'n' ? u'\n' : kind == 'r' ? u'\r' : static_cast<char16_t>(kind);
        }
    }
    return field;
}

} // namespace

std::vector<ReferenceRow> ReadReferenceTable(const std::string& fileName, std::size_t fieldCount)
{
    std::ifstream file(std::string(VORNIX_TEST_DATA) + "/" + fileName);
    std::vector<ReferenceRow> rows;
    std::string line;
    for (int number = 1; std::getline(file, line); ++number) {
        if (number == 1)
            continue;
        ReferenceRow row { number, {} };
        std::size_t start = 0;
        for (std::size_t end = 0; end != std::string::npos; start = end + 1) {
            end = line.find('\t', start);
            row.fields.push_back(FieldText(std::string_view(line).substr(start, end - start)));
        }
        if (row.fields.size() != fieldCount)
            throw std::runtime_error(NameOf(fileName, row) + ": wrong number of fields");
        rows.push_back(std::move(row));
    }
    if (rows.empty())
        throw std::runtime_error(fileName + ": no rows");
    return rows;
}

std::string ToUtf8(std::u16string_view text)
{
    std::string result;
    for (const char16_t unit : text) {
        if (unit < 0x80) {
            result += static_cast<char>(unit);
        } else if (unit < 0x800) {
            result += static_cast<char>(0xC0 | unit >> 6);
            result += static_cast<char>(0x80 | (unit & 0x3F));
        } else {
            result += static_cast<char>(0xE0 | unit >> 12);
            result += static_cast<char>(0x80 | (unit >> 6 & 0x3F));
            result += static_cast<char>(0x80 | (unit & 0x3F));
        }
    }
    return result;
}

std::string NameOf(const std::string& fileName, const ReferenceRow& row)
{
    std::string name = fileName + ":" + std::to_string(row.line);
    for (const std::u16string& field : row.fields)
        name += " [" + ToUtf8(field) + "]";
    return name;
}

} // namespace vornix::test
