#pragma once

// Long work (loading, export, collection) reports to a Progress and polls it for cancel.
// The desktop program pumps its events inside poll(); headless callers never cancel.
class Progress {
public:
    virtual ~Progress() = default;
    virtual void setValue(int percent) = 0; // 0..100
    // Lets the user act (events in the desktop program); true when cancel was pressed since the
    // last call.
    virtual bool poll() = 0;
};

// The progress of a caller that shows nothing and never cancels.
class NoProgress final : public Progress {
public:
    void setValue(int) override {}
    bool poll() override { return false; }
};
