// The fonts and faces one thread has open, bounded in number.
#pragma once

#include "font_face.h"
#include "text_renderer.h"
#include "unicode_classes.h"
#include "vornix/platform/device.h"

#include <memory>
#include <vector>

struct FT_LibraryRec_;

namespace vornix {

// A face at an em height: what a FontDescription means to layout. Underline and strike-out are the painter's matter.
class Font {
public:
    struct SimpleGlyph {
        // 0: the face has none; the text goes the long way.
        u16 glyph = 0;
        bool known = false;
        // Logical pixels.
        float advance = 0;
    };

    Font(FontFace& face, double emHeight, u32 id);

    // Never used twice in a thread.
    u32 Id() const { return id_; }
    FontFace& Face() const { return face_; }
    // Logical pixels.
    float EmHeight() const { return emHeight_; }
    float UnitsToPixels() const { return unitsToPixels_; }
    const FontMetrics& Metrics() const { return metrics_; }

    // Of three full stops.
    float EllipsisWidth()
    {
        const float kerning = static_cast<float>(face_.Kerning(u'.', u'.')) * unitsToPixels_;
        return 3 * Simple(u'.', u'.').advance + 2 * kerning;
    }

    const SimpleGlyph& Simple(int index, char16_t unit)
    {
        const SimpleGlyph& glyph = simple_[static_cast<std::size_t>(index)];
        return glyph.known ? glyph : LookUpSimple(index, unit);
    }

private:
    const SimpleGlyph& LookUpSimple(int index, char16_t unit);

    FontFace& face_;
    float emHeight_;
    float unitsToPixels_;
    u32 id_;
    FontMetrics metrics_;
    std::vector<SimpleGlyph> simple_;
};

class FontLibrary {
public:
    static constexpr std::size_t MostFonts = 128;
    static constexpr std::size_t MostFaces = 192;

    FontLibrary();
    ~FontLibrary();
    FontLibrary(const FontLibrary&) = delete;
    FontLibrary& operator=(const FontLibrary&) = delete;

    // Closes everything when too much is open; true when it did, and all that refers to fonts and faces is void.
    bool Trim();

    Font& Resolve(const FontDescription& description);
    FontFace& Open(const FontSource& source, FontStyle style);
    FontFace& Face(u16 id) const { return *faces_[id]; }

    std::size_t Fonts() const { return fonts_.size(); }
    std::size_t Faces() const { return faces_.size(); }

private:
    struct KnownFont {
        std::u16string face;
        int height = 0;
        FontStyle style;
        std::unique_ptr<Font> font;
    };

    FT_LibraryRec_* freeType_ = nullptr;
    std::vector<std::unique_ptr<FontFace>> faces_;
    std::vector<KnownFont> fonts_;
    u32 nextFont_ = 1;
};

} // namespace vornix
