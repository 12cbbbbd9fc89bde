// Members of a scroll bar called by their names.
#include "control/late_call.h"
#include "vornix/scroll_bar_members.h"

namespace vornix {

Variant Invoke(ScrollBar& bar, const Locale& locale, std::string_view name, InvokeKind kind, std::span<Variant> args)
{
    return OrOutOfMemory([&] {
        const MemberInfo* const member = FindScrollBarMember(name);
        if (member == nullptr)
            RaiseError(ErrorNumber::NoSuchMember);
        const MemberTableOf<ScrollBar> table { ScrollBarMembers(), ScrollBarCodes() };
        return InvokeStep(bar, locale, table, *member, kind, args, {});
    });
}

} // namespace vornix
