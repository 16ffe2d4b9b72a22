#pragma once

#include "platform/base/Random.h"
#include "platform/forms/Desktop.h"
#include "platform/window/FormView.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace tumble {

/// A desktop of real windows, whatever they are made of.
class WindowDesktop : public Desktop {
public:
    using Desktop::Desktop;

    void Show(Form& form, Modality modality) override;
    void Hide(Form& form) override;
    void Unload(Form& form) override;
    void MousePointer(Form& form, Pointer pointer) override;
    using Desktop::MsgBox;
    void MsgBox(const std::string& text, const std::string& caption) override;
    void changed(Control& control) override;
    ClockRandom& random() override { return random_; }

    /// What is done to each picture box that shows.
    template<class Action>
    void forEachSurface(const Action& action) const {
        for (const auto& window : std::vector(windows_)) { // which an action may change
            for (SurfaceView* surface : window->surfaces()) {
                std::invoke(action, *surface);
            }
        }
    }

protected:
    /// A new window for a form, which does not show yet.
    virtual std::shared_ptr<FormView> open(Form& form, Modality modality) = 0;
    /// Returns when the window is retired; that handlers run meanwhile is the toolkit's business.
    virtual void waitFor(FormView& window) = 0;
    /// Shows a message box and returns when the player has closed it.
    virtual void showBox(const std::string& text, const std::string& caption) = 0;

    /// In the order of their showing. A window goes when nobody keeps it any more.
    const std::vector<std::shared_ptr<FormView>>& windows() const { return windows_; }
    void clear() { windows_.clear(); }
    /// Null when the form is not loaded.
    FormView* windowOf(const Form& form) const;
    /// The one shown last of those that still show; null when none does.
    FormView* inFront() const;
    /// Null for an element that shows no box of any.
    SurfaceView* surface(int element) const;

private:
    std::vector<std::shared_ptr<FormView>> windows_;
    ClockRandom random_;
};

} // namespace tumble
