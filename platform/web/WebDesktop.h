#pragma once

#include "platform/Desktop.h"
#include "platform/PictureCache.h"
#include "platform/Random.h"
#include "platform/web/FormView.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace tumble {

/// The desktop in a browser's page, which fills it with one form at a time. Where a call blocks, the running handler is
/// suspended and the page goes on to report. That happens to one handler at a time: what runs while it is suspended, of
/// a modal form, must not block.
class WebDesktop : public Desktop {
public:
    /// Puts itself in use, for as long as the page lasts. Pictures that the painter does not know are crossed cards.
    WebDesktop(Application application, PicturePainter painter);

    void Show(Form& form, Modality modality) override;
    void Hide(Form& form) override;
    void Unload(Form& form) override;
    void Refresh(Form& form) override;
    void MousePointer(Form& form, Pointer pointer) override;
    using Desktop::MsgBox;
    void MsgBox(const std::string& text, const std::string& caption) override;
    void End() override { ended_ = true; }
    void changed(Control& control) override;
    void painted(PictureBox& box, const PaintItem& item) override;
    ClockRandom& random() override { return random_; }

    // What the page reports.

    /// Handles a report, if the game is not over; what it leads to shows afterwards.
    template<class Report>
    void handle(const Report& report) {
        if (!ended_) {
            ++running_;
            report();
            returned();
        }
    }
    void resized(PixelSize page);
    void input(int element, int value);
    // False for a key that means nothing.
    bool key(int focus, const KeyPress& press);
    bool accessKey(char letter) const;
    template<class Action>
    void everySurface(const Action& action) const {
        for (const auto& view : views_) {
            for (const auto& surface : view->surfaces()) {
                std::invoke(action, *surface);
            }
        }
    }
    /// Null for another element.
    Surface* surface(int canvas) const;

private:
    FormView* viewOf(const Form& form) const;
    /// The form in front; null when none shows.
    FormView* inFront() const;
    void layOut(FormView& view) const;
    /// A handler has.
    void returned();
    /// Suspends the running handler for as long as the page waits.
    void suspend(void (*wait)());
    void nextFrame();

    PictureCache pictures_;
    std::vector<std::unique_ptr<FormView>> views_;   // in the order of their showing
    std::vector<std::unique_ptr<FormView>> retired_; // until no handler runs
    PixelSize page_;
    const Form* modalForm_ = nullptr;
    int boxButton_ = 0;    // of the message box that is open
    double lastFrame_ = 0; // milliseconds
    int running_ = 0;      // handlers, with the suspended one
    bool suspended_ = false;
    bool ended_ = false;
    ClockRandom random_;
};

} // namespace tumble
