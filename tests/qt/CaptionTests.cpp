#include "Windows.h"

#include "game/frmAbout.h"
#include "platform/qt/Buttons.h"
#include "platform/qt/CaptionedFrame.h"

#include <QFontDatabase>
#include <QImage>
#include <QLabel>
#include <QPalette>
#include <QTranslator>

#include <algorithm>
#include <cmath>

namespace tumble {

namespace {

double luminance(QRgb colour) {
    const auto linear = [](int part) {
        const double share = part / 255.0;
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(colour)) + 0.7152 * linear(qGreen(colour)) + 0.0722 * linear(qBlue(colour));
}

/// The contrast between the darkest and the lightest pixel.
double contrast(const QImage& image) {
    double darkest = 1;
    double lightest = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            darkest = std::min(darkest, luminance(image.pixel(x, y)));
            lightest = std::max(lightest, luminance(image.pixel(x, y)));
        }
    }
    return (lightest + 0.05) / (darkest + 0.05);
}

/// No caption of the window is cut off or hard to read.
void expectCaptionsFit(const QWidget* window) {
    const double scale = scaleOf(window);
    int captions = 0;
    for (QWidget* widget : window->findChildren<QWidget*>()) {
        QRect space = widget->rect();
        int flags = Qt::TextShowMnemonic | (qobject_cast<QLabel*>(widget) != nullptr ? Qt::TextWordWrap : 0);
        QString text = widget->property("text").toString();
        if (const auto* option = dynamic_cast<const WrappingRadioButton*>(widget)) {
            space = option->captionArea();
            flags |= Qt::TextWordWrap;
        } else if (const auto* frame = dynamic_cast<const CaptionedFrame*>(widget)) {
            space = frame->captionArea();
            text = frame->title();
        }
        if (text.isEmpty()) {
            continue;
        }
        ++captions;
        const QRect needed = QFontMetrics(widget->font()).boundingRect(QRect({0, 0}, space.size()), flags, text);
        const std::string where = widget->objectName().toStdString() + " in " + widget->font().family().toStdString();
        EXPECT_LE(needed.width(), space.width()) << where << " at " << scale;
        EXPECT_LE(needed.height(), space.height()) << where << " at " << scale;
        if (scale < 1.5) { // larger captions have the same colours but take longer
            EXPECT_GE(contrast(widget->grab(space).toImage()), 4.5) << where;
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
        game.options().cmdPlay.Click();
        frmTumbleOptions options({});
        options.Show();
        frmAbout about;
        about.Show();
        for (const double scale : {4.0, 3.0, 2.5, 2.0, 1.75, 1.5, 1.25, 1.0, 0.85, 0.75}) {
            QApplication::setPalette(scale == 1.25 ? darkPalette() : light);
            for (const char* title : {"Tumble", "Tumble Options", "About Tumble"}) {
                resizeTo(scale, window(title));
                game.table().lblCurrentCard.Caption("None");
                game.table().lblCurrentCard.Caption("Pile (Queen of Diamonds)");
                options.optDeckBigPinochle.Select();
                options.optDeck24Card.Select(); // the longest description
                expectCaptionsFit(window(title));
            }
        }
    }
    QApplication::setPalette(light);
}

/// Mirrors layouts, as the toolkit's translations into Arabic and Hebrew do.
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
