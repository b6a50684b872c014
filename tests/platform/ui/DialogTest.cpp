// The dialog layer worked through the scripted driver: data exchange and its checks, the
// resource module, nested dialogs, owner drawing, the clipboard, printing.

#include "platform/core/FailureInjection.h"
#include "platform/core/ResourceModule.h"
#include "platform/core/ScriptedUserInterface.h"
#include "platform/ui/Clipboard.h"
#include "platform/ui/Controls.h"
#include "platform/ui/DataExchange.h"
#include "platform/ui/DialogWindow_p.h"
#include "platform/ui/PrintDialog.h"
#include "platform/ui/ScriptedDialogs.h"
#include "support/TempDir.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QClipboard>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QImage>

#include <cstdlib>
#include <stdexcept>

using seisplot::DialogHandle;

namespace {

constexpr COLORREF kRed = 0x0000FF;
constexpr COLORREF kBlue = 0xFF0000;

// Test templates live in a module of their own, linked into the resource chain.
seisplot::ResourceModule& TestModule() {
    static seisplot::ResourceModule module;
    static const bool linked = [] {
        module.SetTemplateFolder(SEISPLOT_TEST_DATA_DIR "/dialogs");
        seisplot::LinkResourceModule(&module);
        return true;
    }();
    (void)linked;
    return module;
}

class Inner : public CDialog {
public:
    explicit Inner(CWnd* parent) : CDialog(9002, parent) {}
    CString value;

protected:
    void DoDataExchange(CDataExchange* pDX) override { DDX_Text(pDX, 9201, value); }
};

class Probe : public CDialog {
public:
    Probe() : CDialog(9001) {
        TestModule();
        On(9113, BN_CLICKED, &Probe::OnRun);
        On(9114, BN_CLICKED, &Probe::OnNested);
        On(9116, BN_CLICKED, &Probe::OnBitmap);
        On(9107, LBN_SELCHANGE, &Probe::OnLineChange);
        when.SetStatus(COleDateTime::null);
    }

    double ratio = 0.5;
    UINT count = 3;
    int flag = 0;
    int choice = 1;
    CString notes = "first\r\nsecond";
    COleDateTime when;
    CListBox lines;
    CCheckListBox checks;
    CButton picture;
    CProgressCtrl progress;
    CBitmapButton bitmap;

    int runs = 0;
    int bitmapClicks = 0;
    BOOL missingBitmapLoaded = TRUE;
    int lineChanges = 0;
    int drawings = 0;
    bool throwOnNested = false;
    CString inner;
    HINSTANCE moduleInside = nullptr;

protected:
    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        moduleInside = AfxGetResourceHandle();
        lines.AddString("one");
        lines.AddString("two");
        lines.SetCurSel(1);
        checks.AddString("c1");
        checks.AddString("c2");
        checks.SetCheck(1, 1);
        missingBitmapLoaded = bitmap.LoadBitmaps("XXDXDYU", "NOSUCHD");
        bitmap.LoadBitmaps("XXDXDYU", "XXDXDYD");
        return TRUE;
    }

    void DoDataExchange(CDataExchange* pDX) override {
        DDX_Control(pDX, 9107, lines);
        DDX_Control(pDX, 9108, checks);
        DDX_Control(pDX, 9110, picture);
        DDX_Control(pDX, 9111, progress);
        DDX_Control(pDX, 9116, bitmap);
        DDX_Text(pDX, 9101, ratio);
        DDV_MinMaxDouble(pDX, ratio, 0.0, 1.0);
        DDX_Text(pDX, 9102, count);
        DDV_MinMaxUInt(pDX, count, 1, 10);
        DDX_Check(pDX, 9103, flag);
        DDX_Radio(pDX, 9104, choice);
        DDX_Text(pDX, 9115, notes);
        DDX_DateTimeCtrl(pDX, 9112, when);
    }

