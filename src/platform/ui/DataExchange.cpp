#include "platform/ui/DataExchange.h"

#include "platform/core/StringTable.h"
#include "platform/core/UserInterface.h"
#include "platform/ui/Controls.h"
#include "platform/ui/DialogWindow_p.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDateTimeEdit>

#include <cerrno>
#include <cfloat>
#include <climits>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <type_traits>

namespace {

using seisplot::DialogWindow;

// The framework's own messages, in the language of the library's texts.
enum class Text { Number, Integer, PositiveInteger, NumberRange, IntegerRange, TooLong };

CString FrameworkText(Text text) {
    const bool italian = seisplot::CurrentLanguage() == seisplot::Language::Italian;
    switch (text) {
    case Text::Number:
        return italian ? "Immettere un numero." : "Please enter a number.";
    case Text::Integer:
        return italian ? "Immettere un numero intero." : "Please enter an integer.";
    case Text::PositiveInteger:
        return italian ? "Immettere un numero intero positivo."
                       : "Please enter a positive integer.";
    case Text::NumberRange:
        return italian ? "Immettere un numero compreso tra %1 e %2."
                       : "Please enter a number between %1 and %2.";
    case Text::IntegerRange:
        return italian ? "Immettere un numero intero compreso tra %1 e %2."
                       : "Please enter an integer between %1 and %2.";
    case Text::TooLong:
        return italian ? "Immettere non più di %1 caratteri." : "Enter no more than %1 characters.";
    }
    return CString();
}

// Shows the message and ends the exchange at the field it is at.
[[noreturn]] void Refuse(CDataExchange* pDX, const CString& message) {
    AfxMessageBox(message, MB_ICONEXCLAMATION);
    pDX->Fail();
}

[[noreturn]] void RefuseRange(CDataExchange* pDX, Text text, const CString& low,
                              const CString& high) {
    CString message = FrameworkText(text);
    message.Replace("%1", low);
    message.Replace("%2", high);
    Refuse(pDX, message);
}

DialogWindow* WindowOf(CDataExchange* pDX) {
    return pDX->m_pDlgWnd != nullptr ? pDX->m_pDlgWnd->Window() : nullptr;
}

CString ControlText(CDataExchange* pDX, int id) {
    CString text;
    if (CWnd* control = pDX->m_pDlgWnd->GetDlgItem(id)) {
        control->GetWindowText(text);
    }
    return text;
}

void SetControlText(CDataExchange* pDX, int id, const CString& text) {
    if (CWnd* control = pDX->m_pDlgWnd->GetDlgItem(id)) {
        control->SetWindowText(text);
    }
}

// A number as the framework shows it: at most 15 significant digits.
CString NumberText(double value) {
    CString text;
    text.Format("%.*g", DBL_DIG, value);
    return text;
}

// The whole text, blanks around it allowed, as a number of the kind asked for.
bool ParseDouble(const CString& text, double& value) {
    CString trimmed = text;
    trimmed.Trim();
    if (trimmed.IsEmpty()) {
        return false;
    }
    char* end = nullptr;
    errno = 0;
    value = std::strtod(trimmed.GetString(), &end);
    return *end == '\0' && errno != ERANGE && std::isfinite(value);
}

bool ParseLong(const CString& text, long long low, long long high, long long& value) {
    CString trimmed = text;
    trimmed.Trim();
    if (trimmed.IsEmpty()) {
        return false;
    }
    char* end = nullptr;
    errno = 0;
    value = std::strtoll(trimmed.GetString(), &end, 10);
    return *end == '\0' && errno != ERANGE && value >= low && value <= high;
}

template <class Integer> void ExchangeInteger(CDataExchange* pDX, int id, Integer& value) {
    pDX->PrepareEditCtrl(id);
    if (!pDX->m_bSaveAndValidate) {
        CString text;
        if constexpr (std::is_signed_v<Integer>) {
            text.Format("%lld", static_cast<long long>(value));
        } else {
            text.Format("%llu", static_cast<unsigned long long>(value));
        }
        SetControlText(pDX, id, text);
        return;
    }
    long long parsed = 0;
    constexpr bool isSigned = std::is_signed_v<Integer>;
    const long long low =
        isSigned ? static_cast<long long>(std::numeric_limits<Integer>::min()) : 0;
    const long long high = static_cast<long long>(std::numeric_limits<Integer>::max());
    if (!ParseLong(ControlText(pDX, id), low, high, parsed)) {
        Refuse(pDX, FrameworkText(isSigned ? Text::Integer : Text::PositiveInteger));
    }
    value = static_cast<Integer>(parsed);
}

template <class Integer>
void CheckIntegerRange(CDataExchange* pDX, Integer value, Integer minimum, Integer maximum) {
    if (!pDX->m_bSaveAndValidate || (value >= minimum && value <= maximum)) {
        return;
    }
    CString low;
    CString high;
    if constexpr (std::is_signed_v<Integer>) {
        low.Format("%lld", static_cast<long long>(minimum));
        high.Format("%lld", static_cast<long long>(maximum));
    } else {
        low.Format("%llu", static_cast<unsigned long long>(minimum));
        high.Format("%llu", static_cast<unsigned long long>(maximum));
    }
    RefuseRange(pDX, Text::IntegerRange, low, high);
}

} // namespace

