#pragma once

#include "platform/base/Random.h"
#include "platform/forms/Desktop.h"
#include "platform/window/FormView.h"

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace tumble {

/// A desktop of real windows, whatever they are made of.
class WindowDesktop : public Desktop {
public:
    WindowDesktop(Application application, TextMeasure measure)
        : Desktop(std::move(application)), measure_(std::move(measure)) {}

    void Show(Form& form, Modality modality) override;
    void Hide(Form& form) override;
    void Unload(Form& form) override;
    void MousePointer(Form& form, Pointer pointer) override;
    void changed(Control& control) override;
    /// At the scale of the window in front.
    TextExtent measure(const std::string& text, const Font& font, std::optional<float> width) override;
    ClockRandom& random() override { return random_; }

    /// Calls an action for each picture box that shows.
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
    /// Returns when the window is closed. Handlers run meanwhile.
    virtual void waitFor(FormView& window) = 0;

    /// In the order of their showing. A window is destroyed when nobody keeps it any more.
    const std::vector<std::shared_ptr<FormView>>& windows() const { return windows_; }
    void clear() { windows_.clear(); }
    /// Null when the form is not loaded.
    FormView* windowOf(const Form& form) const;
    /// The one shown last of those that still show; null when none does.
    FormView* inFront() const;

private:
    TextMeasure measure_;
    std::vector<std::shared_ptr<FormView>> windows_;
    ClockRandom random_;
};

} // namespace tumble
