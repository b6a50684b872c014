#pragma once
// The geometry library's six small input dialogs: a point, or a side or an arc from the last
// point of a figure. Each is built with its parent (may be null), preset and read through its
// public members around DoModal, which returns 1 (IDOK) when the user confirms. Angles are in
// degrees, counter-clockwise from the x axis; lengths in the caller's units.

#include "platform/ui/CDialog.h"

// A point: X, Y.
class GetXY : public CDialog {
public:
    explicit GetXY(CWnd* parent = nullptr);
    double X = 0.0;
    double Y = 0.0;

protected:
    void DoDataExchange(CDataExchange* pDX) override;
};

// A side by its projections: DX, DY.
class GetDxDy : public CDialog {
public:
    explicit GetDxDy(CWnd* parent = nullptr);
    double DX = 0.0;
    double DY = 0.0;

protected:
    void DoDataExchange(CDataExchange* pDX) override;
};

// A side by its angle and length.
class GetAnDi : public CDialog {
public:
    explicit GetAnDi(CWnd* parent = nullptr);
    double Angle = 0.0;
    double Distance = 0.0;

protected:
    void DoDataExchange(CDataExchange* pDX) override;
};

// A side by its angle and its x projection.
class GetAnDx : public CDialog {
public:
    explicit GetAnDx(CWnd* parent = nullptr);
    double Angle = 0.0;
    double DX = 0.0;

protected:
    void DoDataExchange(CDataExchange* pDX) override;
};

// A side by its angle and its y projection.
class GetAnDy : public CDialog {
public:
    explicit GetAnDy(CWnd* parent = nullptr);
    double Angle = 0.0;
    double DY = 0.0;

protected:
    void DoDataExchange(CDataExchange* pDX) override;
};

// A circular arc: centre, radius, start and end angles, and the number of segments it is
// drawn with (1 to 360).
class GetArc1 : public CDialog {
public:
    explicit GetArc1(CWnd* parent = nullptr);
    double CX = 0.0;
    double CY = 0.0;
    double Radius = 1.0;
    double Angle1 = 0.0;
    double Angle2 = 90.0;
    int Segments = 8;

protected:
    void DoDataExchange(CDataExchange* pDX) override;
};

namespace seisplot {
// The templates and their first field: a host's own resources, numbered apart from the
// library's.
inline constexpr UINT kGetXYTemplate = 20001;
inline constexpr UINT kGetDxDyTemplate = 20002;
inline constexpr UINT kGetAnDiTemplate = 20003;
inline constexpr UINT kGetAnDxTemplate = 20004;
inline constexpr UINT kGetAnDyTemplate = 20005;
inline constexpr UINT kGetArc1Template = 20006;
inline constexpr int kFirstCoordinateField = 20101;
} // namespace seisplot