void DDX_Text(CDataExchange* pDX, int id, double& value) {
    pDX->PrepareEditCtrl(id);
    if (!pDX->m_bSaveAndValidate) {
        SetControlText(pDX, id, NumberText(value));
        return;
    }
    double parsed = 0.0;
    if (!ParseDouble(ControlText(pDX, id), parsed)) {
        Refuse(pDX, FrameworkText(Text::Number));
    }
    value = parsed;
}

void DDX_Text(CDataExchange* pDX, int id, int& value) {
    ExchangeInteger(pDX, id, value);
}
void DDX_Text(CDataExchange* pDX, int id, UINT& value) {
    ExchangeInteger(pDX, id, value);
}
void DDX_Text(CDataExchange* pDX, int id, long& value) {
    ExchangeInteger(pDX, id, value);
}
void DDX_Text(CDataExchange* pDX, int id, unsigned long& value) {
    ExchangeInteger(pDX, id, value);
}

void DDX_Text(CDataExchange* pDX, int id, CString& value) {
    pDX->PrepareEditCtrl(id);
    if (pDX->m_bSaveAndValidate) {
        value = ControlText(pDX, id);
    } else {
        SetControlText(pDX, id, value);
    }
}

void DDX_Check(CDataExchange* pDX, int id, int& value) {
    pDX->PrepareCtrl(id);
    auto* button = dynamic_cast<CButton*>(pDX->m_pDlgWnd->GetDlgItem(id));
    if (button == nullptr) {
        return;
    }
    if (pDX->m_bSaveAndValidate) {
        value = button->GetCheck();
    } else {
        button->SetCheck(value);
    }
}

void DDX_Radio(CDataExchange* pDX, int firstId, int& value) {
    pDX->PrepareCtrl(firstId);
    DialogWindow* window = WindowOf(pDX);
    if (window == nullptr) {
        return;
    }
    const std::vector<QAbstractButton*> group = seisplot::RadioGroup(*window, firstId);
    if (pDX->m_bSaveAndValidate) {
        value = -1;
        for (size_t i = 0; i < group.size(); ++i) {
            if (group[i]->isChecked()) {
                value = static_cast<int>(i);
            }
        }
        return;
    }
    for (size_t i = 0; i < group.size(); ++i) {
        group[i]->setChecked(static_cast<int>(i) == value);
    }
}

void DDX_CBIndex(CDataExchange* pDX, int id, int& index) {
    pDX->PrepareCtrl(id);
    auto* combo = dynamic_cast<CComboBox*>(pDX->m_pDlgWnd->GetDlgItem(id));
    if (combo == nullptr) {
        return;
    }
    if (pDX->m_bSaveAndValidate) {
        index = combo->GetCurSel();
    } else {
        combo->SetCurSel(index);
    }
}

void DDX_DateTimeCtrl(CDataExchange* pDX, int id, COleDateTime& value) {
    pDX->PrepareCtrl(id);
    auto* picker = dynamic_cast<CDateTimeCtrl*>(pDX->m_pDlgWnd->GetDlgItem(id));
    if (picker == nullptr) {
        return;
    }
    if (pDX->m_bSaveAndValidate) {
        picker->GetTime(value);
    } else {
        picker->SetTime(value);
    }
}

void DDX_Control(CDataExchange* pDX, int id, CWnd& control) {
    if (DialogWindow* window = WindowOf(pDX)) {
        window->Bind(id, control);
    }
}

void DDX_Control(CDataExchange* pDX, int id, CProgressCtrl& control) {
    if (DialogWindow* window = WindowOf(pDX)) {
        window->Bind(id, control);
    }
}

void DDV_MinMaxDouble(CDataExchange* pDX, double value, double minimum, double maximum) {
    if (pDX->m_bSaveAndValidate && !(value >= minimum && value <= maximum)) {
        RefuseRange(pDX, Text::NumberRange, NumberText(minimum), NumberText(maximum));
    }
}

void DDV_MinMaxInt(CDataExchange* pDX, int value, int minimum, int maximum) {
    CheckIntegerRange(pDX, value, minimum, maximum);
}
void DDV_MinMaxUInt(CDataExchange* pDX, UINT value, UINT minimum, UINT maximum) {
    CheckIntegerRange(pDX, value, minimum, maximum);
}
void DDV_MinMaxLong(CDataExchange* pDX, long value, long minimum, long maximum) {
    CheckIntegerRange(pDX, value, minimum, maximum);
}
void DDV_MinMaxULong(CDataExchange* pDX, unsigned long value, unsigned long minimum,
                     unsigned long maximum) {
    CheckIntegerRange(pDX, value, minimum, maximum);
}

void DDV_MaxChars(CDataExchange* pDX, const CString& value, int count) {
    if (pDX->m_bSaveAndValidate && value.GetLength() > count) {
        CString limit;
        limit.Format("%d", count);
        CString message = FrameworkText(Text::TooLong);
        message.Replace("%1", limit);
        Refuse(pDX, message);
    }
}