    void OnDrawItem(int id, LPDRAWITEMSTRUCT item) override {
        if (id != 9110) {
            return;
        }
        ++drawings;
        CDC* dc = item->hDC;
        dc->FillSolidRect(&item->rcItem, kRed);
        CPen pen(PS_SOLID, 1, kBlue);
        CPen* old = dc->SelectObject(&pen);
        dc->MoveTo(0, 10);
        dc->LineTo(item->rcItem.right, 10);
        dc->SelectObject(old);
    }

private:
    void OnRun() {
        if (!UpdateData(TRUE)) {
            return;
        }
        ++runs;
        progress.SetRange(0, 10);
        progress.SetPos(7);
    }
    void OnNested() {
        if (throwOnNested) {
            throw std::runtime_error("handler failed");
        }
        Inner dialog(this);
        if (dialog.DoModal() == IDOK) {
            inner = dialog.value;
        }
    }
    void OnLineChange() { ++lineChanges; }
    void OnBitmap() { ++bitmapClicks; }
};

struct Scripted : testing::Test {
    seisplot::ScriptedUserInterface ui;
    seisplot::ScopedUserInterface uiScope{ui};
    seisplot::ScriptedDialogs dialogs;
    seisplot::ScopedDialogDriver driverScope{dialogs};

    void TearDown() override {
        EXPECT_TRUE(dialogs.Problems().empty()) << dialogs.Problems().front();
        EXPECT_EQ(dialogs.Pending(), 0u);
        ::unsetenv("SEISPLOT_LANG");
    }
};

} // namespace

TEST_F(Scripted, ARangeFailureStopsTheExchangeWithTheFrameworkMessageInEitherLanguage) {
    struct Language {
        const char* code;
        std::vector<CString> messages;
    };
    const Language languages[] = {
        {"en",
         {"Please enter a number between 0 and 1.", "Please enter a number.",
          "Please enter an integer between 1 and 10.", "Please enter a positive integer."}},
        {"it",
         {"Immettere un numero compreso tra 0 e 1.", "Immettere un numero.",
          "Immettere un numero intero compreso tra 1 e 10.",
          "Immettere un numero intero positivo."}},
    };
    for (const Language& language : languages) {
        ::setenv("SEISPLOT_LANG", language.code, 1);
        ui.Clear();
        Probe probe;
        dialogs.Expect(9001, [&](DialogHandle& d) {
            const auto refused = [&](int field, const char* text) {
                d.Type(field, text);
                d.Click(9113);
                EXPECT_EQ(probe.runs, 0) << text; // the operation did not run
                EXPECT_EQ(d.FocusedControl(), field) << text;
            };
            refused(9101, "1.5");
            refused(9101, "12abc");
            d.Type(9101, " 0.25 ");
            refused(9102, "11");
            refused(9102, "-3");
            d.Type(9102, "4");
            d.Click(9113);
            EXPECT_EQ(probe.runs, 1);
            EXPECT_EQ(d.ProgressPosition(9111), 7);
            EXPECT_TRUE(d.Ok());
        });
        ASSERT_EQ(probe.DoModal(), IDOK);
        EXPECT_EQ(ui.MessageTexts(), language.messages);
        EXPECT_EQ(probe.ratio, 0.25);
        EXPECT_EQ(probe.count, 4u);
    }
}

