#pragma once
// A dialog driver for tests: each dialog that opens is handed, live, to the script the test
// queued for it, which works it the way a person would — by control id, without timers or
// sleeps — and ends it. A dialog that a handler opens meanwhile reaches the next script.
//
//     seisplot::ScriptedDialogs dialogs;
//     seisplot::ScopedDialogDriver driver(dialogs);
//     dialogs.Expect(14503, [](seisplot::DialogHandle& d) {
//         d.SelectLine(14629, 1);
//         d.Click(14678);
//         EXPECT_EQ(d.Lines(14637)[1], "...");
//         d.Ok();
//     });
//     dialog.DoModal();

#include "platform/ui/DialogDriver.h"

#include <deque>
#include <functional>
#include <vector>

namespace seisplot {

class DialogWindow;

// The live dialog, as a test sees and works it. After each action the owner-drawn controls
// that must be drawn again are drawn, as the window would repaint.
class DialogHandle {
public:
    explicit DialogHandle(DialogWindow& window) : m_window(window) {}

    CDialog& Dialog() const;
    CString Caption() const;

    // What a person does. Actions on a disabled control do nothing, as for a person.
    void Click(int id);
    void Type(int id, const CString& text);
    void SelectLine(int id, int line);
    void DoubleClickLine(int id, int line);
    void CheckLine(int id, int line, bool checked);
    // Clicks OK or Cancel; true when the dialog ended.
    bool Ok();
    bool Cancel();

    // What a person sees.
    bool Exists(int id) const;
    CString Text(int id) const;
    bool Checked(int id) const;
    bool Enabled(int id) const;
    bool Visible(int id) const;
    std::vector<CString> Lines(int id) const;
    int Selection(int id) const; // -1: none
    bool LineChecked(int id, int line) const;
    int ProgressPosition(int id) const;
    // The resource name of the bitmap a bitmap button shows ("" before any is loaded).
    CString Bitmap(int id) const;
    // The window of an owner-drawn control, its picture up to date.
    CWnd& Picture(int id);
    // The control the focus was last put on (0: none).
    int FocusedControl() const;
    bool Ended() const;
    INT_PTR Result() const;
    // Writes a picture of the whole dialog (PNG).
    bool SaveScreenshot(const CString& path) const;

private:
    DialogWindow& m_window;
};

class ScriptedDialogs : public DialogDriver {
public:
    using Script = std::function<void(DialogHandle&)>;

    // The next dialog to open must use template `templateId`; `script` works it and ends it.
    void Expect(UINT templateId, Script script);
    INT_PTR Run(CDialog& dialog) override;

    // What went wrong: a dialog nobody expected, a template other than the one expected, a
    // dialog the script left open (it is cancelled then).
    const std::vector<CString>& Problems() const { return m_problems; }
    // Scripts queued and not used.
    size_t Pending() const { return m_scripts.size(); }

private:
    struct Expected {
        UINT templateId;
        Script script;
    };
    std::deque<Expected> m_scripts;
    std::vector<CString> m_problems;
};

} // namespace seisplot
