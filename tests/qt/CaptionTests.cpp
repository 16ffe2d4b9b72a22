#include "Windows.h"

#include "game/frmAbout.h"
#include "platform/qt/Buttons.h"

#include <QFontDatabase>
#include <QGroupBox>
#include <QLabel>

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

/// No caption of the window is cut off or too small to read.
void expectCaptionsFit(const QWidget* window) {
    int captions = 0;
    for (const QWidget* widget : window->findChildren<QWidget*>()) {
        const auto [text, room, flags] = captionOf(widget);
        if (text.isEmpty() || !widget->isVisibleTo(window)) {
            continue;
        }
        ++captions;
        const QRect needed = QFontMetrics(widget->font()).boundingRect(QRect({0, 0}, room.size()), flags, text);
        const std::string where = widget->objectName().toStdString() + " in " + widget->font().family().toStdString();
        EXPECT_LE(needed.width(), room.width()) << where;
        EXPECT_LE(needed.height(), room.height()) << where;
        EXPECT_GE(widget->font().pointSizeF() * widget->logicalDpiY(), 6.5 * 96 - 0.01) << where;
    }
    EXPECT_GE(captions, 4);
}

TEST_F(Windows, NoCaptionIsCutOffInAnyFont) {
    for (const char* file :
         {"dejavu/DejaVuSans.ttf", "liberation/LiberationSans-Regular.ttf", "noto/NotoSans-Regular.ttf"}) {
        const int id = QFontDatabase::addApplicationFont("/usr/share/fonts/truetype/" + QString(file));
        ASSERT_GE(id, 0) << file;
        QApplication::setFont(QFont(QFontDatabase::applicationFontFamilies(id).constFirst()));

        MainMod game;
        game.Main();
        for (const AnyControl& control : game.options().fraDeckType.controls()) {
            if (auto* const* deck = std::get_if<OptionButton*>(&control)) {
                (*deck)->Select();
                expectCaptionsFit(window("Tumble Options"));
            }
        }
        game.options().cmdPlay.Click();
        game.table().lblCurrentCard.Caption("Pile (Queen of Diamonds)");
        expectCaptionsFit(window("Tumble"));

        frmAbout about;
        about.Show();
        expectCaptionsFit(window("About Tumble"));
    }
}

} // namespace

} // namespace tumble