TEST_F(Scripted, MembersReachTheControlsAndComeBackAndCodeNotifiesNobody) {
    Probe probe;
    dialogs.Expect(9001, [&](DialogHandle& d) {
        EXPECT_EQ(d.Caption(), "Framework probe");
        EXPECT_EQ(d.Text(9101), "0.5");
        EXPECT_EQ(d.Text(9102), "3");
        EXPECT_TRUE(d.Checked(9105));
        EXPECT_EQ(d.Lines(9107), (std::vector<CString>{"one", "two"}));
        EXPECT_EQ(d.Selection(9107), 1);
        EXPECT_TRUE(d.LineChecked(9108, 1));
        EXPECT_FALSE(d.LineChecked(9108, 0));
        EXPECT_EQ(d.Lines(9109), (std::vector<CString>{"alpha", "beta"})); // from the template
        EXPECT_EQ(probe.lineChanges, 0); // filled and selected by code
        d.SelectLine(9107, 0);
        EXPECT_EQ(probe.lineChanges, 1);
        EXPECT_EQ(probe.lines.GetCurSel(), 0);
        d.Click(9103);
        d.Click(9106);
        EXPECT_TRUE(d.Checked(9106));
        EXPECT_FALSE(d.Checked(9105));
        d.Type(9115, "one line\nanother");
        EXPECT_TRUE(d.Ok());
    });
    ASSERT_EQ(probe.DoModal(), IDOK);
    EXPECT_EQ(probe.flag, BST_CHECKED);
    EXPECT_EQ(probe.choice, 2);
    EXPECT_EQ(probe.notes, "one line\r\nanother");
    EXPECT_EQ(probe.when.GetStatus(), COleDateTime::null); // untouched, it stays unset
    EXPECT_FALSE(probe.IsOpen());
    EXPECT_EQ(probe.lines.GetCount(), LB_ERR); // the control went with the dialog

    // Cancel reads nothing back.
    Probe cancelled;
    dialogs.Expect(9001, [](DialogHandle& d) {
        d.Type(9101, "0.75");
        EXPECT_TRUE(d.Cancel());
    });
    EXPECT_EQ(cancelled.DoModal(), IDCANCEL);
    EXPECT_EQ(cancelled.ratio, 0.5);
}

TEST_F(Scripted, TheLibraryResourcesAreCurrentWhileOpenAndTheCallersComeBackEvenAfterAThrow) {
    seisplot::ResourceModule host;
    AfxSetResourceHandle(&host);
    Probe probe;
    dialogs.Expect(9001, [](DialogHandle& d) { d.Ok(); });
    probe.DoModal();
    EXPECT_EQ(probe.moduleInside, seisplot::LibraryModule());
    EXPECT_EQ(AfxGetResourceHandle(), &host);

    Probe throwing;
    throwing.throwOnNested = true;
    dialogs.Expect(9001, [](DialogHandle& d) { d.Click(9114); });
    EXPECT_THROW(throwing.DoModal(), std::runtime_error);
    EXPECT_EQ(AfxGetResourceHandle(), &host);
    EXPECT_FALSE(throwing.IsOpen());
    AfxSetResourceHandle(nullptr);
}

TEST_F(Scripted, ADialogThatAHandlerOpensIsWorkedByTheNextScript) {
    Probe probe;
    dialogs.Expect(9001, [&](DialogHandle& d) {
        d.Click(9114);
        EXPECT_EQ(probe.inner, "42"); // the inner dialog has come and gone
        d.Ok();
    });
    dialogs.Expect(9002, [](DialogHandle& d) {
        EXPECT_EQ(d.Caption(), "Inner probe");
        d.Type(9201, "42");
        d.Ok();
    });
    EXPECT_EQ(probe.DoModal(), IDOK);

    // A dialog nobody expected is cancelled and reported.
    seisplot::ScriptedDialogs strict;
    seisplot::ScopedDialogDriver scope(strict);
    Probe unexpected;
    EXPECT_EQ(unexpected.DoModal(), IDCANCEL);
    ASSERT_EQ(strict.Problems().size(), 1u);
    EXPECT_EQ(strict.Problems()[0], "dialog 9001 opened with no script for it; cancelled");
}

