#include "font_match.h"

#include "utf16.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <deque>
#include <fontconfig/fontconfig.h>
#include <initializer_list>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <tuple>

#if defined(__SANITIZE_ADDRESS__)
#define VORNIX_LEAKS_ARE_SOUGHT 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define VORNIX_LEAKS_ARE_SOUGHT 1
#endif
#endif
#if VORNIX_LEAKS_ARE_SOUGHT
#include <sanitizer/lsan_interface.h>
#endif

namespace vornix {

namespace {

struct PatternDeleter {
    void operator()(FcPattern* pattern) const { FcPatternDestroy(pattern); }
};
using PatternPtr = std::unique_ptr<FcPattern, PatternDeleter>;

struct FontSetDeleter {
    void operator()(FcFontSet* set) const { FcFontSetDestroy(set); }
};
using FontSetPtr = std::unique_ptr<FcFontSet, FontSetDeleter>;

// Names of faces usual on the platform, and what comes closest here, best first.
struct Relatives {
    const char* name;
    std::initializer_list<const char*> families;
};

const Relatives relatives[] = {
    { "", { "DejaVu Sans", "Noto Sans" } },
    { "ms sans serif", { "DejaVu Sans", "Noto Sans" } },
    { "ms shell dlg", { "DejaVu Sans", "Noto Sans" } },
    { "ms shell dlg 2", { "DejaVu Sans", "Noto Sans" } },
    { "system", { "DejaVu Sans", "Noto Sans" } },
    { "tahoma", { "DejaVu Sans", "Noto Sans" } },
    { "verdana", { "DejaVu Sans", "Noto Sans" } },
    { "segoe ui", { "Noto Sans", "DejaVu Sans" } },
    { "calibri", { "Carlito", "Noto Sans", "DejaVu Sans" } },
    { "arial", { "Liberation Sans", "Arimo", "Noto Sans", "DejaVu Sans" } },
    { "helvetica", { "Liberation Sans", "Arimo", "Noto Sans", "DejaVu Sans" } },
    { "courier", { "Liberation Mono", "Cousine", "DejaVu Sans Mono" } },
    { "courier new", { "Liberation Mono", "Cousine", "DejaVu Sans Mono" } },
    { "consolas", { "DejaVu Sans Mono", "Liberation Mono" } },
    { "lucida console", { "DejaVu Sans Mono", "Liberation Mono" } },
    { "fixedsys", { "DejaVu Sans Mono", "Liberation Mono" } },
    { "terminal", { "DejaVu Sans Mono", "Liberation Mono" } },
    { "times", { "Liberation Serif", "Tinos", "Noto Serif", "DejaVu Serif" } },
    { "times new roman", { "Liberation Serif", "Tinos", "Noto Serif", "DejaVu Serif" } },
    { "ms serif", { "Liberation Serif", "Tinos", "Noto Serif", "DejaVu Serif" } },
    { "georgia", { "Gelasio", "Noto Serif", "DejaVu Serif" } },
    { "cambria", { "Caladea", "Noto Serif", "DejaVu Serif" } },
};

std::string LowerCase(std::string text)
{
    for (char& character : text)
        character = static_cast<char>(std::tolower(static_cast<unsigned char>(character)));
    return text;
}

PatternPtr MakePattern(const char* family, FontStyle style)
{
    PatternPtr pattern(FcPatternCreate());
    if (family)
        FcPatternAddString(pattern.get(), FC_FAMILY, reinterpret_cast<const FcChar8*>(family));
    FcPatternAddInteger(pattern.get(), FC_WEIGHT, style.bold ? FC_WEIGHT_BOLD : FC_WEIGHT_REGULAR);
    FcPatternAddInteger(pattern.get(), FC_SLANT, style.italic ? FC_SLANT_ITALIC : FC_SLANT_ROMAN);
    FcPatternAddInteger(pattern.get(), FC_WIDTH, FC_WIDTH_NORMAL);
    FcPatternAddBool(pattern.get(), FC_SCALABLE, FcTrue);
    return pattern;
}

void Substitute(FcPattern* pattern)
{
    FcConfigSubstitute(nullptr, pattern, FcMatchPattern);
    FcDefaultSubstitute(pattern);
}

// Everything that touches Fontconfig. Its members are called under the lock of the instance.
class FontDatabase {
public:
    static FontDatabase& Instance()
    {
        // Never destroyed: threads that end late may still hold what it handed out.
        static FontDatabase* database = new FontDatabase;
        return *database;
    }

    const FontSource* Match(std::u16string_view family, FontStyle style)
    {
        const std::lock_guard lock(mutex_);
        const std::string name = ToUtf8(family.substr(0, family.find(u'\0')));
        const auto key = std::make_tuple(name, style.bold, style.italic);
        if (const auto known = matches_.find(key); known != matches_.end())
            return known->second;
        // The names come from hosts, in any number.
        if (matches_.size() >= 256)
            matches_.clear();
        return matches_[key] = FindMatch(name, style);
    }

