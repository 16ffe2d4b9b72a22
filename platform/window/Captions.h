#pragma once

#include "platform/window/Layout.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tumble {

/// Into how many lines a caption is broken: one, two at most, or as many as there is room for.
enum class Wrap { No, Twice, Freely };

struct CaptionStyle {
    Font font{};
    Wrap wrap = Wrap::No;

    friend bool operator==(const CaptionStyle&, const CaptionStyle&) = default;
};

CaptionStyle captionStyle(const Label& label);
CaptionStyle captionStyle(const CommandButton& button);
CaptionStyle captionStyle(const OptionButton& option);
CaptionStyle captionStyle(const Frame& frame);

/// The application's font in the size and width of a caption. A point is 4/3 of a pixel, whatever the screen says:
/// places are fixed in pixels.
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

/// How large the desktop writes a text, broken at a width if there is one. The ampersand of an access key takes no
/// room.
using TextMeasure = std::function<TextSize(const std::string& text, const CaptionFont& font, std::optional<int> width)>;

/// How wide a desktop writes a piece of a text in one line.
using WidthOf = std::function<double(const std::string& piece)>;

/// How large a text is in lines of a height, for a desktop that can only measure pieces: broken at spaces if there is a
/// width, as many words in a line as fit.
TextSize textSize(const std::string& text, const WidthOf& widthOf, int lineSpacing, std::optional<int> width);

/// The captions that show in a window. Those of one container that are alike have one size: the one asked for, times
/// the scale, or where not all of them fit their rooms, the largest smaller and at last narrower one in which they do;
/// never below 6.5 points times the scale. Fonts differ by a fifth between machines, places do not.
class Captions {
public:
    using AvailableSize = std::function<PixelSize()>;
    using SetFont = std::function<void(const CaptionFont&)>;

    explicit Captions(TextMeasure measure);

    /// `available` is what the control has for its caption at the time. The control goes with the window, or `clear` is
    /// called.
    void add(const Control& control, const CaptionStyle& style, AvailableSize available, SetFont setFont);
    void clear() { groups_.clear(); }

    void fit(double scale) const;
    /// A caption is another.
    void fit(const Control& changed, double scale) const;

private:
    struct Each {
        const Control* control;
        AvailableSize available;
        SetFont setFont;
    };
    struct Group {
        const Container* container;
        CaptionStyle style;
        std::vector<Each> captions;
    };

    void fit(const Group& group, double scale) const;
    bool fits(const Group& group, const CaptionFont& font) const;

    TextMeasure measure_;
    std::vector<Group> groups_;
};

} // namespace tumble
