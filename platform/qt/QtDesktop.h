#pragma once

#include "platform/paint/PictureCache.h"
#include "platform/qt/FormWindow.h"
#include "platform/qt/KeyFilter.h"
#include "platform/window/WindowDesktop.h"

#include <memory>

namespace tumble {

/// The real desktop, on Qt Widgets. Needs a QApplication that outlives it.
class QtDesktop : public WindowDesktop {
public:
    /// The desktop in use until it is destroyed. Pictures that the painter does not know are decoded and scaled.
    explicit QtDesktop(Application application, PicturePainter painter = {});
    ~QtDesktop() override;

    /// Handles events until the application ends.
    void run() const;

    void Refresh(Form& form) override;
    void End() override;
    void painted(PictureBox& box, const DisplayItem& item) override;

protected:
    std::shared_ptr<FormView> open(Form& form, Modality modality) override;
    void waitFor(FormView& window) override;

private:
    FormWindow* windowOf(const Form& form) const { return static_cast<FormWindow*>(WindowDesktop::windowOf(form)); }
    FormWindow* inFront() const { return static_cast<FormWindow*>(WindowDesktop::inFront()); }

    PictureCache pictures_;
    KeyFilter keyFilter_;
    WindowPlace place_; // of the last window
    bool ended_ = false;
};

} // namespace tumble
