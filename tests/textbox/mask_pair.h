// The mask engine with a simulated box, and the plain model beside it: the same is done to both.
#pragma once

#include "textbox/plain_mask.h"
#include "textbox/simulated_box.h"

#include <functional>
#include <string>

namespace vornix {

// Gives a number from 0 to below its argument.
using NumberSource = std::function<int(int)>;

class MaskPair {
public:
    explicit MaskPair(NumberSource pick);

    // Does one thing at random to both.
    void Step();
    // What the two do not agree in, or nothing.
    std::string Difference() const;
    // The steps so far, to read.
    const std::string& Story() const { return story_; }

private:
    class Owner : public MaskEngineOwner {
    public:
        void KeyDown(i16&, i16&) override { }
        void KeyPress(i16&) override { }
        void KeyArrowMove(i16& KeyCode) override
        {
            ++arrows;
            KeyCode = 0;
        }
        void Change() override { ++changes; }
        void FlattenBorder() override { }
        void SizeToText() override { }
        const Locale& GetLocale() const override { return BuiltinLocale(); }

        int changes = 0;
        int arrows = 0;
    };

    void Tell(const std::string& what, std::u16string_view text = {});
    std::u16string RandomText(std::u16string_view characters, int longest);
    void WriteSetting();
    void WriteMaskOrText();
    void ChangeFromOutside();
    void EditByKey();
    void MoveOrSelect();
    void Place(int start, int length);
    void TypeOrErase();

    NumberSource pick_;
    Owner owner_;
    SimulatedBox box_;
    MaskEngine engine_ { box_, owner_ };
    PlainMask plain_;
    int plainArrows_ = 0;
    std::string story_;
};

} // namespace vornix
