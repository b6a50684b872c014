#include "host/Units.h"

#include "platform/core/UserInterface.h"

namespace {

// The label of the unit of that size, or the size itself ("2.5 mm") when none has it.
std::string LabelOf(const std::vector<Units::Choice>& choices, double factor, const char* base) {
    for (const Units::Choice& choice : choices) {
        if (choice.factor == factor) {
            return choice.label;
        }
    }
    CString text;
    text.Format("%g %s", factor, base);
    return text.str();
}

int IndexOf(const std::vector<Units::Choice>& choices, double factor) {
    for (size_t i = 0; i < choices.size(); ++i) {
        if (choices[i].factor == factor) {
            return static_cast<int>(i);
        }
    }
    return 0;
}

} // namespace

const std::vector<Units::Choice>& Units::LengthUnits() {
    static const std::vector<Choice> units = {
        {"mm", 1.0}, {"cm", 10.0}, {"m", 1000.0}, {"in", 25.4}, {"ft", 304.8}};
    return units;
}

const std::vector<Units::Choice>& Units::ForceUnits() {
    static const std::vector<Choice> units = {
        {"N", 1.0}, {"kN", 1000.0}, {"kgf", 9.80665}, {"lbf", 4.4482216152605}};
    return units;
}

const std::vector<Units::Choice>& Units::TimeUnits() {
    static const std::vector<Choice> units = {{"s", 1.0}};
    return units;
}

Units::Units() : m_length(1000.0), m_force(1000.0), m_time(1.0) {
    UpdateLabels();
}

void Units::SetL(double millimetres) {
    if (millimetres > 0.0) {
        m_length = millimetres;
        UpdateLabels();
    }
}

void Units::SetF(double newtons) {
    if (newtons > 0.0) {
        m_force = newtons;
        UpdateLabels();
    }
}

bool Units::SetUnit(const CString& label) {
    const struct {
        const std::vector<Choice>& choices;
        double& factor;
    } quantities[] = {{LengthUnits(), m_length}, {ForceUnits(), m_force}, {TimeUnits(), m_time}};
    for (const auto& quantity : quantities) {
        for (const Choice& choice : quantity.choices) {
            if (label == choice.label) {
                quantity.factor = choice.factor;
                UpdateLabels();
                return true;
            }
        }
    }
    return false;
}

int Units::Reset(CView* /*view*/, int askLength, int askForce, int askTime, int /*unused*/) {
    seisplot::UnitQuestion question;
    question.title = "Units";
    const struct {
        const char* name;
        const std::vector<Choice>& choices;
        double& factor;
        int ask;
    } quantities[] = {{"Length", LengthUnits(), m_length, askLength},
                      {"Force", ForceUnits(), m_force, askForce},
                      {"Time", TimeUnits(), m_time, askTime}};
    for (const auto& quantity : quantities) {
        seisplot::UnitQuestion::Quantity asked;
        asked.name = quantity.name;
        for (const Choice& choice : quantity.choices) {
            asked.labels.emplace_back(choice.label);
        }
        asked.current = IndexOf(quantity.choices, quantity.factor);
        asked.ask = quantity.ask != 0;
        question.quantities.push_back(asked);
    }
    if (!seisplot::CurrentUserInterface().ChooseUnits(question)) {
        return 1;
    }
    for (size_t i = 0; i < std::size(quantities); ++i) {
        const seisplot::UnitQuestion::Quantity& answered = question.quantities[i];
        const int current = answered.current;
        if (answered.ask && current >= 0 &&
            current < static_cast<int>(quantities[i].choices.size())) {
            quantities[i].factor = quantities[i].choices[static_cast<size_t>(current)].factor;
        }
    }
    UpdateLabels();
    return 0;
}

void Units::UpdateLabels() {
    const std::string l = LabelOf(LengthUnits(), m_length, "mm");
    const std::string f = LabelOf(ForceUnits(), m_force, "N");
    const std::string t = LabelOf(TimeUnits(), m_time, "s");
    const auto wrap = [](const std::string& label) { return " [" + label + "]"; };
    m_labels[kLength] = l;
    m_labels[kForce] = f;
    m_labels[kTime] = t;
    m_labels[kAcceleration] = l + "/" + t + "^2";
    m_labels[kWrapLength] = wrap(l);
    m_labels[kWrapSurface] = wrap(l + "^2");
    m_labels[kWrapForce] = wrap(f);
    m_labels[kWrapMoment] = wrap(f + "*" + l);
    m_labels[kWrapAcceleration] = wrap(l + "/" + t + "^2");
    m_labels[kWrapVelocity] = wrap(l + "/" + t);
    m_labels[kWrapTime] = wrap(t);
}
