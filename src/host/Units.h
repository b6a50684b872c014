#pragma once
// Units: the user's unit system. Values inside the library are in millimetres, newtons and
// seconds (accelerations in mm/s²); the user reads and types them in the units chosen here.
//
// Lengths: mm, cm, m, in, ft. Forces: N, kN, kgf, lbf. Time: s. Derived quantities follow
// from these: surface L², volume L³, length to the fourth L⁴ (J), moment F·L, pressure and
// stress F/L², velocity L/T, acceleration L/T².
//
// The default system of a new Units is metres, kilonewtons and seconds.
//
// The ..._M functions take a value in the user's unit to internal units, the ..._U functions
// take an internal value to the user's unit. The label functions return text owned by the
// object, valid until its units change.

#include "platform/core/CString.h"

#include <array>
#include <string>
#include <vector>

class CView;

class Units {
public:
    struct Choice {
        const char* label;
        double factor; // size of the unit in internal units (mm, N or s)
    };
    static const std::vector<Choice>& LengthUnits();
    static const std::vector<Choice>& ForceUnits();
    static const std::vector<Choice>& TimeUnits();

    Units();

    // Lets the user choose the units through the user-interface services: the length when
    // askLength is nonzero, the force when askForce is, the time when askTime is; the last
    // argument is accepted for the host's call shape and not used. Returns 0 when the user
    // confirmed (the choice is then in force), 1 when the choice was cancelled (nothing
    // changes).
    int Reset(CView* view, int askLength, int askForce, int askTime, int unused);

    // Sets the length unit by its size in millimetres (10 for cm, 25.4 for in).
    void SetL(double millimetres);
    // Sets the force unit by its size in newtons.
    void SetF(double newtons);
    // Sets a unit by its label ("cm", "kN", "s"); false when no quantity has that label.
    bool SetUnit(const CString& label);

    double GetL() const { return m_length; }
    double GetF() const { return m_force; }
    double GetT() const { return m_time; }

    // User unit → internal
    double L_M(double v) const { return v * m_length; }
    double A_M(double v) const { return v * m_length * m_length; }
    double V_M(double v) const { return v * m_length * m_length * m_length; }
    double J_M(double v) const { return v * m_length * m_length * m_length * m_length; }
    double F_M(double v) const { return v * m_force; }
    double M_M(double v) const { return v * m_force * m_length; }
    double Pr_M(double v) const { return v * m_force / (m_length * m_length); }
    double St_M(double v) const { return Pr_M(v); }
    double Acc_M(double v) const { return v * m_length / (m_time * m_time); }
    double Vel_M(double v) const { return v * m_length / m_time; }
    double T_M(double v) const { return v * m_time; }

    // Internal → user unit
    double L_U(double v) const { return v / m_length; }
    double A_U(double v) const { return v / (m_length * m_length); }
    double V_U(double v) const { return v / (m_length * m_length * m_length); }
    double J_U(double v) const { return v / (m_length * m_length * m_length * m_length); }
    double F_U(double v) const { return v / m_force; }
    double M_U(double v) const { return v / (m_force * m_length); }
    double Pr_U(double v) const { return v * (m_length * m_length) / m_force; }
    double St_U(double v) const { return Pr_U(v); }
    double Acc_U(double v) const { return v * (m_time * m_time) / m_length; }
    double Vel_U(double v) const { return v * m_time / m_length; }
    double T_U(double v) const { return v / m_time; }

    // Bare labels: "mm", "m/s^2"
    char* GetLString() const { return Label(kLength); }
    char* GetFString() const { return Label(kForce); }
    char* GetTString() const { return Label(kTime); }
    char* GetAccString() const { return Label(kAcceleration); }
    // Labels to follow an axis title directly: " [mm]", " [kN*m]"
    char* GetWrapLString() const { return Label(kWrapLength); }
    char* GetWrapAString() const { return Label(kWrapSurface); }
    char* GetWrapFString() const { return Label(kWrapForce); }
    char* GetWrapMString() const { return Label(kWrapMoment); }
    char* GetWrapAccString() const { return Label(kWrapAcceleration); }
    char* GetWrapVelString() const { return Label(kWrapVelocity); }
    char* GetWrapTiString() const { return Label(kWrapTime); }

private:
    enum LabelKind {
        kLength,
        kForce,
        kTime,
        kAcceleration,
        kWrapLength,
        kWrapSurface,
        kWrapForce,
        kWrapMoment,
        kWrapAcceleration,
        kWrapVelocity,
        kWrapTime,
        kLabelCount
    };
    char* Label(LabelKind kind) const { return m_labels[kind].data(); }
    void UpdateLabels();

    double m_length; // millimetres per user length unit
    double m_force;  // newtons per user force unit
    double m_time;   // seconds per user time unit
    mutable std::array<std::string, kLabelCount> m_labels;
};
