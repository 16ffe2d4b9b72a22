#pragma once

#include "platform/window/ControlView.h"
#include "platform/window/Layout.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tumble {

/// Whether a caption stays in one line, or is broken into two at most, or as many as there is space for.
enum class Wrap { No, Twice, Freely };

struct CaptionStyle {
    Font font{};
    Wrap wrap = Wrap::No;
    PixelSize margin{}; // what the control keeps free beside and above its caption, at scale 1

    friend bool operator==(const CaptionStyle&, const CaptionStyle&) = default;
};

CaptionStyle captionStyle(const Label& label);
CaptionStyle captionStyle(const CommandButton& button);
CaptionStyle captionStyle(const OptionButton& option);
CaptionStyle captionStyle(const Frame& frame);

/// The application's font in the size and width of a caption. A point is 4/3 of a pixel, whatever resolution the screen
/// reports: places are fixed in pixels.
struct CaptionFont {
    double points;
    bool bold = false;
    int stretch = 100; // percent of the font's own width

    double pixels() const { return points * 4 / 3; }
};

struct TextSize {
    int width;
    int height;
    int lineSpacing;
};

/// How large the desktop shows a text, broken at line feeds and, if there is one, at a width. The ampersand of an
/// access key takes no space.
using TextMeasure = std::function<TextSize(const std::string& text, const CaptionFont& font, std::optional<int> width)>;

/// The captions of a window. Those of one container that are alike have one size: the one asked for, times the scale,
/// or where not all of them fit, the largest smaller and at last narrower one in which they do; never below 6.5 points
/// times the scale. Fonts differ by a fifth between machines, places do not.
class Captions {
public:
    explicit Captions(TextMeasure measure);

    /// `place` is the control's in its container. The view lasts as long as the captions, or until `clear` is called.
    void add(const Control& control, const CaptionStyle& style, const Place& place, ControlView& view);
    void clear() { groups_.clear(); }

    void fit(const Layout& layout) const;
    /// Only where the changed control's caption has an influence.
    void fit(const Control& changed, const Layout& layout) const;

private:
    struct Each {
        const Control* control;
        Place place;
        ControlView* view;
    };
    struct Group {
        const Container* container;
        CaptionStyle style;
        std::vector<Each> captions;
    };

    void fit(const Group& group, const Layout& layout) const;
    bool fits(const Group& group, const CaptionFont& font, const Layout& layout) const;

    TextMeasure measure_;
    std::vector<Group> groups_;
};

} // namespace tumble
