#pragma once
// PCurveColl and PMCurveColl: collections of curves, numbered from 1, that store copies.
//
// Archive form (Serialize), which is also the whole of a file (*.pcc and *.pmc): the
// collection's class name (string "PCurveColl" or "PMCurveColl"), a 16-bit version (1), the
// number of curves (32-bit), then each curve's archive form. A failed read raises the
// archive's exception (another class name: badClass; another version: badSchema) and leaves
// the collection as it was. ReadFromFile and WriteToFile return 0 on success and 1 on
// failure.

#include "host/PCurve.h"

#include <vector>

class PCurveColl {
public:
    int GetPCurveNum() const { return static_cast<int>(m_curves.size()); }
    // Curve i (from 1), or null.
    PCurve* GetP(int i);
    const PCurve* GetP(int i) const;
    void AddPCurve(const PCurve& curve) { m_curves.push_back(curve); }
    // Removes curve i (from 1); nothing happens when there is none.
    void RemovePCurve(int i);
    void Free() { m_curves.clear(); }

    void Serialize(CArchive& ar);
    int ReadFromFile(const char* path);
    int WriteToFile(const char* path) const;

private:
    std::vector<PCurve> m_curves;
};

class PMCurveColl {
public:
    int GetPMCurveNum() const { return static_cast<int>(m_curves.size()); }
    PMCurve* GetP(int i);
    const PMCurve* GetP(int i) const;
    void AddPMCurve(const PMCurve& curve) { m_curves.push_back(curve); }
    void RemovePMCurve(int i);
    void Free() { m_curves.clear(); }

    void Serialize(CArchive& ar);
    int ReadFromFile(const char* path);
    int WriteToFile(const char* path) const;

private:
    std::vector<PMCurve> m_curves;
};