TEST_F(Scripted, AnOwnerDrawnControlShowsWhatItsContextDrew) {
    Probe probe;
    dialogs.Expect(9001, [&](DialogHandle& d) {
        CWnd& window = d.Picture(9110);
        EXPECT_EQ(probe.drawings, 1);
        CRect client;
        window.GetClientRect(&client);
        EXPECT_GE(client.Width(), 120);
        EXPECT_GE(client.Height(), 80);
        CDC* dc = window.GetDC();
        EXPECT_EQ(dc->GetPixel(3, 3), kRed);
        EXPECT_EQ(dc->GetPixel(client.Width() / 2, 10), kBlue);
        EXPECT_EQ(dc->GetPixel(client.Width() - 1, client.Height() - 1), kRed);
        window.ReleaseDC(dc);
        // Drawn again only when invalidated.
        d.Picture(9110);
        EXPECT_EQ(probe.drawings, 1);
        probe.Invalidate();
        d.Picture(9110);
        EXPECT_EQ(probe.drawings, 2);
        d.Ok();
    });
    probe.DoModal();
}

TEST_F(Scripted, ABitmapButtonIsItsUpBitmapAndItsDownOneWhileHeld) {
    Probe probe;
    dialogs.Expect(9001, [&](DialogHandle& d) {
        EXPECT_FALSE(probe.missingBitmapLoaded);
        const auto bitmap = [](const char* name) {
            return QImage(QStringLiteral(":/seisplot/bitmaps/%1.png").arg(name))
                .convertToFormat(QImage::Format_RGB32);
        };
        auto* button = qobject_cast<QAbstractButton*>(d.Dialog().Window()->Control(9116));
        ASSERT_NE(button, nullptr);
        const auto shown = [&] {
            return button->grab().toImage().convertToFormat(QImage::Format_RGB32);
        };
        EXPECT_EQ(d.Bitmap(9116), "XXDXDYU");
        EXPECT_EQ(shown(), bitmap("XXDXDYU"));
        button->setDown(true);
        EXPECT_EQ(d.Bitmap(9116), "XXDXDYD");
        EXPECT_EQ(shown(), bitmap("XXDXDYD"));
        button->setDown(false);
        d.Click(9116);
        EXPECT_EQ(probe.bitmapClicks, 1);
        d.Ok();
    });
    probe.DoModal();
}

TEST_F(Scripted, AMultiLineButtonWrapsItsCaptionAndIsTallEnoughForIt) {
    Probe probe;
    dialogs.Expect(9001, [&](DialogHandle& d) {
        const CString caption =
            "Regular polygon having center in (A, B), radius equal to C, number "
            "of sides equal to D, angle over horizontal of first vertex equal "
            "to E (degrees)";
        EXPECT_EQ(d.Text(9117), caption);
        QWidget* button = d.Dialog().Window()->Control(9117);
        ASSERT_NE(button, nullptr);
        const QFontMetrics metrics = button->fontMetrics();
        const QString text = QString::fromUtf8(caption.GetString());
        EXPECT_LT(button->width(), metrics.horizontalAdvance(text)); // it wraps
        const QRect wrapped =
            metrics.boundingRect(QRect(0, 0, button->width(), 1000), Qt::TextWordWrap, text);
        EXPECT_GE(wrapped.height(), 2 * metrics.height());
        EXPECT_GE(button->height(), wrapped.height()); // every line shows
        d.Ok();
    });
    probe.DoModal();
}

TEST(Dialogs, WithoutADriverADialogIsCancelledAndSaysSo) {
    Probe probe;
    testing::internal::CaptureStderr();
    EXPECT_EQ(probe.DoModal(), IDCANCEL);
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "seisplot: dialog 9001 needs a person at a screen; it was cancelled\n");
    EXPECT_EQ(probe.runs, 0);
}

