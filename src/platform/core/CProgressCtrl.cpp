#include "platform/core/CProgressCtrl.h"

#include <algorithm>

void CProgressCtrl::SetRange32(int lower, int upper) {
    m_lower = lower;
    m_upper = upper;
    m_position = std::clamp(m_position, std::min(lower, upper), std::max(lower, upper));
    Notify();
}

int CProgressCtrl::SetStep(int step) {
    const int previous = m_step;
    m_step = step;
    return previous;
}

int CProgressCtrl::SetPos(int position) {
    const int previous = m_position;
    m_position = std::clamp(position, std::min(m_lower, m_upper), std::max(m_lower, m_upper));
    Notify();
    return previous;
}

int CProgressCtrl::StepIt() {
    const int previous = m_position;
    int next = m_position + m_step;
    if (next > std::max(m_lower, m_upper)) {
        next = m_lower + (next - std::max(m_lower, m_upper));
    }
    m_position = std::clamp(next, std::min(m_lower, m_upper), std::max(m_lower, m_upper));
    Notify();
    return previous;
}
