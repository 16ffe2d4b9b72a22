#include "platform/forms/Form.h"

#include <utility>
#include <variant>

namespace tumble {

namespace {

template<class Condition>
const CommandButton* buttonThat(const Condition& condition, const Container& container) {
    for (const AnyControl& control : container.controls()) {
        const CommandButton* found = nullptr;
        if (auto* const* button = std::get_if<CommandButton*>(&control)) {
            found = condition(**button) ? *button : nullptr;
        } else if (auto* const* frame = std::get_if<Frame*>(&control)) {
            found = buttonThat(condition, **frame);
        }
        if (found != nullptr) {
            return found;
        }
    }
    return nullptr;
}

/// Whether there is such a button.
template<class Condition>
bool pressButtonThat(const Condition& condition, const Container& container) {
    const CommandButton* button = buttonThat(condition, container);
    if (button != nullptr) {
        button->Click();
    }
    return button != nullptr;
}

} // namespace

Form::Form(std::string caption, float width, float height, FormKind formKind)
    : kind(formKind), caption_(std::move(caption)), width_(width), height_(height) {}

Form::~Form() {
    Unload();
}

void Form::Show(Modality modality) {
    if (!loaded_) {
        loaded_ = true;
        Form_Load();
    }
    desktop().Show(*this, modality);
}

void Form::Hide() {
    desktop().Hide(*this);
}

void Form::Unload() {
    if (loaded_) {
        loaded_ = false;
        desktop().Unload(*this);
    }
}

void Form::Refresh() {
    desktop().Refresh(*this);
}

void Form::MousePointer(Pointer pointer) {
    pointer_ = pointer;
    desktop().MousePointer(*this, pointer);
}

void Form::press(Key key) const {
    pressButtonThat([key](const CommandButton& button) { return button.pressedBy(key); }, *this);
}

bool Form::pressAccessKey(char letter) const {
    return pressButtonThat(
        [letter](const CommandButton& button) { return PlainCaption(button.Caption()).accessKey == letter; }, *this);
}

} // namespace tumble
