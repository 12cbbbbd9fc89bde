// What the shell asks of the parts that come to life with input and data. A part that is not there does nothing.
#pragma once

#include "interact/edit_context.h"

namespace vornix {

class VirtualModeControl : public ListPage {
public:
    virtual void SetUp() { }
    void RollPage() override { }
    int PageSize() const override { return 0; }
    i32 Offset() const override { return 0; }
    i32 Length() const override { return 0; }
    void GotoListPosition(i32 /*position*/) override { }
    void RollPageWithCurrent() override { }
};

class RecordSourceControl : public ComboSource {
public:
    virtual bool IsBound() const { return false; }
    virtual void Load() { }
};

} // namespace vornix
