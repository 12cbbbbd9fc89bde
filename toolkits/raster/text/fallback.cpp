#include "fallback.h"

#include <algorithm>
#include <cstdlib>
#include <string>

namespace vornix {

namespace {

struct ScriptName {
    hb_script_t script;
    const char* name;
};

// Scripts whose usual faces are named after them.
constexpr ScriptName scriptNames[] = { { HB_SCRIPT_ARABIC, "Arabic" }, { HB_SCRIPT_HEBREW, "Hebrew" },
    { HB_SCRIPT_DEVANAGARI, "Devanagari" }, { HB_SCRIPT_THAI, "Thai" }, { HB_SCRIPT_BENGALI, "Bengali" },
    { HB_SCRIPT_TAMIL, "Tamil" }, { HB_SCRIPT_TELUGU, "Telugu" }, { HB_SCRIPT_GUJARATI, "Gujarati" },
    { HB_SCRIPT_GURMUKHI, "Gurmukhi" }, { HB_SCRIPT_KANNADA, "Kannada" }, { HB_SCRIPT_MALAYALAM, "Malayalam" },
    { HB_SCRIPT_ORIYA, "Oriya" }, { HB_SCRIPT_SINHALA, "Sinhala" }, { HB_SCRIPT_KHMER, "Khmer" },
    { HB_SCRIPT_LAO, "Lao" }, { HB_SCRIPT_MYANMAR, "Myanmar" }, { HB_SCRIPT_ETHIOPIC, "Ethiopic" },
    { HB_SCRIPT_GEORGIAN, "Georgian" }, { HB_SCRIPT_ARMENIAN, "Armenian" }, { HB_SCRIPT_TIBETAN, "Tibetan" },
    { HB_SCRIPT_SYRIAC, "Syriac" }, { HB_SCRIPT_THAANA, "Thaana" }, { HB_SCRIPT_MONGOLIAN, "Mongolian" },
    { HB_SCRIPT_CHEROKEE, "Cherokee" }, { HB_SCRIPT_JAVANESE, "Javanese" } };

bool LanguageStarts(const char* prefix)
{
    for (const char* variable : { "LC_ALL", "LC_CTYPE", "LANG" }) {
        const char* value = std::getenv(variable);
        if (value && *value)
            return std::string_view(value).starts_with(prefix);
    }
    return false;
}

// Ideographs look different by language; without a better hint the user's language decides.
std::string IdeographFamily(hb_script_t script)
{
    if (script == HB_SCRIPT_HANGUL)
        return "Noto Sans CJK KR";
    if (script == HB_SCRIPT_HIRAGANA || script == HB_SCRIPT_KATAKANA || LanguageStarts("ja"))
        return "Noto Sans CJK JP";
    if (script == HB_SCRIPT_BOPOMOFO || LanguageStarts("zh_TW") || LanguageStarts("zh_HK"))
        return "Noto Sans CJK TC";
    return LanguageStarts("ko") ? "Noto Sans CJK KR" : "Noto Sans CJK SC";
}

const FontSource* FindPreferredSource(hb_script_t script, FontStyle style)
{
    if (script == HB_SCRIPT_HAN || script == HB_SCRIPT_HANGUL || script == HB_SCRIPT_HIRAGANA
        || script == HB_SCRIPT_KATAKANA || script == HB_SCRIPT_BOPOMOFO)
        return FindInstalledFont(IdeographFamily(script), style);
    for (const ScriptName& entry : scriptNames) {
        if (entry.script == script)
            return FindInstalledFont(std::string("Noto Sans ") + entry.name, style);
    }
    return nullptr;
}

bool NeedsGlyph(char32_t codePoint)
{
    return !IsDefaultIgnorable(codePoint) && !IsControl(codePoint);
}

// A mark that the face has not may still be part of a composed character that it has.
bool Composes(const FontFace& face, std::span<const char32_t> cluster)
{
    hb_codepoint_t composed = 0;
    return cluster.size() == 2 && hb_unicode_compose(hb_unicode_funcs_get_default(), cluster[0], cluster[1], &composed)
        && face.NominalGlyph(composed) != 0;
}

bool Covers(const FontFace& face, std::span<const char32_t> cluster)
{
    const bool all = std::all_of(cluster.begin(), cluster.end(),
        [&face](char32_t codePoint) { return !NeedsGlyph(codePoint) || face.NominalGlyph(codePoint) != 0; });
    return all || Composes(face, cluster);
}

bool SourceCovers(const FontSource& source, std::span<const char32_t> cluster)
{
    return std::all_of(cluster.begin(), cluster.end(),
        [&source](char32_t codePoint) { return !NeedsGlyph(codePoint) || HasCharacter(source, codePoint); });
}

bool AsksForEmoji(std::span<const char32_t> cluster)
{
    const auto has = [cluster](char32_t codePoint) {
        return std::find(cluster.begin(), cluster.end(), codePoint) != cluster.end();
    };
    if (has(TextSelector))
        return false;
    return IsEmojiByDefault(cluster.front()) || has(EmojiSelector) || (cluster.size() > 1 && has(KeycapMark));
}

} // namespace

int FallbackPercent(hb_script_t script)
{
    switch (script) {
    case HB_SCRIPT_THAI:
        return 91;
    case HB_SCRIPT_MYANMAR:
        return 92;
    case HB_SCRIPT_TIBETAN:
        return 86;
    case HB_SCRIPT_KHMER:
        return 95;
    default:
        return 100;
    }
}

FontFace& FallbackFinder::FaceFor(const Font& font, std::span<const char32_t> cluster, hb_script_t script)
{
    FontFace& primary = font.Face();
    const bool emoji = AsksForEmoji(cluster);
    if (!emoji && Covers(primary, cluster))
        return primary;
    if (cluster.size() > 1)
        return Search(primary, cluster, script, emoji);
    const std::uint64_t key = static_cast<std::uint64_t>(primary.Id()) << 53
        | static_cast<std::uint64_t>(static_cast<u32>(script)) << 21 | cluster.front();
    if (const auto known = known_.find(key); known != known_.end())
        return *known->second;
    if (known_.size() >= MostEntries)
        known_.clear();
    FontFace& face = Search(primary, cluster, script, emoji);
    known_[key] = &face;
    return face;
}

FontFace& FallbackFinder::Search(FontFace& primary, std::span<const char32_t> cluster, hb_script_t script, bool emoji)
{
    const FontStyle style = primary.Style();
    const auto& sources = FallbackSources(style);
    const FontSource* preferred = PreferredSource(script, style);
    // The whole cluster in one face; failing that, its first character and marks as they come.
    for (const auto part : { cluster, cluster.first(1) }) {
        if (emoji) {
            const auto colored = std::find_if(sources.begin(), sources.end(),
                [part](const FontSource* source) { return source->color && SourceCovers(*source, part); });
            if (colored != sources.end())
                return library_.Open(**colored, style);
        }
        if (Covers(primary, part))
            return primary;
        if (preferred && SourceCovers(*preferred, part))
            return library_.Open(*preferred, style);
        for (const bool color : { false, true }) {
            for (const FontSource* source : sources) {
                if (source->color == color && SourceCovers(*source, part))
                    return library_.Open(*source, style);
            }
        }
    }
    return primary;
}

const FontSource* FallbackFinder::PreferredSource(hb_script_t script, FontStyle style)
{
    const std::uint64_t key
        = static_cast<std::uint64_t>(static_cast<u32>(script)) << 2 | (style.bold ? 2u : 0u) | (style.italic ? 1u : 0u);
    const auto [entry, isNew] = preferred_.try_emplace(key, nullptr);
    if (isNew)
        entry->second = FindPreferredSource(script, style);
    return entry->second;
}

} // namespace vornix
