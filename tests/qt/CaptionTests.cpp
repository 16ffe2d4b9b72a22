#include "Windows.h"

#include "game/frmAbout.h"
#include "platform/qt/Buttons.h"

#include <QFontDatabase>
#include <QGroupBox>
#include <QImage>
#include <QLabel>
#include <QPalette>
#include <QTranslator>

#include <algorithm>
#include <cmath>
#include <map>

namespace tumble {

namespace {

struct Caption {
    QString text;
    QRect room;
    int flags;
};

Caption captionOf(const QWidget* widget) {
    if (const auto* label = qobject_cast<const QLabel*>(widget)) {
        return {label->text(), label->rect(), Qt::TextWordWrap};
    }
    if (const auto* option = dynamic_cast<const WrappingRadioButton*>(widget)) {
        return {option->text(), option->captionRoom(), Qt::TextWordWrap | Qt::TextShowMnemonic};
    }
    if (const auto* frame = dynamic_cast<const CaptionedFrame*>(widget)) {
        return {frame->title(), frame->captionRoom(), 0};
    }
    if (const auto* button = qobject_cast<const QPushButton*>(widget)) {
        return {button->text(), button->rect().adjusted(3, 2, -3, -2), Qt::TextShowMnemonic};
    }
    return {};
}

double luminance(QRgb colour) {
    const auto linear = [](int part) {
        const double share = part / 255.0;
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(colour)) + 0.7152 * linear(qGreen(colour)) + 0.0722 * linear(qBlue(colour));
}

/// How clearly the caption stands out from what it is written on.
double contrast(const QImage& caption) {
    double darkest = 1;
    double lightest = 0;
    for (int y = 0; y < caption.height(); ++y) {
        for (int x = 0; x < caption.width(); ++x) {
            darkest = std::min(darkest, luminance(caption.pixel(x, y)));
            lightest = std::max(lightest, luminance(caption.pixel(x, y)));
        }
    }
    return (lightest + 0.05) / (darkest + 0.05);
}

/// No caption of the window is cut off or too small to read; the choices of a frame have one size and two lines at
/// most.
void expectCaptionsFit(const QWidget* window) {
    const double scale = dynamic_cast<const FormWindow*>(window)->scale();
    int captions = 0;
    std::map<const QObject*, QFont> fonts; // of the choices of each frame
    for (QWidget* widget : window->findChildren<QWidget*>()) {
        const auto [text, room, flags] = captionOf(widget);
        if (text.isEmpty()) {
            continue;
        }
        ++captions;
        const QRect needed = QFontMetrics(widget->font()).boundingRect(QRect({0, 0}, room.size()), flags, text);
        const std::string where = widget->objectName().toStdString() + " in " + widget->font().family().toStdString();
        EXPECT_LE(needed.width(), room.width()) << where << " at " << scale;
        EXPECT_LE(needed.height(), room.height()) << where << " at " << scale;
        EXPECT_GE(widget->font().pointSizeF() * widget->logicalDpiY(), 6.5 * 96 * scale - 0.01) << where;
        if (dynamic_cast<const WrappingRadioButton*>(widget) != nullptr) {
            EXPECT_LT(needed.height(), QFontMetrics(widget->font()).lineSpacing() * 5 / 2) << where << " at " << scale;
            EXPECT_EQ(fonts.emplace(widget->parent(), widget->font()).first->second, widget->font()) << where;
        }
        if (scale < 1.5) { // colours do not depend on it, but the time this takes does
            EXPECT_GE(contrast(widget->grab(room).toImage()), 4.5) << where;
        }
    }
    EXPECT_GE(captions, 4);
}

QPalette darkPalette() {
    QPalette dark(QColor(53, 53, 53), QColor(42, 42, 42));
    dark.setColor(QPalette::Base, QColor(30, 30, 30));
    return dark;
}

TEST_F(Windows, NoCaptionIsCutOffInAnyFontAtAnyScaleInAnyPalette) {
    const QPalette light = QApplication::palette();
    for (const char* file : {"dejavu/DejaVuSans.ttf", "liberation/LiberationSans-Regular.ttf",
                             "noto/NotoSans-Regular.ttf", "dejavu/DejaVuSansMono.ttf"}) {
        const int id = QFontDatabase::addApplicationFont("/usr/share/fonts/truetype/" + QString(file));
        ASSERT_GE(id, 0) << file;
        QApplication::setFont(QFont(QFontDatabase::applicationFontFamilies(id).constFirst()));

        MainMod game;
        game.Main();
        QWidget* dialog = window("Tumble Options");
        for (const double scale : {4.0, 3.0, 2.5, 2.0, 1.75, 1.5, 1.25, 1.0, 0.85, 0.75}) {
            QApplication::setPalette(scale == 1.25 ? darkPalette() : light);
            resizeTo(scale, dialog);
            game.options().optDeckBigPinochle.Select();
            game.options().optDeck24Card.Select(); // the longest description
            expectCaptionsFit(dialog);
        }
        EXPECT_TRUE(dialog->findChild<QWidget*>("fraCardSize")->font().bold());
        game.options().cmdPlay.Click();
        frmAbout about;
        about.Show();
        const auto points = [](const char* name) { return control("About Tumble", name)->font().pointSizeF(); };
        EXPECT_GT(points("lblTitle"), 1.5 * points("lblVersion"));
        for (const double scale : {4.0, 3.0, 2.5, 2.0, 1.75, 1.5, 1.25, 1.0, 0.85, 0.75}) {
            QApplication::setPalette(scale == 1.25 ? darkPalette() : light);
            resizeTo(scale, window("Tumble"));
            resizeTo(scale, window("About Tumble"));
            game.table().lblCurrentCard.Caption("None");
            game.table().lblCurrentCard.Caption("Pile (Queen of Diamonds)");
            expectCaptionsFit(window("Tumble"));
            expectCaptionsFit(window("About Tumble"));
        }
    }
    QApplication::setPalette(light);
}

/// As the toolkit's own translations into Arabic and Hebrew have it.
class RightToLeft : public QTranslator {
public:
    QString translate(const char* /*context*/, const char* text, const char* /*hint*/, int /*n*/) const override {
        return QLatin1String(text) == QLatin1String("QT_LAYOUT_DIRECTION") ? QStringLiteral("RTL") : QString();
    }
    bool isEmpty() const override { return false; }
};

TEST_F(Windows, ControlsKeepTheirPlacesInEveryLanguage) {
    RightToLeft language;
    QCoreApplication::installTranslator(&language);
    EXPECT_EQ(openDialog()->layoutDirection(), Qt::LeftToRight);
}

TEST_F(Windows, FramesAndGroundsFollowThePalette) {
    const QPalette usual = QApplication::palette();
    QWidget* dialog = openDialog();
    dialog->resize(dialog->minimumWidth() * 2, dialog->minimumHeight());
    QWidget* frame = control("Tumble Options", "fraCardOrder");
    for (const QPalette& palette :
         {usual, darkPalette(), QPalette(QColor(246, 245, 244)), QPalette(QColor(0, 0, 64))}) {
        QApplication::setPalette(palette);
        QCoreApplication::processEvents();
        const QColor ground = palette.color(QPalette::Window);
        const std::string where = "on " + ground.name().toStdString();
        for (const char* preview : {"pctCardSize", "pctBackDesign"}) {
            EXPECT_EQ(control("Tumble Options", preview)->grab().toImage().pixelColor(0, 0), ground) << where;
        }
        EXPECT_GE(contrast(frame->grab({0, frame->height() / 2, 4, 1}).toImage()), 3) << where;
        const QImage shown = dialog->grab().toImage();
        EXPECT_LT(luminance(shown.pixel(0, 0)), luminance(ground.rgb())) << where;
        EXPECT_EQ(shown.pixelColor(shown.width() / 2, 0), ground) << where;
    }
    QApplication::setPalette(usual);
}

} // namespace

} // namespace tumble