TEST(Clipboard, ABitmapReadsBackWithTheSamePixelsAndEachCallCanFail) {
    seisplot::EnsureWidgetApplication();
    // Rows of 4 pixels, 24 bits each (blue, green, red), padded to 16 bits.
    const unsigned char bits[] = {0,   0,   255, 0, 255, 0, 255, 0,   0,   9, 8, 7,
                                  255, 255, 255, 0, 0,   0, 128, 128, 128, 1, 2, 3};
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.CreateBitmap(4, 2, 1, 24, bits));
    CWnd owner;
    ASSERT_TRUE(OpenClipboard(&owner));
    EXPECT_FALSE(OpenClipboard(&owner)); // one owner at a time
    EXPECT_TRUE(EmptyClipboard());
    EXPECT_EQ(SetClipboardData(CF_BITMAP, bitmap.GetSafeHandle()), bitmap.GetSafeHandle());
    EXPECT_TRUE(CloseClipboard());
    const QImage copied = QGuiApplication::clipboard()->image();
    ASSERT_EQ(copied.size(), QSize(4, 2));
    EXPECT_EQ(copied.pixel(0, 0), qRgb(255, 0, 0));
    EXPECT_EQ(copied.pixel(3, 0), qRgb(7, 8, 9));
    EXPECT_EQ(copied.pixel(0, 1), qRgb(255, 255, 255));
    EXPECT_EQ(copied.pixel(3, 1), qRgb(3, 2, 1));

    using seisplot::FailurePoint;
    for (FailurePoint point : {FailurePoint::ClipboardOpen, FailurePoint::ClipboardEmpty,
                               FailurePoint::ClipboardSet, FailurePoint::ClipboardClose}) {
        seisplot::FailAfter(point, 0);
        const bool opened = OpenClipboard(&owner) != FALSE;
        const bool emptied = EmptyClipboard() != FALSE;
        const bool set = SetClipboardData(CF_BITMAP, bitmap.GetSafeHandle()) != nullptr;
        const bool closed = CloseClipboard() != FALSE;
        seisplot::FailAfter(point, -1);
        EXPECT_EQ(opened, point != FailurePoint::ClipboardOpen);
        EXPECT_EQ(emptied, opened && point != FailurePoint::ClipboardEmpty);
        EXPECT_EQ(set, opened && point != FailurePoint::ClipboardSet);
        EXPECT_EQ(closed, opened && point != FailurePoint::ClipboardClose);
        CloseClipboard(); // left open by a failed close
    }
    EXPECT_EQ(SetClipboardData(CF_BITMAP, bitmap.GetSafeHandle()), nullptr); // not open
}

TEST(Printing, ThePageGoesToThePrinterTheUserChose) {
    seisplot::ScriptedUserInterface ui;
    seisplot::ScopedUserInterface scope(ui);
    seisplot::test::TempDir dir;
    const std::string pdf = dir.Path("printed.pdf");
    ui.QueueCancelPrinter();
    ui.QueuePrinter(pdf.c_str());
    const DWORD flags =
        PD_NOSELECTION | PD_NOPAGENUMS | PD_USEDEVMODECOPIESANDCOLLATE | PD_HIDEPRINTTOFILE;

    CPrintDialog cancelled(FALSE, flags);
    EXPECT_EQ(cancelled.DoModal(), IDCANCEL);
    EXPECT_EQ(cancelled.GetPrinterDC(), nullptr);

    CPrintDialog dialog(FALSE, flags);
    ASSERT_EQ(dialog.DoModal(), IDOK);
    CDC* printer = dialog.GetPrinterDC();
    ASSERT_NE(printer, nullptr);
    EXPECT_TRUE(printer->IsPrinting());
    EXPECT_GT(printer->StartDoc("name"), 0);
    EXPECT_GT(printer->StartPage(), 0);
    printer->SetMapMode(MM_HIMETRIC);
    printer->Rectangle(1000, -1000, 5000, -5000);
    EXPECT_GT(printer->EndPage(), 0);
    EXPECT_GT(printer->EndDoc(), 0);
    EXPECT_TRUE(printer->DeleteDC());
    EXPECT_EQ(ui.PrinterRequests(), (std::vector<DWORD>{flags, flags}));
    EXPECT_EQ(dir.Read("printed.pdf").rfind("%PDF-", 0), 0u);
}
