#pragma once

#include "platform/base/Random.h"
#include "platform/forms/MessageBox.h"

#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace tumble {

/// A generator that hands out the values it was given, over and over; zero when it was given none.
class ScriptedRandom : public Random {
public:
    void script(std::vector<float> values) { values_ = std::move(values); }
    /// How often it was seeded, and how many values were drawn.
    int seeded() const { return seeded_; }
    std::size_t drawn() const { return drawn_; }

    void Randomize() override { ++seeded_; }
    float Rnd() override { return values_.empty() ? 0 : values_[drawn_++ % values_.size()]; }

private:
    std::vector<float> values_;
    int seeded_ = 0;
    std::size_t drawn_ = 0;
};

/// A desktop without a display: it lists what it was asked to show, and a test reads the lists.
class MemoryDesktop : public Desktop {
public:
    struct Message {
        std::string text;
        std::string caption;
        friend bool operator==(const Message&, const Message&) = default;
    };

    /// Puts itself in use until it is destroyed.
    explicit MemoryDesktop(Application application);
    ~MemoryDesktop() override;

    void Show(Form& form, Modality modality) override;
    void Hide(Form& form) override;
    void Unload(Form& form) override;
    void Refresh(Form& form) override { note("refresh ", form); }
    void MousePointer(Form& form, Pointer pointer) override;
    void End() override { ended_ = true; }
    void changed(Control& /*control*/) override {}
    void painted(PictureBox& box, const DisplayItem& item) override;
    /// In a made-up font: a character is 7 pixels wide, a line 15 high.
    TextExtent measure(const std::string& text, const Font& font, std::optional<float> width) override;
    ScriptedRandom& random() override { return random_; }

    /// The message boxes since the last call, in their order.
    std::vector<Message> takeMessages() { return std::exchange(messages_, {}); }
    bool shows(const Form& form) const;
    bool ended() const { return ended_; }
    /// What forms were asked for, in order: "show Tumble Options", "pointer 11", "refresh Tumble", ...
    const std::vector<std::string>& journal() const { return journal_; }
    /// Every item ever painted on the box since the call of `keepLog`.
    const std::vector<DisplayItem>& log(const PictureBox& box) { return logs_[&box]; }
    void keepLog() { keepsLog_ = true; }

    /// What the player does while a message box is open, and while a modal form is.
    std::function<void()> whileMessageIsOpen;
    std::function<void(Form&)> whileModal;

private:
    void note(std::string what, const Form& form);

    std::vector<const Form*> shown_;
    std::vector<Message> messages_;
    std::vector<std::string> journal_;
    std::map<const PictureBox*, std::vector<DisplayItem>> logs_;
    ScriptedRandom random_;
    bool keepsLog_ = false;
    bool ended_ = false;
};

} // namespace tumble
