#include "shaper.h"

#include "utf16.h"

#include <algorithm>
#include <fribidi.h>
#include <hb.h>

namespace vornix {

namespace {

constexpr hb_feature_t NoLigatures[]
    = { { HB_TAG('l', 'i', 'g', 'a'), 0, 0, ~0u }, { HB_TAG('c', 'l', 'i', 'g'), 0, 0, ~0u } };

bool IsNeutral(hb_script_t script)
{
    return script == HB_SCRIPT_COMMON || script == HB_SCRIPT_INHERITED || script == HB_SCRIPT_UNKNOWN;
}

// Plain lines come without ligatures; the same words in other lines must look the same.
bool HasOptionalLigatures(hb_script_t script)
{
    return script == HB_SCRIPT_LATIN || script == HB_SCRIPT_GREEK || script == HB_SCRIPT_CYRILLIC || IsNeutral(script);
}

bool IsIdeographic(hb_script_t script)
{
    return script == HB_SCRIPT_HAN;
}

// Over the glyphs of a plain line from left to right: how far a unit moves by its kerning, and where its glyph stands.
// Gives the width; nothing when the line is not plain. Every caller gets the same sums.
template <typename Move, typename Take>
std::optional<float> WalkPlain(Font& font, std::u16string_view text, const Move& move, const Take& take)
{
    FontFace& face = font.Face();
    const float scale = font.UnitsToPixels();
    float x = 0;
    char16_t before = u' ';
    for (std::size_t unit = 0; unit < text.size(); ++unit) {
        const char16_t character = text[unit];
        const int index = SimpleIndex(character);
        if (index < 0)
            return std::nullopt;
        const Font::SimpleGlyph& simple = font.Simple(index, character);
        if (simple.glyph == 0)
            return std::nullopt;
        if (const int kerning = face.Kerning(before, character)) {
            const float distance = static_cast<float>(kerning) * scale;
            move(unit, distance);
            x += distance;
        }
        take(unit, x, simple);
        x += simple.advance;
        before = character;
    }
    return x;
}

} // namespace

Shaper::Shaper(FontLibrary& library)
    : library_(library)
    , fallback_(library)
    , buffer_(hb_buffer_create())
{
}

Shaper::~Shaper()
{
    hb_buffer_destroy(buffer_);
}

const Shaper::Result& Shaper::Shape(Font& font, std::u16string_view text, bool rightToLeft)
{
    result_.width = 0;
    result_.hasColor = false;
    result_.bidirectional = false;
    result_.simple = !rightToLeft && ShapeSimple(font, text);
    if (result_.simple)
        return result_;
    result_.glyphs.clear();
    result_.width = 0;
    Decode(text);
    if (codePoints_.empty())
        return result_;
    FindLevels(rightToLeft);
    FindScripts();
    FindRuns(font);
    OrderRuns();
    for (const Run& run : runs_)
        ShapeRun(font, run);
    return result_;
}

bool Shaper::ShapeSimple(Font& font, std::u16string_view text)
{
    result_.glyphs.resize(text.size());
    ShapedGlyph* glyphs = result_.glyphs.data();
    const u16 face = font.Face().Id();
    const std::optional<float> width = WalkPlain(
        font, text, [glyphs](std::size_t unit, float move) { glyphs[unit - 1].advance += move; },
        [glyphs, face](std::size_t unit, float x, const Font::SimpleGlyph& simple) {
            glyphs[unit] = { x, 0, simple.advance, simple.glyph, static_cast<u32>(unit), face, 100 };
        });
    result_.width = width.value_or(0);
    return width.has_value();
}

std::optional<float> Shaper::PlainWidth(Font& font, std::u16string_view text)
{
    return WalkPlain(
        font, text, [](std::size_t, float) {}, [](std::size_t, float, const Font::SimpleGlyph&) {});
}

void Shaper::Decode(std::u16string_view text)
{
    codePoints_.clear();
    units_.clear();
    for (std::size_t unit = 0; unit < text.size();) {
        DecodedCharacter character = DecodeUtf16(text, unit);
        const bool pairOfBreaks = character.codePoint == '\r' && unit + 1 < text.size() && text[unit + 1] == '\n';
        if (character.codePoint == '\t' || character.codePoint == '\n'
            || (character.codePoint == '\r' && !pairOfBreaks))
            character.codePoint = ' ';
        if (!IsControl(character.codePoint)) {
            codePoints_.push_back(character.codePoint);
            units_.push_back(static_cast<u32>(unit));
        }
        unit += character.units;
    }
}

void Shaper::FindLevels(bool rightToLeft)
{
    const std::size_t count = codePoints_.size();
    levels_.assign(count, 0);
    if (!rightToLeft && std::none_of(codePoints_.begin(), codePoints_.end(), MakesLineBidirectional))
        return;
    bidiTypes_.resize(count);
    bracketTypes_.resize(count);
    static_assert(sizeof(FriBidiChar) == sizeof(char32_t) && sizeof(FriBidiCharType) == sizeof(u32)
        && sizeof(FriBidiBracketType) == sizeof(u32) && sizeof(FriBidiLevel) == sizeof(std::int8_t));
    const auto* characters = reinterpret_cast<const FriBidiChar*>(codePoints_.data());
    const auto length = static_cast<FriBidiStrIndex>(count);
    fribidi_get_bidi_types(characters, length, bidiTypes_.data());
    fribidi_get_bracket_types(characters, length, bidiTypes_.data(), bracketTypes_.data());
    FriBidiParType direction = rightToLeft ? FRIBIDI_PAR_RTL : FRIBIDI_PAR_LTR;
    if (fribidi_get_par_embedding_levels_ex(bidiTypes_.data(), bracketTypes_.data(), length, &direction, levels_.data())
        == 0) {
        levels_.assign(count, rightToLeft ? 1 : 0);
        return;
    }
    // Spaces at the end of a line stand at its end, whatever they follow.
    for (std::size_t last = count; last > 0 && codePoints_[last - 1] == ' '; --last)
        levels_[last - 1] = rightToLeft ? 1 : 0;
}

void Shaper::FindScripts()
{
    hb_unicode_funcs_t* unicode = hb_unicode_funcs_get_default();
    const std::size_t count = codePoints_.size();
    scripts_.resize(count);
    hb_script_t ideographs = HB_SCRIPT_HAN;
    for (std::size_t index = 0; index < count; ++index) {
        scripts_[index] = hb_unicode_script(unicode, codePoints_[index]);
        if (scripts_[index] == HB_SCRIPT_HIRAGANA || scripts_[index] == HB_SCRIPT_KATAKANA
            || scripts_[index] == HB_SCRIPT_HANGUL)
            ideographs = scripts_[index];
    }
    // What has no script of its own takes that of its neighbour, first from the left, then from the right.
    hb_script_t before = HB_SCRIPT_COMMON;
    for (hb_script_t& script : scripts_) {
        if (IsIdeographic(script))
            script = ideographs;
        if (IsNeutral(script))
            script = before;
        before = script;
    }
    for (std::size_t index = count; index-- > 0;) {
        if (IsNeutral(scripts_[index]) && index + 1 < count)
            scripts_[index] = scripts_[index + 1];
    }
}

void Shaper::FindRuns(const Font& font)
{
    runs_.clear();
    for (std::size_t begin = 0; begin < codePoints_.size();) {
        const std::size_t end = ClusterEnd(codePoints_, begin);
        const std::span<const char32_t> cluster(codePoints_.data() + begin, end - begin);
        const auto level = static_cast<u8>(levels_[begin]);
        FontFace* face = nullptr;
        const bool isSpace = cluster.size() == 1 && cluster.front() == ' ';
        // A space does not part a run.
        if (isSpace && !runs_.empty() && !runs_.back().face->IsColor() && runs_.back().face->NominalGlyph(' ') != 0)
            face = runs_.back().face;
        else
            face = &fallback_.FaceFor(font, cluster, scripts_[begin]);
        const bool continues = !runs_.empty() && runs_.back().face == face && runs_.back().level == level
            && runs_.back().script == scripts_[begin];
        if (continues)
            runs_.back().end = end;
        else
            runs_.push_back({ begin, end, face, scripts_[begin], level });
        result_.hasColor |= face->IsColor();
        begin = end;
    }
}

// From the highest level to the lowest odd one, sequences of runs at that level or above are turned round.
void Shaper::OrderRuns()
{
    u8 highest = 0;
    for (const Run& run : runs_)
        highest = std::max(highest, run.level);
    result_.bidirectional = highest > 0;
    for (u8 level = highest; level > 0; --level) {
        const auto isAbove = [level](const Run& run) { return run.level >= level; };
        for (auto begin = runs_.begin(); begin != runs_.end();) {
            begin = std::find_if(begin, runs_.end(), isAbove);
            const auto end = std::find_if_not(begin, runs_.end(), isAbove);
            std::reverse(begin, end);
            begin = end;
        }
    }
}

// Plain words and numbers among other scripts, as ShapeSimple places them; false for everything else.
bool Shaper::PlacePlainRun(Font& font, const Run& run)
{
    if ((run.level & 1) || run.face != &font.Face())
        return false;
    for (std::size_t index = run.begin; index < run.end; ++index) {
        if (codePoints_[index] > 0xFFFF || SimpleIndex(static_cast<char16_t>(codePoints_[index])) < 0)
            return false;
    }
    const float scale = font.UnitsToPixels();
    char16_t before = u' ';
    for (std::size_t index = run.begin; index < run.end; ++index) {
        const auto character = static_cast<char16_t>(codePoints_[index]);
        const Font::SimpleGlyph& simple = font.Simple(SimpleIndex(character), character);
        const int kerning = run.face->Kerning(before, character);
        if (kerning != 0 && index > run.begin) {
            result_.glyphs.back().advance += static_cast<float>(kerning) * scale;
            result_.width += static_cast<float>(kerning) * scale;
        }
        result_.glyphs.push_back(
            { result_.width, 0, simple.advance, simple.glyph, units_[index], run.face->Id(), 100 });
        result_.width += simple.advance;
        before = character;
    }
    return true;
}

void Shaper::ShapeRun(Font& font, const Run& run)
{
    FontFace& face = *run.face;
    if (!face.Shaping() || PlacePlainRun(font, run))
        return;
    hb_buffer_reset(buffer_);
    hb_buffer_add_codepoints(buffer_, reinterpret_cast<const hb_codepoint_t*>(codePoints_.data()),
        static_cast<int>(codePoints_.size()), static_cast<unsigned>(run.begin), static_cast<int>(run.end - run.begin));
    hb_buffer_set_direction(buffer_, run.level & 1 ? HB_DIRECTION_RTL : HB_DIRECTION_LTR);
    hb_buffer_set_script(buffer_, run.script);
    hb_buffer_set_language(buffer_, hb_language_get_default());
    const bool plain = HasOptionalLigatures(run.script) && !face.IsColor();
    hb_shape(face.Shaping(), buffer_, NoLigatures, plain ? 2 : 0);

    unsigned count = 0;
    const hb_glyph_info_t* infos = hb_buffer_get_glyph_infos(buffer_, &count);
    const hb_glyph_position_t* positions = hb_buffer_get_glyph_positions(buffer_, &count);
    const int percent = &face == &font.Face() ? 100 : FallbackPercent(run.script);
    const float em = font.EmHeight() * static_cast<float>(percent) / 100;
    const float scale = em / static_cast<float>(face.Metrics().unitsPerEm);
    for (unsigned index = 0; index < count; ++index) {
        const hb_glyph_position_t& position = positions[index];
        const int extra = position.x_advance != 0 ? face.ExtraAdvance() : 0;
        const float advance = static_cast<float>(position.x_advance + extra) * scale;
        result_.glyphs.push_back({ result_.width + static_cast<float>(position.x_offset) * scale,
            static_cast<float>(position.y_offset) * scale, advance, infos[index].codepoint,
            units_[infos[index].cluster], face.Id(), static_cast<u16>(percent) });
        result_.width += advance;
    }
}

} // namespace vornix
