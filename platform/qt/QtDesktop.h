#pragma once

#include "platform/Desktop.h"
#include "platform/Random.h"
#include "platform/qt/HeldKeys.h"
#include "platform/qt/PictureCache.h"

#include <QIcon>
#include <QPointer>

#include <map>
#include <string>

namespace tumble {

class FormWindow;

/// The real desktop, on Qt Widgets. Needs a QApplication that outlives it.
class QtDesktop : public Desktop {
public:
    /// Puts itself in use, until it goes. Without a painter, pictures are scaled from their bytes.
    explicit QtDesktop(Application application, PicturePainter painter = {});
    QtDesktop(const QtDesktop&) = delete;
    QtDesktop& operator=(const QtDesktop&) = delete;
    QtDesktop(QtDesktop&&) = delete;
    QtDesktop& operator=(QtDesktop&&) = delete;
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
    FormWindow* windowOf(const Form& form) const;
    /// The window that the player looks at; null when none shows.
    FormWindow* windowInFront() const;
    void giveInputBack() const;
    double openingScale() const;

    PictureCache pictures_;
    QIcon icon_;
    HeldKeys heldKeys_;
    std::map<const Form*, QPointer<FormWindow>> windows_;
    ClockRandom random_;
    bool ended_ = false;
};

} // namespace tumble
