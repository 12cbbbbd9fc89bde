// Whether changes reach the screen. Open is a working copy of Redraw, the host's setting: a step that closes the gate
// puts the host's setting back, never the state it found.
#pragma once

namespace vornix {

class RedrawGate {
public:
    bool IsOpen() const { return open_; }
    bool Redraw() const { return redraw_; }
    void SetRedraw(bool redraw) { redraw_ = redraw; } // the setting alone
    void Open() { open_ = true; }
    void Close() { open_ = false; }
    void RestoreFromRedraw() { open_ = redraw_; }

    // Closes the gate for a scope; on leaving it, by return or by exception, the value of Redraw is put back.
    class Closed {
    public:
        explicit Closed(RedrawGate& gate)
            : gate_(gate)
        {
            gate_.Close();
        }
        ~Closed() { gate_.RestoreFromRedraw(); }
        Closed(const Closed&) = delete;
        Closed& operator=(const Closed&) = delete;

    private:
        RedrawGate& gate_;
    };

    // Opens the gate for a scope, whatever the host's setting is, and ends like Closed.
    class Opened {
    public:
        explicit Opened(RedrawGate& gate)
            : gate_(gate)
        {
            gate_.Open();
        }
        ~Opened() { gate_.RestoreFromRedraw(); }
        Opened(const Opened&) = delete;
        Opened& operator=(const Opened&) = delete;

    private:
        RedrawGate& gate_;
    };

private:
    bool redraw_ = true;
    bool open_ = false;
};

} // namespace vornix
