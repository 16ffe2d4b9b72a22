#pragma once

#include "platform/forms/Controls.h"
#include "platform/forms/Desktop.h"

#include <string>

namespace tumble {

/// An alert is a small dialog whose text screen readers speak as soon as it opens.
enum class FormKind { Window, Alert };

/// A window: its caption, its client area and its controls, which are members of the derived class. Unloading closes
/// the window; showing the form again loads it afresh.
class Form : public Container {
public:
    /// Client size in twips.
    Form(std::string caption, float width, float height, FormKind formKind = FormKind::Window);
    ~Form() override;

    Form& form() override { return *this; }
    /// No other form is modal, and the hourglass does not show over this one.
    bool takesInput() const override { return !desktop().blocks(*this) && pointer_ != Pointer::Hourglass; }
    const std::string& Caption() const { return caption_; }
    /// The window has it from the next load on.
    void Caption(std::string caption) { caption_ = std::move(caption); }
    float Width() const override { return width_; }
    float Height() const { return height_; }

    /// Loads the form if it is not loaded and shows it, centred on the screen. Modal: no other form takes input, and
    /// the call returns when the form is unloaded.
    void Show(Modality modality = Modality::Modeless);
    void Hide();
    /// May be called from inside one of the form's own handlers.
    void Unload();
    /// Brings what was painted to the screen at once.
    void Refresh();
    /// While the hourglass shows, the form takes no input and each item reaches the screen as it is painted.
    void MousePointer(Pointer pointer);
    Pointer MousePointer() const { return pointer_; }

    /// Clicks the button that the key presses, if there is one.
    void press(Key key) const;
    /// Clicks the button with the access key, a capital letter; false if there is none.
    bool pressAccessKey(char letter) const;

    /// Runs when the form is loaded, before it shows.
    virtual void Form_Load() {}
    /// Runs when the player closes the window by its frame.
    virtual void Form_Close() { Unload(); }

    const FormKind kind;

private:
    std::string caption_;
    float width_;
    float height_;
    Pointer pointer_ = Pointer::Default;
    bool loaded_ = false;
};

} // namespace tumble
