// The Qt user-interface services, worked by the test instead of a person.

#include "platform/ui/QtUserInterface.h"
#include "platform/ui/FontMapping_p.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QColorDialog>
#include <QComboBox>
#include <QFontDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include <cstring>
#include <functional>

namespace {

void EnsureApplication() {
    static int argc = 1;
    static char name[] = "test_ui";
    static char* argv[] = {name, nullptr};
    static QApplication app(argc, argv);
}

// Works the next modal dialog of type T once it shows; `work` must close it.
template <class T> void WhenShown(std::function<void(T*)> work) {
    auto* timer = new QTimer;
    timer->setInterval(10);
    QObject::connect(timer, &QTimer::timeout, [timer, work] {
        if (auto* dialog = qobject_cast<T*>(QApplication::activeModalWidget())) {
            timer->stop();
            timer->deleteLater();
            work(dialog);
        }
    });
    timer->start();
}

} // namespace

TEST(QtUserInterface, MapsFontsBothWaysKeepingTheCallersHeightSign) {
    EnsureApplication();
    LOGFONTA lf;
    lf.lfHeight = -14;
    lf.lfEscapement = 450;
    lf.lfWeight = 700;
    lf.lfItalic = 1;
    lf.lfUnderline = 1;
    lf.lfCharSet = 161;
    std::strcpy(lf.lfFaceName, "Liberation Serif");
    QFont font = seisplot::QFontOfLogFont(lf);
    EXPECT_EQ(font.family(), "Liberation Serif");
    EXPECT_EQ(font.pointSize(), 14);
    EXPECT_EQ(font.weight(), QFont::Bold);
    EXPECT_TRUE(font.italic());
    EXPECT_TRUE(font.underline());
    EXPECT_FALSE(font.strikeOut());

    font.setFamily("DejaVu Sans");
    font.setPointSize(18);
    font.setWeight(QFont::Light);
    font.setItalic(false);
    font.setStrikeOut(true);
    const LOGFONTA back = seisplot::LogFontOfQFont(font, lf);
    EXPECT_STREQ(back.lfFaceName, "DejaVu Sans");
    EXPECT_EQ(back.lfHeight, -18);
    EXPECT_EQ(back.lfWeight, 300);
    EXPECT_EQ(back.lfItalic, 0);
    EXPECT_EQ(back.lfUnderline, 1);
    EXPECT_EQ(back.lfStrikeOut, 1);
    EXPECT_EQ(back.lfEscapement, 450);
    EXPECT_EQ(back.lfCharSet, 161);

    // A face left as it opened keeps its name: an empty one lets the device choose still.
    LOGFONTA anyFace;
    anyFace.lfHeight = 12;
    const LOGFONTA kept = seisplot::LogFontOfQFont(seisplot::QFontOfLogFont(anyFace), anyFace);
    EXPECT_STREQ(kept.lfFaceName, "");
    EXPECT_EQ(kept.lfHeight, 12);

    const QColor colour = seisplot::QColorOfColorRef(0x123456);
    EXPECT_EQ(colour, QColor(0x56, 0x34, 0x12));
    EXPECT_EQ(seisplot::ColorRefOfQColor(colour), 0x123456u);
}

TEST(QtUserInterface, MessageBoxOffersTheButtonsIconAndDefaultOfItsType) {
    EnsureApplication();
    seisplot::QtUserInterface ui;
    WhenShown<QMessageBox>([](QMessageBox* box) {
        EXPECT_EQ(box->standardButtons(), QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
        EXPECT_EQ(box->icon(), QMessageBox::Question);
        EXPECT_EQ(box->text(), "Curves have been changed. Save to disk?");
        box->defaultButton()->click();
    });
    EXPECT_EQ(ui.ShowMessage("Curves have been changed. Save to disk?",
                             MB_YESNOCANCEL | MB_DEFBUTTON2 | MB_ICONQUESTION),
              IDNO);

    WhenShown<QMessageBox>([](QMessageBox* box) {
        EXPECT_EQ(box->standardButtons(), QMessageBox::Ok);
        EXPECT_EQ(box->icon(), QMessageBox::Warning);
        box->button(QMessageBox::Ok)->click();
    });
    EXPECT_EQ(ui.ShowMessage("Warning: maxT or dT null!", MB_ICONEXCLAMATION), IDOK);
}

TEST(QtUserInterface, UnitChooserChangesOnlyTheAskedQuantitiesAndOnlyOnOk) {
    EnsureApplication();
    seisplot::QtUserInterface ui;
    seisplot::UnitQuestion question;
    question.quantities.push_back({"Length", {"mm", "cm", "m"}, 0, true});
    question.quantities.push_back({"Force", {"N", "kN"}, 1, false});

    WhenShown<QDialog>([](QDialog* dialog) {
        dialog->findChild<QComboBox*>("Length")->setCurrentIndex(2);
        dialog->reject();
    });
    EXPECT_FALSE(ui.ChooseUnits(question));
    EXPECT_EQ(question.quantities[0].current, 0);

    WhenShown<QDialog>([](QDialog* dialog) {
        EXPECT_FALSE(dialog->findChild<QComboBox*>("Force")->isEnabled());
        dialog->findChild<QComboBox*>("Length")->setCurrentIndex(2);
        dialog->accept();
    });
    EXPECT_TRUE(ui.ChooseUnits(question));
    EXPECT_EQ(question.quantities[0].current, 2);
    EXPECT_EQ(question.quantities[1].current, 1);
}

TEST(QtUserInterface, FontChooserTakesFontThenColourAndACancelChangesNothing) {
    EnsureApplication();
    seisplot::QtUserInterface ui;
    seisplot::FontChoice choice;
    choice.font.lfHeight = 12;
    std::strcpy(choice.font.lfFaceName, "DejaVu Sans");
    choice.colour = 0x0000FF;

    // The colour is cancelled after the font was confirmed: nothing changes.
    WhenShown<QFontDialog>([](QFontDialog* dialog) {
        dialog->setCurrentFont(QFont("DejaVu Sans", 14, QFont::Bold));
        WhenShown<QColorDialog>([](QColorDialog* colours) { colours->reject(); });
        dialog->accept();
    });
    EXPECT_FALSE(ui.ChooseFont(choice));
    EXPECT_EQ(choice.font.lfWeight, 0);
    EXPECT_EQ(choice.colour, 0x0000FFu);

    // A regular face opens regular even where the family calls it "Book".
    WhenShown<QFontDialog>([](QFontDialog* dialog) {
        EXPECT_EQ(dialog->currentFont().pointSize(), 12);
        EXPECT_EQ(dialog->currentFont().weight(), QFont::Normal);
        EXPECT_FALSE(dialog->currentFont().italic());
        dialog->setCurrentFont(QFont("DejaVu Sans", 14, QFont::Bold));
        WhenShown<QColorDialog>([](QColorDialog* colours) {
            EXPECT_EQ(colours->currentColor(), QColor(255, 0, 0));
            colours->setCurrentColor(QColor(0, 128, 255));
            colours->accept();
        });
        dialog->accept();
    });
    EXPECT_TRUE(ui.ChooseFont(choice));
    EXPECT_EQ(choice.font.lfWeight, 700);
    EXPECT_EQ(choice.font.lfHeight, 14);
    EXPECT_FALSE(choice.font.lfItalic);
    EXPECT_EQ(choice.colour, 0xFF8000u);
}
