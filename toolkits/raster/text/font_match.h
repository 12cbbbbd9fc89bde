// Which font files serve a name, and in which order files are asked for characters. Fontconfig behind one lock; what is
// handed out stays valid and unchanged until the program ends, for every thread.
#pragma once

#include "vornix/types.h"

#include <string>
#include <string_view>
#include <vector>

struct _FcCharSet; // NOLINT(bugprone-reserved-identifier): its name in Fontconfig

namespace vornix {

// One face in one file.
struct FontSource {
    std::string path;
    int index = 0;
    bool bold = false;
    bool italic = false;
    // Holds colour pictures.
    bool color = false;
    const _FcCharSet* characters = nullptr;
};

struct FontStyle {
    bool bold = false;
    bool italic = false;
    friend bool operator==(const FontStyle&, const FontStyle&) = default;
};

// The face for a family name: that family, else a relative of the platform's usual names, else what Fontconfig puts in
// its place. Never null; without any font installed the path is empty.
const FontSource* MatchFont(std::u16string_view family, FontStyle style);

// The face of exactly this family, or null.
const FontSource* FindInstalledFont(const std::string& family, FontStyle style);

// All faces worth asking for a character, best first.
const std::vector<const FontSource*>& FallbackSources(FontStyle style);

bool HasCharacter(const FontSource& source, char32_t codePoint);

} // namespace vornix
