#pragma once

#include "platform/paint/PictureCache.h"
#include "platform/web/FormElement.h"
#include "platform/window/WindowDesktop.h"

#include <memory>
#include <string>

namespace tumble {

/// The desktop in a browser's page, which fills it with one form at a time. Where a call blocks, the running handler is
/// suspended and the page goes on to report. That happens to one handler at a time: what runs while it is suspended, of
/// a modal form, must not block.
class WebDesktop : public WindowDesktop {
public:
    /// Puts itself in use, for as long as the page lasts. Pictures that the painter does not know are crossed cards.
    WebDesktop(Application application, PicturePainter painter);

    void Refresh(Form& form) override;
    void End() override;
    void painted(PictureBox& box, const DisplayItem& item) override;

    // What the page reports.

    /// Handles a report, if the game is not over; what it leads to shows afterwards.
    template<class Report>
    void handle(const Report& report) {
        if (!ended_) {
            const auto kept = windows(); // until no handler of theirs runs
            report();
            forEachSurface(&SurfaceView::showNow);
        }
    }
    /// A report of one picture box, if that is still there.
    template<class Report>
    void handle(int element, const Report& report) {
        if (auto* surface = static_cast<SurfaceElement*>(WindowDesktop::surface(element))) {
            handle([&] { report(*surface); });
        }
    }
    void resized(PixelSize page);
    void input(int element, int value);
    /// False for a key that means nothing.
    bool key(int focus, const KeyPress& press);

protected:
    std::shared_ptr<FormView> open(Form& form, Modality modality) override;
    void waitFor(FormView& window) override;
    void showBox(const std::string& text, const std::string& caption) override;

private:
    /// Suspends the running handler for as long as the page waits.
    void suspend(void (*wait)());

    PictureCache pictures_;
    PixelSize page_;
    int box_ = 0;          // the message box that is open
    double lastFrame_ = 0; // milliseconds
    bool suspended_ = false;
    bool ended_ = false;
};

} // namespace tumble
