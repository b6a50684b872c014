#pragma once
// A progress bar that keeps every state (range and position) it is put in.

#include "platform/core/CProgressCtrl.h"

#include <vector>

namespace seisplot::test {

class ProgressRecorder : public CProgressCtrl {
public:
    struct State {
        int lower;
        int upper;
        int position;
        bool operator==(const State&) const = default;
    };
    std::vector<State> states;

protected:
    void Changed() override {
        State s{};
        GetRange(s.lower, s.upper);
        s.position = GetPos();
        states.push_back(s);
    }
};

} // namespace seisplot::test
