#include "platform/memory/MemoryDesktop.h"

#include <algorithm>
#include <utility>

namespace tumble {

float ScriptedRandom::Rnd() {
    return values_.empty() ? 0 : values_[drawn_++ % values_.size()];
}

MemoryDesktop::MemoryDesktop(Application application) : Desktop(std::move(application)) {
    desktop(this);
}

MemoryDesktop::~MemoryDesktop() {
    desktop(nullptr);
}

void MemoryDesktop::Show(Form& form, Modality modality) {
    note("show ", form);
    shown_.push_back(&form);
    if (modality == Modality::Modal && whileModal) {
        const Modal modal(*this, &form);
        whileModal(form);
    }
}

void MemoryDesktop::Hide(Form& form) {
    note("hide ", form);
    std::erase(shown_, &form);
}

void MemoryDesktop::Unload(Form& form) {
    note("unload ", form);
    std::erase(shown_, &form);
}

void MemoryDesktop::Refresh(Form& form) {
    note("refresh ", form);
}

void MemoryDesktop::MousePointer(Form& /*form*/, Pointer pointer) {
    journal_.push_back("pointer " + std::to_string(static_cast<int>(pointer)));
}

void MemoryDesktop::MsgBox(const std::string& text, const std::string& caption) {
    messages_.push_back({text, caption});
    if (whileMessageIsOpen) {
        const Modal modal(*this);
        whileMessageIsOpen();
    }
}

void MemoryDesktop::painted(PictureBox& box, const DisplayItem& item) {
    if (keepsLog_) {
        logs_[&box].push_back(item);
    }
}

std::vector<MemoryDesktop::Message> MemoryDesktop::takeMessages() {
    return std::exchange(messages_, {});
}

bool MemoryDesktop::shows(const Form& form) const {
    return std::find(shown_.begin(), shown_.end(), &form) != shown_.end();
}

void MemoryDesktop::note(std::string what, const Form& form) {
    journal_.push_back(std::move(what) + form.Caption());
}

} // namespace tumble
