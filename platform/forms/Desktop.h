#pragma once

#include "platform/base/NonMovable.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tumble {

class Control;
class Form;
class PictureBox;
class Random;
struct DisplayItem;
struct Font;
struct Picture;

enum class Modality { Modeless, Modal };

/// The mouse pointer's shape over a form.
enum class Pointer { Default = 0, Hourglass = 11 };

/// The program's name, version and icon.
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

/// The size of a text, in twips.
struct TextExtent {
    float Width;
    float Height;
};

/// The windowing system as the game sees it.
class Desktop : private NonMovable {
public:
    explicit Desktop(Application application);
    virtual ~Desktop() = default;

    const Application& App() const { return application_; }

    /// Whether another form is modal.
    bool blocks(const Form& form) const { return !modal_.empty() && modal_.back() != &form; }

    virtual void Show(Form& form, Modality modality) = 0;
    virtual void Hide(Form& form) = 0;
    virtual void Unload(Form& form) = 0;
    virtual void Refresh(Form& form) = 0;
    virtual void MousePointer(Form& form, Pointer pointer) = 0;
    /// Ends the application: no further event is handled once the running handler has returned.
    virtual void End() = 0;

    /// A control's caption or value has changed.
    virtual void changed(Control& control) = 0;
    /// An item was added to a picture box's display list.
    virtual void painted(PictureBox& box, const DisplayItem& item) = 0;

    /// How large a label shows a text, which is broken at line feeds and, if there is a width in twips, at it.
    virtual TextExtent measure(const std::string& text, const Font& font, std::optional<float> width) = 0;

    virtual Random& random() = 0;

protected:
    /// While it exists, only the modal form takes input.
    class Modal : private NonMovable {
    public:
        Modal(Desktop& desktop, const Form& form);
        ~Modal();

    private:
        Desktop& desktop_;
    };

private:
    Application application_;
    std::vector<const Form*> modal_; // the last one opened is in front
};

/// The desktop in use.
Desktop& desktop();
/// Sets the desktop in use, which must outlive every form; null takes it out of use.
void desktop(Desktop* inUse);

} // namespace tumble
