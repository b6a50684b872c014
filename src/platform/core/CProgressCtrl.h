#pragma once
// CProgressCtrl: the framework's progress bar, reduced to its state. What shows the state
// hears of every change: a class derived from it through Changed() (a bar on the terminal, a
// test's record), a progress bar of a dialog through the view attached to it.

#include "platform/core/Types.h"

class CProgressCtrl;

namespace seisplot {
// A progress bar on screen that shows a CProgressCtrl, told of every change of range or
// position.
class ProgressView {
public:
    virtual ~ProgressView() = default;
    virtual void ProgressChanged(const CProgressCtrl& progress) = 0;
};
} // namespace seisplot

class CProgressCtrl {
public:
    CProgressCtrl() = default;
    CProgressCtrl(const CProgressCtrl&) = delete;
    CProgressCtrl& operator=(const CProgressCtrl&) = delete;
    virtual ~CProgressCtrl() = default;

    void SetRange(short lower, short upper) { SetRange32(lower, upper); }
    void SetRange32(int lower, int upper);
    void GetRange(int& lower, int& upper) const {
        lower = m_lower;
        upper = m_upper;
    }
    // Sets the step that StepIt adds; returns the previous one.
    int SetStep(int step);
    // Sets the position, kept within the range; returns the previous one.
    int SetPos(int position);
    int GetPos() const { return m_position; }
    // Advances by the step, wrapping to the lower end past the upper one as the framework's
    // bar does; returns the previous position.
    int StepIt();

    // The bar that shows this progress (null: none); the view outlives its attachment.
    void SetView(seisplot::ProgressView* view) { m_view = view; }

protected:
    // Called after every change of range or position.
    virtual void Changed() {}

private:
    void Notify() {
        Changed();
        if (m_view != nullptr) {
            m_view->ProgressChanged(*this);
        }
    }

    seisplot::ProgressView* m_view = nullptr;
    int m_lower = 0;
    int m_upper = 100;
    int m_step = 10;
    int m_position = 0;
};
