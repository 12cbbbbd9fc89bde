// A mask engine with a box that a person can type into, and an owner that remembers what it was told.
#pragma once

#include "textbox/simulated_box.h"

#include <gmock/gmock.h>

#include <functional>
#include <string>
#include <vector>

namespace vornix {

class RecordingOwner : public MaskEngineOwner {
public:
    void KeyDown(i16& KeyCode, i16& Shift) override
    {
        log.push_back("KeyDown " + std::to_string(KeyCode));
        if (onKeyDown)
            onKeyDown(KeyCode, Shift);
    }
    void KeyPress(i16& KeyAscii) override
    {
        log.push_back("KeyPress " + std::to_string(KeyAscii));
        if (onKeyPress)
            onKeyPress(KeyAscii);
    }
    void KeyArrowMove(i16& KeyCode) override
    {
        log.push_back("KeyArrowMove " + std::to_string(KeyCode));
        if (onKeyArrowMove)
            onKeyArrowMove(KeyCode);
    }
    void Change() override
    {
        log.push_back("Change");
        if (onChange)
            onChange();
    }
    void FlattenBorder() override
    {
        log.push_back("FlattenBorder");
        // It may take itself away.
        if (const auto handler = onFlattenBorder)
            handler();
    }
    void SizeToText() override { log.push_back("SizeToText"); }
    const Locale& GetLocale() const override { return *locale; }

    std::vector<std::string> log;
    std::function<void(i16&, i16&)> onKeyDown;
    std::function<void(i16&)> onKeyPress;
    std::function<void(i16&)> onKeyArrowMove;
    std::function<void()> onChange;
    std::function<void()> onFlattenBorder;
    const Locale* locale = &BuiltinLocale();
};

class MaskEngineTest : public testing::Test {
protected:
    MaskEngineTest() { Box.Attach(Engine); }

    // The entries of one kind since the last call that cleared them.
    long Count(const std::string& entry) const { return std::ranges::count(Owner.log, entry); }
    void Forget() { Owner.log.clear(); }
    // A fresh form, without what it took to make it.
    void Mask(std::u16string_view mask)
    {
        Engine.SetMask(mask);
        Forget();
    }

    RecordingOwner Owner;
    SimulatedBox Box;
    MaskEngine Engine { Box, Owner };
};

} // namespace vornix
