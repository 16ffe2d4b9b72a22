#pragma once

#include "platform/paint/PictureCache.h"
#include "platform/web/FormElement.h"
#include "platform/window/WindowDesktop.h"

#include <memory>

namespace tumble {

/// The desktop in a browser's page, which one form at a time fills. A call that blocks suspends the running handler.
/// Asyncify can suspend one stack only, so a handler that runs meanwhile, of a modal form, must not block.
class WebDesktop : public WindowDesktop {
public:
    /// Puts itself in use for as long as the page lasts. A picture that the painter does not know is a crossed card.
    WebDesktop(Application application, PicturePainter painter);

    void Refresh(Form& form) override;
    void End() override;
    void painted(PictureBox& box, const DisplayItem& item) override;

    // Reports of the page.

    /// Handles a report, if the game is not over, and then shows what was painted.
    template<class Report>
    void handle(const Report& report) {
        if (!ended_) {
            const auto kept = windows(); // until no handler of theirs runs
            report();
            forEachSurface(&SurfaceView::showNow);
        }
    }
    /// Handles a report of one picture box, if that is still there.
    template<class Report>
    void handle(int element, const Report& report) {
        for (const auto& window : windows()) {
            if (SurfaceElement* surface = formElement(*window).surface(element)) {
                handle([&] { report(*surface); });
                return;
            }
        }
    }
    void resized(PixelSize page);
    void input(int element, int value);
    /// False for a key that means nothing.
    bool key(int focus, const KeyPress& press);

protected:
    std::shared_ptr<FormView> open(Form& form, Modality modality) override;
    void waitFor(FormView& window) override;

private:
    static FormElement& formElement(FormView& view) { return static_cast<FormElement&>(view); }
    /// Suspends the running handler until the page resumes it.
    void suspend(void (*wait)());

    PictureCache pictures_;
    PixelSize page_;
    double lastFrame_ = 0; // milliseconds
    bool suspended_ = false;
    bool ended_ = false;
};

} // namespace tumble
