#pragma once
// The controls of a dialog, as the dialog's code drives them. A control member is bound to
// its control with DDX_Control; a control got with GetDlgItem is the dialog's own. Lines
// count from 0; LB_ERR (-1) means none. Setting a control from code notifies nobody.

#include "platform/core/COleDateTime.h"
#include "platform/gdi/CWnd.h"

inline constexpr int LB_ERR = -1;
inline constexpr int CB_ERR = -1;

class CListBox : public CWnd {
public:
    // The index of the new line.
    int AddString(LPCTSTR text);
    int InsertString(int index, LPCTSTR text);
    // The number of lines left, or LB_ERR.
    int DeleteString(int index);
    void ResetContent();
    int GetCount() const;
    int GetCurSel() const;
    // Selects a line (-1: none); LB_ERR for a line that does not exist.
    int SetCurSel(int index);
    // The line's length, or LB_ERR.
    int GetText(int index, CString& text) const;
    int GetTextLen(int index) const;
    // The width in pixels the list scrolls over horizontally.
    void SetHorizontalExtent(int width);
    int GetHorizontalExtent() const;
};

// A list whose lines carry a check box.
class CCheckListBox : public CListBox {
public:
    void SetCheck(int index, int check);
    int GetCheck(int index) const;
};

class CComboBox : public CWnd {
public:
    int AddString(LPCTSTR text);
    void ResetContent();
    int GetCount() const;
    int GetCurSel() const;
    int SetCurSel(int index);
    int GetLBText(int index, CString& text) const;
};

class CEdit : public CWnd {
public:
    BOOL SetReadOnly(BOOL readOnly = TRUE);
    // Selects the characters from `start` to `end` (-1: to the end).
    void SetSel(int start, int end);
};

// A push button that is nothing but a bitmap: one while up, another while held down, loaded
// by their resource names (its control in the template is a BitmapButton).
class CBitmapButton : public CButton {
public:
    // FALSE when a bitmap is not among the resources; `down` may be null (the up one serves).
    BOOL LoadBitmaps(LPCTSTR up, LPCTSTR down);
    // Makes the button the size of its bitmap.
    void SizeToContent();
};

class CDateTimeCtrl : public CWnd {
public:
    // FALSE (and `time` null) when the control is empty.
    BOOL GetTime(COleDateTime& time) const;
    BOOL SetTime(const COleDateTime& time);
};
