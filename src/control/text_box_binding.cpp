// Members of a text box called by their names.
#include "control/late_call.h"
#include "vornix/text_box_members.h"

namespace vornix {

Variant Invoke(TextBox& box, const Locale& locale, std::string_view name, InvokeKind kind, std::span<Variant> args)
{
    return OrOutOfMemory([&] {
        const MemberInfo* const member = FindTextBoxMember(name);
        if (member == nullptr)
            RaiseError(ErrorNumber::NoSuchMember);
        const MemberTableOf<TextBox> table { TextBoxMembers(), TextBoxCodes() };
        return InvokeStep(box, locale, table, *member, kind, args, {});
    });
}

} // namespace vornix
