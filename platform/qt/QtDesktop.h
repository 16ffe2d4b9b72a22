#pragma once

#include "platform/Desktop.h"
#include "platform/PictureCache.h"
#include "platform/Random.h"
#include "platform/qt/FormWindow.h"
#include "platform/qt/KeyFilter.h"

#include <QIcon>
#include <QPointer>

#include <string>
#include <vector>

namespace tumble {

/// The real desktop, on Qt Widgets. Needs a QApplication that outlives it.
class QtDesktop : public Desktop {
public:
    /// Puts itself in use, until it goes. Pictures that the painter does not know are scaled from their bytes.
    explicit QtDesktop(Application application, PicturePainter painter = {});
    ~QtDesktop() override;

    /// Handles events until the application ends.
    void run() const;

    void Show(Form& form, Modality modality) override;
    void Hide(Form& form) override;
    void Unload(Form& form) override;
    void Refresh(Form& form) override;
    void MousePointer(Form& form, Pointer pointer) override;
    using Desktop::MsgBox;
    void MsgBox(const std::string& text, const std::string& caption) override;
    void End() override;
    void changed(Control& control) override;
    void painted(PictureBox& box, const PaintItem& item) override;
    ClockRandom& random() override { return random_; }

private:
    struct Shown {
        const Form* form;
        QPointer<FormWindow> window;
    };

    FormWindow* windowOf(const Form& form) const;
    /// The one shown last of those that still show; null when none does.
    FormWindow* windowInFront() const;
    void giveInputBack() const;

    PictureCache pictures_;
    QIcon icon_;
    KeyFilter keyFilter_;
    std::vector<Shown> windows_; // in the order of their showing
    WindowPlace lastPlace_;
    ClockRandom random_;
    bool ended_ = false;
};

} // namespace tumble
