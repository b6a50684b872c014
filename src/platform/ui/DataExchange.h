#pragma once
// Data exchange between a dialog's members and its controls, and the range checks.
//
// Called from DoDataExchange, field by field. Reading (m_bSaveAndValidate TRUE) a field that
// is not a number, or a number out of its range, shows the framework's message, puts the
// focus on the field and ends the exchange: UpdateData returns FALSE and the operation that
// asked for the reading does not run. A range check follows the field it checks.

#include "platform/core/COleDateTime.h"
#include "platform/core/CProgressCtrl.h"
#include "platform/ui/CDialog.h"

// Edits (and read-only edits, combo boxes' text, labels)
void DDX_Text(CDataExchange* pDX, int id, double& value);
void DDX_Text(CDataExchange* pDX, int id, int& value);
void DDX_Text(CDataExchange* pDX, int id, UINT& value);
void DDX_Text(CDataExchange* pDX, int id, long& value);
void DDX_Text(CDataExchange* pDX, int id, unsigned long& value);
void DDX_Text(CDataExchange* pDX, int id, CString& value);
// Check boxes and push-like buttons: BST_UNCHECKED or BST_CHECKED.
void DDX_Check(CDataExchange* pDX, int id, int& value);
// A group of radio buttons, by its first button: the index of the checked one (-1: none).
void DDX_Radio(CDataExchange* pDX, int firstId, int& value);
// A combo box's selected line (-1: none).
void DDX_CBIndex(CDataExchange* pDX, int id, int& index);
// Date and time pickers; a null date-time shows as empty and stays null when not touched.
void DDX_DateTimeCtrl(CDataExchange* pDX, int id, COleDateTime& value);
// Makes `control` the window of control `id` (once; later exchanges change nothing).
void DDX_Control(CDataExchange* pDX, int id, CWnd& control);
void DDX_Control(CDataExchange* pDX, int id, CProgressCtrl& control);

void DDV_MinMaxDouble(CDataExchange* pDX, double value, double minimum, double maximum);
void DDV_MinMaxInt(CDataExchange* pDX, int value, int minimum, int maximum);
void DDV_MinMaxUInt(CDataExchange* pDX, UINT value, UINT minimum, UINT maximum);
void DDV_MinMaxLong(CDataExchange* pDX, long value, long minimum, long maximum);
void DDV_MinMaxULong(CDataExchange* pDX, unsigned long value, unsigned long minimum,
                     unsigned long maximum);
// At most `count` characters.
void DDV_MaxChars(CDataExchange* pDX, const CString& value, int count);