    const FontSource* FindInstalled(const std::string& family, FontStyle style)
    {
        const std::lock_guard lock(mutex_);
        return FindFamily(family.c_str(), style);
    }

    const std::vector<const FontSource*>& Fallbacks(FontStyle style)
    {
        const std::lock_guard lock(mutex_);
        auto& sources = fallbacks_[(style.bold ? 1u : 0u) + (style.italic ? 2u : 0u)];
        if (!sources)
            sources = Sort(style);
        return *sources;
    }

private:
    FontDatabase()
    {
#if VORNIX_LEAKS_ARE_SOUGHT
        // Fontconfig drops a pattern of its own while it reads its configuration.
        const __lsan::ScopedDisabler disabler;
#endif
        FcInit();
    }

    const FontSource* FindMatch(const std::string& name, FontStyle style)
    {
        if (const FontSource* source = name.empty() ? nullptr : FindFamily(name.c_str(), style))
            return source;
        const std::string lower = LowerCase(name);
        for (const Relatives& entry : relatives) {
            if (lower != entry.name)
                continue;
            for (const char* family : entry.families) {
                if (const FontSource* source = FindFamily(family, style))
                    return source;
            }
        }
        const PatternPtr pattern = MakePattern(name.empty() ? "sans-serif" : name.c_str(), style);
        Substitute(pattern.get());
        FcResult result = FcResultMatch;
        const PatternPtr match(FcFontMatch(nullptr, pattern.get(), &result));
        return Intern(match.get());
    }

    const FontSource* FindFamily(const char* family, FontStyle style)
    {
        // Exact names only: no substitution rules, so a miss is cheap and certain.
        const PatternPtr pattern = MakePattern(family, style);
        FcDefaultSubstitute(pattern.get());
        FcResult result = FcResultMatch;
        const PatternPtr match(FcFontMatch(nullptr, pattern.get(), &result));
        if (!match)
            return nullptr;
        FcChar8* name = nullptr;
        for (int number = 0; FcPatternGetString(match.get(), FC_FAMILY, number, &name) == FcResultMatch; ++number) {
            if (FcStrCmpIgnoreCase(name, reinterpret_cast<const FcChar8*>(family)) == 0)
                return Intern(match.get());
        }
        return nullptr;
    }

    std::vector<const FontSource*> Sort(FontStyle style)
    {
        const PatternPtr pattern = MakePattern("sans-serif", style);
        Substitute(pattern.get());
        FcResult result = FcResultMatch;
        const FontSetPtr set(FcFontSort(nullptr, pattern.get(), FcTrue, nullptr, &result));
        std::vector<const FontSource*> sources;
        for (int number = 0; set && number < set->nfont; ++number) {
            const FontSource* source = Intern(set->fonts[number]);
            if (!source->path.empty())
                sources.push_back(source);
        }
        return sources;
    }

    const FontSource* Intern(FcPattern* pattern)
    {
        FontSource source;
        FcChar8* path = nullptr;
        if (pattern && FcPatternGetString(pattern, FC_FILE, 0, &path) == FcResultMatch)
            source.path = reinterpret_cast<const char*>(path);
        if (!source.path.empty()) {
            int weight = FC_WEIGHT_REGULAR;
            int slant = FC_SLANT_ROMAN;
            FcBool color = FcFalse;
            FcCharSet* characters = nullptr;
            FcPatternGetInteger(pattern, FC_INDEX, 0, &source.index);
            FcPatternGetInteger(pattern, FC_WEIGHT, 0, &weight);
            FcPatternGetInteger(pattern, FC_SLANT, 0, &slant);
            FcPatternGetBool(pattern, FC_COLOR, 0, &color);
            FcPatternGetCharSet(pattern, FC_CHARSET, 0, &characters);
            source.bold = weight >= FC_WEIGHT_DEMIBOLD;
            source.italic = slant != FC_SLANT_ROMAN;
            source.color = color == FcTrue;
            source.characters = characters;
        }
        for (const FontSource& known : sources_) {
            if (known.path == source.path && known.index == source.index)
                return &known;
        }
        if (source.characters)
            source.characters = FcCharSetCopy(const_cast<FcCharSet*>(source.characters));
        return &sources_.emplace_back(source);
    }

    std::mutex mutex_;
    // A deque, since pointers to its elements are handed out. Bounded by the faces installed.
    std::deque<FontSource> sources_;
    std::map<std::tuple<std::string, bool, bool>, const FontSource*> matches_;
    std::array<std::optional<std::vector<const FontSource*>>, 4> fallbacks_;
};

} // namespace

const FontSource* MatchFont(std::u16string_view family, FontStyle style)
{
    return FontDatabase::Instance().Match(family, style);
}

const FontSource* FindInstalledFont(const std::string& family, FontStyle style)
{
    return FontDatabase::Instance().FindInstalled(family, style);
}

const std::vector<const FontSource*>& FallbackSources(FontStyle style)
{
    return FontDatabase::Instance().Fallbacks(style);
}

bool HasCharacter(const FontSource& source, char32_t codePoint)
{
    return source.characters && FcCharSetHasChar(source.characters, codePoint);
}

} // namespace vornix
