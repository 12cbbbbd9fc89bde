// The platform's edit box as the mask engine sees it. Places and lengths count UTF-16 units; lines end in CR LF.
#pragma once

#include <string>
#include <string_view>

namespace vornix {

class EditBox {
public:
    virtual ~EditBox() = default;

    virtual std::u16string Text() const = 0;
    // Puts the caret in front of the text and empties the selection.
    virtual void SetText(std::u16string_view text) = 0;
    virtual int SelStart() const = 0;
    // Limited to the text; empties the selection.
    virtual void SetSelStart(int start) = 0;
    virtual int SelLength() const = 0;
    // Limited to what follows the start.
    virtual void SetSelLength(int length) = 0;
    virtual std::u16string SelText() const = 0;
    // Takes the place of the selection, as pasting does; the caret then stands behind it.
    virtual void SetSelText(std::u16string_view text) = 0;
};

} // namespace vornix
