#pragma once

#include "platform/base/NonMovable.h"
#include "platform/forms/Form.h"

#include <cstdint>
#include <string>
#include <vector>

namespace tumble {

class Random;

/// What the program says of itself.
struct Application {
    std::string Title;
    std::int16_t Major;
    std::int16_t Minor;
    std::int16_t Revision;
    const Picture& Icon;
    // Client size in twips of its largest form; all forms open at the scale that suits this one.
    float Width;
    float Height;
};

/// The windowing system as the game sees it.
class Desktop : private NonMovable {
public:
    explicit Desktop(Application application);
    virtual ~Desktop() = default;

    const Application& App() const { return application_; }

    /// Whether what the player does reaches the form: no message box is open, no other form is modal, and the hourglass
    /// does not show over it.
    bool takesInput(const Form& form) const;

    virtual void Show(Form& form, Modality modality) = 0;
    virtual void Hide(Form& form) = 0;
    virtual void Unload(Form& form) = 0;
    virtual void Refresh(Form& form) = 0;
    virtual void MousePointer(Form& form, Pointer pointer) = 0;
    /// Shows a message box with an OK button and returns when the player has closed it; no form takes input meanwhile.
    virtual void MsgBox(const std::string& text, const std::string& caption) = 0;
    /// A message box under the application's title.
    void MsgBox(const std::string& text) { MsgBox(text, application_.Title); }
    /// Ends the application: no further event is handled once the running one has returned.
    virtual void End() = 0;

    /// A control's caption or value is another.
    virtual void changed(Control& control) = 0;
    /// An item was laid over a picture box's painting.
    virtual void painted(PictureBox& box, const DisplayItem& item) = 0;

    virtual Random& random() = 0;

protected:
    /// While it lives, only the modal form takes input; of a message box, which is none of the forms, no form does.
    class Modal : private NonMovable {
    public:
        explicit Modal(Desktop& desktop, const Form* form = nullptr);
        ~Modal();

    private:
        Desktop& desktop_;
    };

private:
    Application application_;
    std::vector<const Form*> modal_; // the last one opened is in front; null for a message box
};

/// The desktop in use.
Desktop& desktop();
/// Sets the desktop in use, which must outlive every form; null takes it out of use.
void desktop(Desktop* inUse);

} // namespace tumble
