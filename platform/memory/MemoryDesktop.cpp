#include "platform/memory/MemoryDesktop.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace tumble {

MemoryDesktop::MemoryDesktop(Application application) : Desktop(std::move(application)) {
    desktop(this);
}

MemoryDesktop::~MemoryDesktop() {
    desktop(nullptr);
}

void MemoryDesktop::Show(Form& form, Modality modality) {
    if (const auto* box = dynamic_cast<const MessageBox*>(&form)) {
        messages_.push_back({box->lblText.Caption(), box->Caption()});
        if (whileMessageIsOpen) {
            const Modal modal(*this, form);
            whileMessageIsOpen();
        }
        return;
    }
    note("show ", form);
    shown_.push_back(&form);
    if (modality == Modality::Modal && whileModal) {
        const Modal modal(*this, form);
        whileModal(form);
    }
}

void MemoryDesktop::Hide(Form& form) {
    note("hide ", form);
    std::erase(shown_, &form);
}

void MemoryDesktop::Unload(Form& form) {
    if (form.kind == FormKind::Window) {
        note("unload ", form);
        std::erase(shown_, &form);
    }
}

void MemoryDesktop::MousePointer(Form& /*form*/, Pointer pointer) {
    journal_.push_back("pointer " + std::to_string(static_cast<int>(pointer)));
}

void MemoryDesktop::painted(PictureBox& box, const DisplayItem& item) {
    if (keepsLog_) {
        logs_[&box].push_back(item);
    }
}

TextExtent MemoryDesktop::measure(const std::string& text, const Font& /*font*/, std::optional<float> width) {
    const float inOneLine = static_cast<float>(text.size()) * 7 * twipsPerPixel;
    const float most = width.value_or(inOneLine);
    return {.Width = std::min(inOneLine, most), .Height = std::ceil(inOneLine / most) * 15 * twipsPerPixel};
}

bool MemoryDesktop::shows(const Form& form) const {
    return std::find(shown_.begin(), shown_.end(), &form) != shown_.end();
}

void MemoryDesktop::note(std::string what, const Form& form) {
    journal_.push_back(std::move(what) + form.Caption());
}

} // namespace tumble
