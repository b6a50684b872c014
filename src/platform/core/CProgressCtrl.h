#pragma once
// CProgressCtrl: the framework's progress bar, reduced to its state. What shows the state
// (a Qt progress bar, a bar on the terminal, a test's record) derives from it and hears of
// every change through Changed().

#include "platform/core/Types.h"

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

protected:
    // Called after every change of range or position.
    virtual void Changed() {}

private:
    int m_lower = 0;
    int m_upper = 100;
    int m_step = 10;
    int m_position = 0;
};
