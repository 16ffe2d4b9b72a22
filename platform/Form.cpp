#include "platform/Form.h"

#include "platform/Desktop.h"

#include <utility>

namespace tumble {

Form::Form(std::string caption, float width, float height)
    : caption_(std::move(caption)), width_(width), height_(height) {}

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

} // namespace tumble
